#!/usr/bin/python3 -B
"""Whether the help book holds together, and whether it tells of all that the program shows.

The first argument is the book as it is built, the second one the folder of the sources; the others go to unittest.
"""

import glob
import os
import re
import sys
import unittest

from book import Book, collapsed
from literals import literals, tokens
from unexplained import FILES_NOT_FOR_THE_BOOK, NOT_FOR_PEOPLE, OUT_OF_REACH, is_picture

ROOMS = ("basics", "platform", "controls", "history", "shell/low", "shell/high", "rules", "security", "units", "dbase", "desktop", "app")
# How the controls of a form are named: what kind they are, then what they are for.
CONTROL = re.compile(r"(?:cmd|txt|cbo|grd|lst|mnu|fra|Fra|lbl|dp|zy|frm|pic|UpDown)[A-Z][A-Za-z0-9]*|cmdcancel")
ACCESS_KEY = re.compile(r"&(?=\w)")


def sources():
    """The sources of the rooms that a person's texts can come from: each path with what stands there."""
    found = {}
    for room in ROOMS:
        for path in glob.glob(os.path.join(ROOT, room, "*.cpp")) + glob.glob(os.path.join(ROOT, room, "*.h")):
            with open(path, encoding="utf-8") as file:
                found[os.path.relpath(path, ROOT)] = file.read()
    return found


def reads_as_text(literal):
    """Words with a blank between them or beside them, or a single word with a capital: "Saved", " of ", "the end"."""
    return bool(re.search(r"[A-Za-z]{2}", literal) and " " in literal or re.fullmatch(r"[A-Z][a-z]+", literal))


def shown_texts():
    """What a person may get to see: each text with the path of a file that holds it."""
    texts = {}
    for path, source in sources().items():
        for literal in literals(source):
            if path not in FILES_NOT_FOR_THE_BOOK and literal not in NOT_FOR_PEOPLE and not is_picture(literal):
                for text in filter(reads_as_text, re.split(r"[\t\n]+", literal)):
                    texts.setdefault(ACCESS_KEY.sub("", text), path)
    return texts


def captions_in(path, source):
    """What stands on the controls, menus and columns that a source makes."""
    found = tokens(source)
    all_are_captions = re.search(r"(?:Controls\.cpp|MainMenu\.cpp|SettingsForm\.cpp|RunRule\.h)$", path)
    for at, (kind, text) in enumerate(found):
        before = [token for _, token in found[max(at - 2, 0):at]]
        of_control = len(before) == 2 and before[1] == "," and CONTROL.fullmatch(before[0])
        is_set = before in (["SetCaption", "("], ["AddItem", "("])
        if kind == "literal" and text not in OUT_OF_REACH and (all_are_captions or of_control or is_set):
            yield from text.split("\t")


def as_shown(caption):
    """A caption without the mark of its access key. The one of two arrows is shown once for each of them, and one with a
    blank at its end is shown with the program's title behind it."""
    plain = collapsed(ACCESS_KEY.sub("", caption))
    if plain.startswith("Move "):
        return [plain + " up", plain + " down"]
    return [plain + " ZY Setup" if caption.endswith(" ") else plain]


def captions():
    """What a person sees of the captions: each with the path of a file that holds it."""
    found = {}
    for path, source in sources().items():
        for caption in captions_in(path, source):
            if re.search("[A-Za-z]{2}", caption) and not CONTROL.fullmatch(caption):
                for shown in as_shown(caption):
                    found.setdefault(shown, path)
    return found


class EveryLinkResolves(unittest.TestCase):
    def targets(self):
        for name, page in BOOK.pages().items():
            for link in page.links:
                path, _, anchor = link.partition("#")
                yield name, path or name, anchor

    def test_every_link_leads_to_a_file_of_the_book(self):
        for name, path, _ in self.targets():
            self.assertIn(path, BOOK.files, f"{name} names it")

    def test_every_anchor_is_there(self):
        for name, path, anchor in self.targets():
            if anchor:
                self.assertIn(anchor, BOOK.topics[path].anchors, f"{name} names it in {path}")

    def test_the_project_names_a_topic_to_begin_with(self):
        self.assertIn(BOOK.project["Default topic"], BOOK.topics)

    def test_every_topic_stands_in_the_contents(self):
        self.assertEqual(set(BOOK.topics) - set(BOOK.contents.links), set())

    def test_every_topic_is_found_by_a_keyword(self):
        found = {link.partition("#")[0] for link in BOOK.index.links}
        self.assertEqual(set(BOOK.topics) - found, set())

    def test_every_picture_is_used_and_says_what_it_shows(self):
        pictures = [picture for topic in BOOK.topics.values() for picture in topic.pictures]
        used = {picture["src"] for picture in pictures}
        self.assertEqual({name for name in BOOK.files if name.endswith(".gif")}, used)
        self.assertEqual([picture["src"] for picture in pictures if not picture.get("alt")], [])

    def test_every_topic_has_a_title_of_its_own(self):
        titles = [topic.title for topic in BOOK.topics.values()]
        self.assertNotIn("", titles)
        self.assertEqual(len(titles), len(set(titles)))

    def test_the_tags_of_every_page_are_balanced(self):
        for name, page in BOOK.pages().items():
            self.assertEqual(page.unbalanced, [], name)

    def test_the_book_is_not_nearly_empty(self):
        self.assertGreater(len(BOOK.topics), 20)
        self.assertGreater(len(BOOK.index.links), 100)


class ExplainsEveryMessage(unittest.TestCase):
    def test_every_text_of_the_program_stands_in_the_book(self):
        missing = [f'{path}: "{text}"' for text, path in sorted(shown_texts().items())
                   if collapsed(text) not in BOOK.text]
        self.assertEqual(missing, [], "explain them in help/")

    def test_the_texts_of_the_sources_are_found(self):
        texts = shown_texts()
        self.assertGreater(len(texts), 150)
        for known in ("Rule Code must be unique", "the disk is full", "Saved", "Overflow", "Unit Description",
                      " stands in the way of the next save. "):
            self.assertIn(known, texts)


class TellsNothingOfItsMaking(unittest.TestCase):
    def test_all_its_times_are_those_of_a_day_long_ago(self):
        self.assertEqual(BOOK.times, {946684800})  # 1 January 2000


class ShowsTheCaptionsAsTheyAre(unittest.TestCase):
    def test_every_caption_stands_in_bold_in_the_book(self):
        missing = [f'{path}: "{caption}"' for caption, path in sorted(captions().items())
                   if caption not in BOOK.bold]
        self.assertEqual(missing, [], "name them in help/, in bold")

    def test_the_captions_of_the_sources_are_found(self):
        found = captions()
        self.assertGreater(len(found), 60)
        for known in ("File", "About ZY Setup", "Add User", "Rule ID:", "Rule ID", "Cancel", "User Name:", "Password",
                      "Units of Measure", "ZY Setup - Rules", "Unit Description", "AVG - Average", "Clear"):
            self.assertIn(known, found)


if __name__ == "__main__":
    BOOK = Book(sys.argv[1])
    ROOT = sys.argv[2]
    unittest.main(argv=[sys.argv[0]] + sys.argv[3:])
