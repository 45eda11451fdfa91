"""What may come out of a storm: a table in storm/expected, which people read."""

import os

from display import HERE


class Table:
    """Rows of words. Those that come up are compared with those that were expected of the same first words."""

    def __init__(self, name, heads):
        self.path = os.path.join(HERE, "expected", name + ".txt")
        self.heads = heads
        self.expected = set()
        self.remarks = []
        self.seen = {}
        if os.path.exists(self.path):
            self.read()

    def read(self):
        with open(self.path, encoding="utf-8") as file:
            lines = file.read().splitlines()
        self.remarks = [line for line in lines if line.startswith("#")]
        rows = [tuple(word.strip() for word in line.split("|")) for line in lines if line and not line.startswith("#")]
        self.expected = {row for row in rows if row != self.heads}

    def take(self, row, how):
        """A row has come up. Returns whether it was expected; says how it came up first where it was not."""
        row = tuple(row)
        if row not in self.seen and row not in self.expected:
            print(f"not in the table: {' | '.join(row)}\n    {how}", flush=True)
        self.seen[row] = self.seen.get(row, 0) + 1
        return row in self.expected

    def missing(self, first):
        """The expected rows with this first word that have not come up."""
        return sorted(row for row in self.expected if row[0] == first and row not in self.seen)

    def write(self, firsts):
        """Puts what has come up in the place of what was expected of these first words."""
        rows = [row for row in self.expected if row[0] not in firsts] + list(self.seen)
        widths = [max(len(row[column]) for row in [self.heads, *rows]) for column in range(len(self.heads))]
        os.makedirs(os.path.dirname(self.path), exist_ok=True)
        with open(self.path, "w", encoding="utf-8") as file:
            for line in self.remarks:
                file.write(line + "\n")
            for row in [self.heads, *rows]:
                file.write(" | ".join(word.ljust(width) for word, width in zip(row, widths)).rstrip() + "\n")
