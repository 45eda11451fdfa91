"""The settings files that the storms put before an editor, as big as they like."""

import os


class Files:
    """A folder of settings with one list, whose first row bears the mark of who wrote it."""

    def __init__(self, folder, rows=300):
        self.folder, self.rows = folder, rows
        self.put(self.name, self.first_text())

    def path(self, name):
        return os.path.join(self.folder, name)

    def put(self, name, text):
        with open(self.path(name), "wb") as file:
            file.write(text)

    def get(self, name):
        try:
            with open(self.path(name), "rb") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def keep_as_pattern(self, mark):
        """From here on the file as it stands, with another mark, is what a whole one looks like."""
        self.pattern = self.content()
        self.pattern_mark = self.marked(mark)
        assert self.pattern.count(self.pattern_mark) == 1, "the first row does not bear its mark"

    def content(self):
        return self.get(self.name)

    def whole(self, mark):
        return self.pattern.replace(self.pattern_mark, self.marked(mark))

    def others_than(self, mark):
        """What is wrong beside the file itself, which the window with this mark wrote last."""
        return []

    def remove_leftovers(self):
        for name in self.leftovers:
            if os.path.exists(self.path(name)):
                os.remove(self.path(name))


class RulesFiles(Files):
    argument, title, name, leftovers = "@RULES", "ZY Setup - Rules", "ZYRules.sys", ["Rules.tmp"]
    keys_at_start = []
    keys_to_first_row = ["alt+d", "ctrl+a"]
    keys_behind_mark = []

    def first_text(self):
        fields = {"MIN": "1", "MAX": "2", "COND": ">", "ZONE": "UCL", "DESC1": "A description", "DESC2": "",
                  "DESC3": ""}
        return "".join(
            f"[RULE]\r\n   CODE         = R{row}\r\n" + "".join(f"   {key:<12} = {fields[key]}\r\n" for key in fields)
            for row in range(1, self.rows + 1)).encode("cp1252")

    def marked(self, mark):
        return f"   CODE         = R1\r\n   MIN          = 1\r\n   MAX          = 2\r\n   COND         = >\r\n" \
               f"   ZONE         = UCL\r\n   DESC1        = {mark}\r\n".encode("cp1252")


class UnitsFiles(Files):
    argument, title, name, leftovers = "@UNITS", "ZY Setup - Units of Measure", "ZYUNITS.SYS", []
    keys_at_start = []
    keys_to_first_row = ["ctrl+Home"]
    keys_behind_mark = ["Return"]

    def first_text(self):
        return "".join(f"Description {row},u{row}\r\n" for row in range(1, self.rows + 1)).encode("cp1252")

    def marked(self, mark):
        return f"Description 1,{mark}\r\n".encode("cp1252")


class UsersFiles(Files):
    argument, title, name = "@SECURITY", "ZY Setup - Security", "ZYSECURE.DBF"
    leftovers = ["ZYSECURE.TMP"]
    keys_at_start = []
    keys_to_first_row = ["ctrl+Home"]
    keys_behind_mark = ["Return"]
    columns = [("USERID", 10), ("PASSWORD", 20), ("IDENTIFIER", 20), ("EXPDATE", 8), ("STATUS", 1)]

    def first_text(self):
        size = 32 + 32 * len(self.columns) + 1
        record = 1 + sum(width for _, width in self.columns)
        header = bytes([3, 100, 1, 1]) + self.rows.to_bytes(4, "little") + size.to_bytes(2, "little") + \
            record.to_bytes(2, "little") + bytes(20)
        for column, width in self.columns:
            header += column.encode().ljust(11, b"\0") + b"C" + bytes(4) + bytes([width]) + bytes(15)
        records = "".join(f" {f'USER{row}':<10}{'secret':<20}{f'Number {row}':<20}{'':<8}A"
                          for row in range(1, self.rows + 1))
        return header + b"\r" + records.encode("cp1252") + b"\x1a"

    def content(self):
        table = self.get(self.name)
        # The date of the last change is no part of what is compared.
        return table and table[:1] + b"..." + table[4:]

    def marked(self, mark):
        return f" {mark:<10}secret".encode("cp1252")

    def others_than(self, mark):
        index = self.get("ZYSECURE.NDX")
        if index is None:
            return ["the index is missing"]
        return [] if f"{mark:<10}".encode() in index else ["the index is of other users than the table"]


EDITORS = {"rules": RulesFiles, "units": UnitsFiles, "users": UsersFiles}
