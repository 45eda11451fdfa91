"""Texts of the program that the help book need not explain, because nobody who uses the program gets to see them."""

# What is told to the trace viewer.
TRACES = {
    "Finished", "Load Complete", "Load New Sec FIle Complete", "Rule Deleted", "Rules Mode Started",
    "Security File Write Success", "Security Mode Started", "Start", "Start item: ",
    "Start item: zySecure(index).UserID", "Unit Deleted", "Units Mode Started", "Unloaded", "User deleted",
    "ZYGlobal Start",
}

# What the program sends to the table engine. A mistake in it shows as one of the engine's errors, which are explained.
STATEMENTS = {
    "CREATE TABLE [", "INSERT INTO [", ") VALUES ('", "CREATE INDEX [", "] ON [", " TEXT (", " TEXT(",
}

# The rules grid and the question before leaving without saving are there, but no menu, button or key leads to them.
OUT_OF_REACH = {
    "&Add Rule", "&Delete Rule", "Are you Sure you want to Exit Without Saving Changes",
    "Code", "Cond.", "Confirm Exit", "Grid Mode", "TARG ", "Avg ",
}

# Under which names the place of the window is stored.
REGISTRY_VALUES = {"Height", "Left", "MinHeight", "MinWidth", "State", "Top", "Width"}

# What a screen reader says of a cell beside its text, and what the toolkit's log gets.
OF_THE_TOOLKIT = {", row %d of %d", "Cell", "table cell", "%s:%d: %s: %s %s"}

# The lines of a settings file have no keys to be asked for by, and nothing in the program asks.
NO_KEYS = {"Invalid procedure call or argument"}

# How to reach the maker changes without a new book, which leaves that to the About box.
CONTACT = {"shell/low/Maker.h"}

# What a file of pictures is made of.
MARKUP = {"rules/SvgText.cpp"}

NOT_FOR_PEOPLE = TRACES | STATEMENTS | OUT_OF_REACH | REGISTRY_VALUES | OF_THE_TOOLKIT | NO_KEYS
FILES_NOT_FOR_THE_BOOK = CONTACT | MARKUP


def is_picture(text):
    """Whether a text describes a drawing, as the icons do."""
    return text.startswith(("<svg", "M2 ")) or text.lstrip('"/').startswith((" fill=", "></svg>"))
