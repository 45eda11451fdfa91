"""A display for the storms."""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
PROGRAM = os.path.join(HERE, "../build/default/bin/zyGlobal")


def start_on_own_display():
    """Runs this script again on a display and a session bus of its own, unless that has been done."""
    if "ZY_STORM" not in os.environ:
        os.environ["ZY_STORM"] = "1"
        display = os.path.join(HERE, "../tests/with-display")
        os.execv(display, [display, "dbus-run-session", "--", os.path.abspath(sys.argv[0]), *sys.argv[1:]])
