"""Reads the help book: its topics, contents and index, and what a reader sees of them."""

import re
import struct
import zipfile
from html.parser import HTMLParser

UNCLOSED = {"br", "hr", "img", "meta", "param"}  # tags that have no end
INLINE = {"a", "b", "font", "i", "tt"}           # tags that part no words


def collapsed(text):
    """The text with each run of blanks and line ends made one blank."""
    return re.sub(r"\s+", " ", text).strip()


class Page(HTMLParser):
    """A page of the book, taken apart."""

    def __init__(self, source):
        super().__init__(convert_charrefs=True)
        self.links = []       # where <a href>, <img src> and the entries of contents and index point
        self.pictures = []    # the attributes of each picture
        self.anchors = set()
        self.bold = set()     # what stands in <b>
        self.unbalanced = []  # what is wrong with the tags
        self._open = []
        self._pieces = []
        self._title = []
        self._bold = []
        self.feed(source)
        self.close()
        self.unbalanced += [f"<{tag}> is not closed" for tag in self._open]
        self.text = collapsed("".join(self._pieces))
        self.title = collapsed("".join(self._title))

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if tag == "a" and "name" in given:
            self.anchors.add(given["name"])
        if tag == "img":
            self.pictures.append(given)
        if tag == "param" and given["name"] == "Local":
            self.links.append(given["value"])
        self.links += [given[key] for key in ("href", "src") if key in given]
        if tag not in UNCLOSED:
            self._open.append(tag)
        if tag == "b":
            self._bold.append([])
        self._part(tag)

    def handle_endtag(self, tag):
        if not self._open or self._open[-1] != tag:
            self.unbalanced.append(f"</{tag}> in line {self.getpos()[0]} closes nothing")
        else:
            self._open.pop()
        if tag == "b" and self._bold:
            self.bold.add(collapsed("".join(self._bold.pop())))
        self._part(tag)

    def handle_data(self, data):
        if "title" in self._open:
            self._title.append(data)
        else:
            self._pieces.append(data)
        for bold in self._bold:
            bold.append(data)

    def _part(self, tag):
        if tag not in INLINE:
            self._pieces.append(" ")


def times_of(entry):
    """All times of an entry of an archive, in seconds since 1970: of its last change, its last use and its making."""
    kind, size, _, *times = struct.unpack("<HHB3i", entry.extra[:17])
    if (kind, size) != (0x5455, 13):
        raise ValueError(f"{entry.filename} has other times than are looked for")
    return times


class Book:
    """The archive that the program opens."""

    def __init__(self, path):
        with zipfile.ZipFile(path) as archive:
            self.times = {time for entry in archive.infolist() for time in times_of(entry)}
            self.files = {name: archive.read(name) for name in archive.namelist()}
        self.project = dict(line.split("=", 1) for line in self._source("zysetup.hhp").splitlines() if "=" in line)
        self.topics = {name: Page(self._source(name)) for name in self.files if name.endswith(".html")}
        self.contents = Page(self._source(self.project["Contents file"]))
        self.index = Page(self._source(self.project["Index file"]))
        self.text = " ".join(topic.text for topic in self.topics.values())
        self.bold = set().union(*(topic.bold for topic in self.topics.values()))

    def pages(self):
        return dict(self.topics, contents=self.contents, index=self.index)

    def _source(self, name):
        return self.files[name].decode(self.project["Charset"] if hasattr(self, "project") else "ascii")
