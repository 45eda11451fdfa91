"""The single lines of a source that can be changed a little, so that the program becomes wrong."""

import dataclasses
import re

HIDDEN = re.compile(r"""//[^\n]*|/\*.*?\*/|R"\(.*?\)"|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Za-z])'(?:\\[^']+|[^'\\\n])'""", re.DOTALL)
CHARACTER = re.compile(r"(?<![0-9A-Za-z])'(\\[^']+|[^'\\\n])'")
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d+)(?=[uUlLzZ]*\b)(?!\.)")
# What cannot be run, what tells the compiler alone, and what makes room that a container makes by itself where it is missing.
LEFT_ALONE = re.compile(r"^\s*(#|(static_assert|using|namespace|template|enum|class|struct)\b)|\bassert\("
                        r"|\breserve\(|\bReserve(For)?\(")
CONDITION = re.compile(r"\b(?:if|while) \(")
NEGATED_BY_SWAPPING = re.compile(r";|^[^&|]* [=!]= [^&|]*$")  # and what begins with a declaration
STATEMENT = re.compile(r"^\s*(?!(?:return|case|default|throw|delete|else|goto|do)\b)(?:\+\+|--|\*|\()*"
                       r"[A-Za-z_][\w:.]*(?:->\*?|\.|\[|\(|\+\+|--| (?:[-+*/|&]|<<|>>)?= |;).*;$|^\s*(?:throw\b.*|return);$")
BEFORE_STATEMENT = re.compile(r"([;{}:]|^)\s*$")

# The first of each pair becomes the second one. The blanks tell operators from templates, pointers and references.
BOUNDS = [(" < ", " <= "), (" <= ", " < "), (" > ", " >= "), (" >= ", " > ")]
OPERATORS = [(" == ", " != "), (" != ", " == "), (" && ", " || "), (" || ", " && "), (" + ", " - "), (" - ", " + "),
             (" += ", " -= "), (" -= ", " += "), (" * ", " + "), (" / ", " * "), (" % ", " / "), (" & ", " | "),
             (" | ", " & "), (" << ", " >> "), (" >> ", " << "), ("++", "--"), ("--", "++"), ("std::min", "std::max"),
             ("std::max", "std::min"), ("std::all_of", "std::any_of"), ("std::any_of", "std::all_of"),
             (".front()", ".back()"), (".back()", ".front()"), ("starts_with(", "ends_with("), ("ends_with(", "starts_with(")]
CONSTANTS = [("true", "false"), ("false", "true")]


@dataclasses.dataclass(frozen=True)
class Mutation:
    """One line of a file of the repository, and what it is changed to."""

    file: str
    line: int  # from 1
    kind: str
    before: str
    after: str

    def key(self):
        """What stays when other lines are added."""
        return self.file, self.before.strip(), self.after.strip()


def hide(text):
    """The text with its comments, texts and characters blotted out; each place stays where it was."""
    def blot(found):
        word = found.group()
        if word.startswith("/"):
            return re.sub(r"[^\n]", " ", word)
        return word[0] + re.sub(r"[^\n]", "_", word[1:-1]) + word[-1]
    return HIDDEN.sub(blot, text)


def closing(line, begin):
    """Where the bracket is closed that is open before `begin`; nothing where that is on another line."""
    depth = 1
    for at in range(begin, len(line)):
        depth += {"(": 1, ")": -1}.get(line[at], 0)
        if depth == 0:
            return at
    return None


def negated_conditions(plain):
    for found in CONDITION.finditer(plain):
        end = closing(plain, found.end())
        if end is not None and not NEGATED_BY_SWAPPING.search(plain[found.end():end]):
            yield found.end(), end, "!({})"
    for found in re.finditer(r" \? ", plain):
        yield found.start(), found.start(), " == false"


def swapped(pairs, plain):
    for old, new in pairs:
        word = r"\b" if old[0].isalpha() else ""
        for found in re.finditer(word + re.escape(old) + (r"\b" if old[-1].isalpha() else ""), plain):
            yield found.start(), found.end(), new


def changed_constants(plain, line):
    yield from swapped(CONSTANTS, plain)
    for found in NUMBER.finditer(plain):
        digits = found.group(1)
        number = int(digits, 0) if digits.startswith("0x") or not digits.startswith("0") else int(digits, 8)
        other = 0 if number == 1 else number + 1
        yield found.start(1), found.end(1), hex(other) if digits.startswith("0x") else str(other)
    for found in CHARACTER.finditer(line):
        if plain[found.start()] == "'" and set(plain[found.start() + 1:found.end() - 1]) == {"_"}:
            yield found.start(), found.end(), "'!'" if found.group() == "'~'" else "'~'"


def dropped_statements(plain, previous):
    indent = len(plain) - len(plain.lstrip())
    if indent and STATEMENT.match(plain.rstrip()) and plain.count("(") == plain.count(")") and BEFORE_STATEMENT.search(previous):
        yield indent, len(plain.rstrip()), ";"


def mutations_of(file, text):
    """All of one file, in the order of its lines."""
    lines, plains = text.split("\n"), hide(text).split("\n")
    previous = ""
    for number, (line, plain) in enumerate(zip(lines, plains), 1):
        if not plain.strip() or LEFT_ALONE.search(plain):
            previous = plain
            continue
        kinds = {"negated condition": negated_conditions(plain), "changed bound": swapped(BOUNDS, plain),
                 "swapped operator": swapped(OPERATORS, plain), "changed constant": changed_constants(plain, line),
                 "dropped statement": dropped_statements(plain, previous)}
        for kind, edits in kinds.items():
            for begin, end, new in edits:
                yield Mutation(file, number, kind, line, line[:begin] + new.format(line[begin:end]) + line[end:])
        previous = plain


def mutated(text, mutation):
    """The text of the file with that line changed."""
    lines = text.split("\n")
    assert lines[mutation.line - 1] == mutation.before
    lines[mutation.line - 1] = mutation.after
    return "\n".join(lines)
