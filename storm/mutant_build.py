"""The test programs with one object of theirs exchanged, in a build of their own."""

import contextlib
import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess

from display import HERE

REPOSITORY = os.path.dirname(HERE)
FOLDER = os.path.join(REPOSITORY, "build/mutants")
SOURCE = os.path.join(FOLDER, "source")  # a copy: nothing is ever changed where somebody works
BUILD = os.path.join(SOURCE, "build/default")
WORK = os.path.join(FOLDER, "work")
UNDEBUGGED = ["-O0", "-g0", "-w"]
MOST_MEMORY = 4 << 30
PATIENCE = 20  # other programs may have the processor
SLOW = 0.2  # seconds; such cases come behind all others
KILLED, SURVIVED, HANGS, NOT_COMPILED = "killed", "survived", "hangs", "not compiled"


def copy_sources():
    """What git knows of, as it stands in the working tree. Files that are the same already keep their time."""
    names = subprocess.run(["git", "-C", REPOSITORY, "ls-files", "-z"], check=True, capture_output=True, text=True).stdout
    names = {name for name in names.split("\0") if os.path.isfile(os.path.join(REPOSITORY, name))}
    for folder, folders, files in os.walk(SOURCE):
        if folder == SOURCE and "build" in folders:
            folders.remove("build")
        for file in files:
            if os.path.relpath(os.path.join(folder, file), SOURCE) not in names:
                os.remove(os.path.join(folder, file))
    for name in names:
        copy_file(os.path.join(REPOSITORY, name), os.path.join(SOURCE, name))


def copy_file(source, target):
    if os.path.exists(target) and read_bytes(source) == read_bytes(target):
        return
    os.makedirs(os.path.dirname(target), exist_ok=True)
    shutil.copyfile(source, target)
    shutil.copymode(source, target)


def read_bytes(path):
    with open(path, "rb") as file:
        return file.read()


def run(command, folder, seconds):
    """The status; nothing when it took more of the processor's time, or waited for very much longer."""
    def limit():
        """What has gone wrong may not take the machine with it."""
        resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        resource.setrlimit(resource.RLIMIT_CPU, (int(seconds), int(seconds) + 1))

    surroundings = {**os.environ, "TMPDIR": os.path.join(WORK, "tmp"), "HOME": os.path.join(WORK, "home")}
    with subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          start_new_session=True, preexec_fn=limit, env=surroundings) as process:
        try:
            status = process.wait(PATIENCE * seconds)
            return None if status in (-signal.SIGXCPU, 128 + signal.SIGXCPU) else status
        except subprocess.TimeoutExpired:
            return None
        finally:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)


class TestProgram:
    """One of the programs of tests/, with the times of its cases as it stands."""

    def __init__(self, name):
        self.name = name
        self.folder = os.path.join(BUILD, "tests", name)
        self.path = os.path.join(self.folder, name + "_tests")
        self.times = os.path.join(FOLDER, "times", name + ".json")
        self.link = ["sh", "-c", self.link_command()]
        self.quick, self.slow, self.seconds = self.cases()

    def link_command(self):
        """Links it with the object of the mutant, which the linker takes before those of the libraries."""
        program = f"tests/{self.name}/{self.name}_tests"
        command = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", "-s", program], check=True, capture_output=True,
                                 text=True).stdout.splitlines()[-1]
        quick = " -fuse-ld=lld" if shutil.which("ld.lld") else ""
        mutant = shlex.quote(os.path.join(WORK, "mutant.o"))
        return command.replace(f" -o {program} ", f" {mutant} -o {shlex.quote(self.mutant())}{quick} -Wl,--strip-debug ")

    def mutant(self):
        return os.path.join(WORK, self.name + "_tests")

    def cases(self):
        """The names of the quick ones, of the slow ones, and how long all take. All have to pass."""
        if not os.path.exists(self.times) or os.path.getmtime(self.times) < os.path.getmtime(self.path):
            os.makedirs(os.path.dirname(self.times), exist_ok=True)
            self.measure()
        with open(self.times, encoding="utf-8") as file:
            suites = json.load(file)["testsuites"]
        times = {f"{case['classname']}.{case['name']}": float(case["time"][:-1]) for suite in suites for case in suite["testsuite"]}
        slow = sorted((name for name in times if times[name] > SLOW), key=times.get)
        return [name for name in times if name not in slow], slow, sum(times.values())

    def measure(self):
        if run([self.path, f"--gtest_output=json:{self.times}.new"], self.folder, 3600) != 0:
            raise RuntimeError(f"{self.name}_tests fails as it stands")
        os.replace(self.times + ".new", self.times)

    def judge(self):
        """What becomes of the mutant in this program."""
        if run(self.link, BUILD, 300) != 0:
            return NOT_COMPILED
        for chosen in ["-" + ":".join(self.slow)] + [":".join(self.slow)] * bool(self.slow):
            status = run([self.mutant(), "--gtest_brief=1", "--gtest_fail_fast", "--gtest_filter=" + chosen], self.folder,
                         10 + 5 * self.seconds)
            if status != 0:
                return HANGS if status is None else KILLED
        return SURVIVED


class Build:
    """The programs that are asked for, and how each source is compiled."""

    def __init__(self, names):
        shutil.rmtree(WORK, ignore_errors=True)
        for folder in ("tmp", "home"):
            os.makedirs(os.path.join(WORK, folder))
        copy_sources()
        settings = ["-DZY_DESKTOP=OFF", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"]
        self.call("cmake", "--preset", "default", *settings)
        self.call("ninja", "-C", BUILD, *(name + "_tests" for name in names))
        with open(os.path.join(BUILD, "compile_commands.json"), encoding="utf-8") as file:
            self.commands = {os.path.relpath(entry["file"], SOURCE): entry for entry in json.load(file)}
        self.programs = {name: TestProgram(name) for name in names}

    @staticmethod
    def call(*command):
        made = subprocess.run(command, cwd=SOURCE, capture_output=True, text=True, check=False)
        if made.returncode != 0:
            raise RuntimeError(f"{' '.join(command)} fails:\n{made.stdout}{made.stderr}")

    def compile(self, file, text):
        """Whether that text in the place of the file is C++. The object stands by itself then."""
        source = os.path.join(WORK, os.path.basename(file))
        with open(source, "w", encoding="latin-1") as out:
            out.write(text)
        command = shlex.split(self.commands[file]["command"])
        command[command.index("-o") + 1] = os.path.join(WORK, "mutant.o")
        command[command.index("-c") + 1] = source
        return run([*command, *UNDEBUGGED], BUILD, 300) == 0

    def judge(self, file, text, names):
        """What becomes of the program with that text in the place of the file, and the test program that says so."""
        if not self.compile(file, text):
            return NOT_COMPILED, ""
        for name in names:
            verdict = self.programs[name].judge()
            if verdict != SURVIVED:
                return verdict, name
        return SURVIVED, ""
