"""Reads the texts in C++ sources: what stands in quotes there, neighbours joined as the compiler joins them."""

import re

TOKEN = re.compile(r'''
    (?P<blank> \s+ | //[^\n]* | /\*.*?\*/ )
  | (?P<directive> ^[ \t]*\#(?:include|pragma|if|ifdef|ifndef|else|endif)[^\n]* )
  | R"\((?P<raw> .*?)\)"
  | "(?P<text> (?:[^"\\\n]|\\.)* )"
  | (?P<character> '(?:[^'\\\n]|\\.)+' )
  | (?P<number> [0-9][0-9a-fA-FxX']* )
  | (?P<word> \w+ )
  | (?P<sign> . )
''', re.VERBOSE | re.DOTALL | re.MULTILINE)

ESCAPE = re.compile(r'\\(?:x([0-9A-Fa-f]{1,2})|(.))')
ESCAPED = {"n": "\n", "r": "\r", "t": "\t", "0": "\0"}


def unescaped(text):
    def character(match):
        if match[1]:
            return bytes([int(match[1], 16)]).decode("cp1252")
        return ESCAPED.get(match[2], match[2])
    return ESCAPE.sub(character, text)


def tokens(source):
    """The source without comments: a list of (kind, text), each text in quotes as kind "literal"."""
    found = []
    for match in TOKEN.finditer(source):
        kind = match.lastgroup
        if kind in ("blank", "directive"):
            continue
        if kind in ("raw", "text"):
            text = match["raw"] if kind == "raw" else unescaped(match["text"])
            if found and found[-1][0] == "literal":
                found[-1] = ("literal", found[-1][1] + text)
            else:
                found.append(("literal", text))
        else:
            found.append((kind, match[0]))
    return found


def literals(source):
    return [text for kind, text in tokens(source) if kind == "literal"]
