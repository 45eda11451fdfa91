"""One session of an editor over folders of its own, traced call by call, and what it leaves there."""

import collections
import os
import re
import shutil
import subprocess
import tempfile
import threading

from display import HERE
from settings_files import EDITORS

TOOLS = os.path.join(HERE, "../build/default/storm")  # the programs of this folder
OLD, NEW = "OLD", "NEW"  # the marks of the lists
NOTHING = "-"
PATIENCE = 60  # seconds, on a machine that has other work to do
ROLES = [(r"state/zysetup/backups/.*/unfinished$", "the unfinished version"),
         (r"state/zysetup/backups/.*/\d{8}T\d{6}Z$", "the version"),
         (r"state/zysetup/backups(/.*)?$", "the folder of versions"),
         (r".*/zysetup/[^/]*\.journal$", "the notes"),
         (r"config/zysetup/registry.ini.lock$", "the lock of the registry"),
         (r"config/zysetup/registry.ini(\..*)?$", "the registry"),
         (r"data/Trash/(files|info)/.*", "the recycled file"),
         (r"data/Trash(/.*)?$", "the trash")]


class Call:
    """A line in the log of the tracer."""

    def __init__(self, line, place):
        number, self.name, self.path, self.other, result, failures, self.deed = line.split("\t")
        self.number, self.result = int(number), int(result)
        self.failures = failures.split(",") if failures else []
        self.text = " ".join([self.name, place.role(self.path)] + ([place.role(self.other)] if self.other else []))

    def is_step(self):
        """Whether it may change what stands on the disk."""
        creates = self.name == "openat" and "ENOSPC" in self.failures
        return creates or self.name in ("write", "pwrite", "writev", "fsync", "fdatasync", "ftruncate", "rename",
                                        "renameat2", "link", "unlink", "unlinkat")


class Place:
    """The folders of one user who works with one editor. The list is saved under one mark; another one is to be saved."""

    def __init__(self, editor, rows, tools=TOOLS):
        self.editor, self.kind, self.tools = editor, EDITORS[editor], os.path.abspath(tools)
        self.pattern = tempfile.mkdtemp(prefix="zyStorm")
        self.folder = tempfile.mkdtemp(prefix="zyStorm")
        # Notes of passwords are kept in memory alone.
        self.memory = tempfile.mkdtemp(prefix="zyStorm", dir="/dev/shm")
        self.log = os.path.join(self.pattern, "calls")
        self.make_pattern(rows)

    def end(self):
        for folder in (self.pattern, self.folder, self.memory):
            shutil.rmtree(folder)

    def make_pattern(self, rows):
        os.makedirs(self.settings())
        self.kind(self.settings(), rows)
        self.run_calmly("OLDER")  # so that there is an earlier version, and something in the trash
        self.run_calmly(OLD)
        self.old = self.files()
        shutil.copytree(self.folder, os.path.join(self.pattern, "old"))
        self.run_calmly(NEW)
        self.new = self.files()
        assert self.old[self.kind.name] != self.new[self.kind.name], "the two lists are the same"

    def renew(self):
        """Everything is as before the session."""
        for folder in (self.folder, self.memory):
            shutil.rmtree(folder)
        if os.path.exists(self.log):
            os.remove(self.log)
        shutil.copytree(os.path.join(self.pattern, "old"), self.folder)
        os.mkdir(self.memory, 0o700)

    def settings(self):
        return os.path.join(self.folder, "settings")

    def environment(self):
        environment = dict(os.environ, HOME=self.folder, ZYSETUP_SYSTEM_DIR=self.settings(), LC_ALL="C.UTF-8",
                           XDG_RUNTIME_DIR=self.memory, GSETTINGS_BACKEND="memory", XDG_CACHE_HOME=self.pattern,
                           **{f"XDG_{each.upper()}_HOME": os.path.join(self.folder, each)
                              for each in ("config", "data", "state")})
        environment.pop("NO_AT_BRIDGE", None)
        environment["ASAN_OPTIONS"] = "detect_leaks=0"  # a program under a tracer cannot look for them
        return environment

    def session(self, mark=None):
        """The command of a session without a window."""
        return [os.path.join(self.tools, "save_session"), self.kind.argument] + ([mark] if mark else [])

    def traced(self, command, deed=()):
        """The same command under the tracer."""
        below = [self.settings(), self.memory, *(os.path.join(self.folder, each) for each in
                                                 ("state/zysetup", "config/zysetup", "data/zysetup", "data/Trash"))]
        folders = [word for folder in below for word in ("below", folder)]
        return [os.path.join(self.tools, "call_tracer"), self.log, *folders, *map(str, deed), "--", *command]

    def start(self, command):
        return subprocess.Popen(command, env=self.environment(), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                text=True)

    def start_window(self, program, deed=()):
        """Starts the real program under the tracer. Returns the process of the tracer."""
        self.renew()
        return subprocess.Popen(self.traced([program, self.kind.argument], deed), env=self.environment(),
                                stderr=subprocess.DEVNULL)

    def run(self, command):
        """Returns the status and the lines that were printed."""
        with self.start(command) as process:
            watch = threading.Timer(PATIENCE, process.kill)  # with it goes what it traces
            watch.start()
            printed = process.communicate()[0]
            watch.cancel()
        return process.returncode, printed.splitlines()

    def run_calmly(self, mark=None):
        status, printed = self.run(self.session(mark))
        assert status == 0 and "said Saved" in printed and "closed" in printed, f"{status}: {printed}"
        return printed

    def calls(self):
        """What the tracer has counted."""
        with open(self.log, encoding="utf-8", errors="replace") as log:
            return [Call(line.rstrip("\n"), self) for line in list(log)[1:]]

    def traced_process(self):
        """The number of the process that the tracer has started; nothing before that."""
        if not os.path.exists(self.log):
            return 0
        with open(self.log, encoding="utf-8") as log:
            return int(log.readline() or 0)

    def window_files(self):
        """The files as a window drives them; they stand there already."""
        files = self.kind.__new__(self.kind)
        files.folder = self.settings()
        return files

    def role(self, path):
        """What a path is for, whatever numbers and times are in it."""
        if path.startswith(self.memory):
            return "the notes" if path.endswith(".journal") else "the folder of notes"
        path = os.path.relpath(path, self.folder)
        for pattern, role in ROLES:
            if re.match(pattern, path):
                return role
        if path.startswith("settings"):
            return os.path.relpath(path, "settings").replace(".", "the folder", 1) if path == "settings" else path[9:]
        return {"state/zysetup": "the folder of notes", "config/zysetup": "the folder of the registry"}.get(path, path)

    # What stands there.

    def files(self):
        """The files in the folder of the settings, by their names; the day of a table's change does not count."""
        found = {}
        for name in os.listdir(self.settings()):
            with open(os.path.join(self.settings(), name), "rb") as file:
                found[name] = comparable(name, file.read())
        return found

    def word(self, name, content, list_name=None):
        """What a file holds, in a word."""
        list_name = list_name or name
        old, new = self.old.get(list_name), self.new.get(list_name)
        if content is None:
            return NOTHING
        if content in (old, new):
            return "new" if content == new else "old"
        if not content:
            return "empty"
        if content[:1] == b"\x03" and content[4:8] == bytes(4):
            return "no rows"
        return "cut" if new.startswith(content) or content[8:] and new[8:].startswith(content[8:]) else "other"

    def standing(self):
        """The words for the settings file, what stands beside it, and the index of users."""
        files = self.files()
        beside = self.kind.leftovers[0] if self.kind.leftovers else None
        known = {self.kind.name, beside, "ZYSECURE.NDX"}
        words = [self.word(self.kind.name, files.get(self.kind.name)),
                 self.word(beside, files.get(beside), self.kind.name),
                 self.word("ZYSECURE.NDX", files.get("ZYSECURE.NDX"))]
        return words + [f"{name}: {self.word(name, files[name], self.kind.name)}" for name in sorted(set(files) - known)]

    def kept(self):
        """Where the old list stands besides."""
        places = {"version": ["state/zysetup/backups"], "trash": ["data/Trash/files", "data/zysetup/Trash"]}
        return " and ".join(place for place, folders in places.items() if self.stands_old_below(folders)) or NOTHING

    def stands_old_below(self, folders):
        contents = (content for folder in folders for content in contents_below(os.path.join(self.folder, folder)))
        return any(comparable(self.kind.name, content) == self.old[self.kind.name] for content in contents)

    def start_again(self):
        """Does what a user is told to do after a session that broke off, and says which list stands there then."""
        table, temporary = (os.path.join(self.settings(), name)
                            for name in (self.kind.name, (self.kind.leftovers or ["none"])[0]))
        if self.editor == "users" and os.path.exists(temporary):
            whole = self.standing()[1] in ("old", "new")
            if whole and not os.path.exists(table):
                os.rename(temporary, table)
            else:
                os.remove(temporary)
        status, printed = self.run(self.session())
        if status != 0 or "closed" not in printed:
            return f"status {status}, " + "; ".join(printed)
        return self.standing()[0] + (", restored" if "restored" in printed else "")


def comparable(name, content):
    return content[:1] + b"..." + content[4:] if name.upper().endswith((".DBF", ".TMP")) and content[:1] == b"\x03" else content


def contents_below(folder):
    for path, _, names in os.walk(folder):
        for name in names:
            with open(os.path.join(path, name), "rb") as file:
                yield file.read()


def step_after(calls):
    """The last step of these calls that was done, with how often it was done until then, or the cut one."""
    counts = collections.Counter()
    last = "nothing"
    for call in calls:
        if call.is_step() and call.result >= 0 and call.deed != "kill":
            counts[call.text] += 1
            last = call.text + (f" ({counts[call.text]})" if counts[call.text] > 1 else "")
            last = "half of " + last if call.deed == "cut" else last
    return last


def unsynced(calls):
    """The paths of files whose bytes nobody has asked to be on the disk."""
    paths = set()
    for call in calls:
        if call.result < 0 or call.deed == "kill":
            continue
        if call.name in ("write", "pwrite", "writev"):
            paths.add(call.path)
        elif call.name in ("fsync", "fdatasync", "unlink", "unlinkat"):
            paths.discard(call.path)
        elif call.name.startswith("rename") and call.path in paths:
            paths.discard(call.path)
            paths.add(call.other)
    return paths
