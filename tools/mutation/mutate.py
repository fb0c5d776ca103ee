"""What tools/mutate runs: see there. Works on a copy of the tree, in build/mutate."""
import itertools
import math
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
HOME = ROOT / "build/mutate"
TREE, BUILD, CLEAN, SCRATCH = HOME / "tree", HOME / "build", HOME / "clean", HOME / "scratch"
SURVIVORS = HOME / "survivors"

# The test programs in the order of a run that begins in no room in particular, with the rooms that they are about.
# The plain form of the effects is asked for by the environment.
PLAIN = {"MIRELLE_PLAIN_FX": "1"}
RUNS = [
    ("forms_tests", ["forms"], {}),
    ("forms_memory_tests", ["forms"], {}),
    ("keystrokes_tests", ["bridge"], {}),
    ("bridge_tests", ["bridge"], {}),
    ("library_tests", ["library"], {}),
    ("canvas_tests", ["canvas"], {}),
    ("app_tests", ["app"], {}),
    ("gradient_tests", ["gradient"], {}),
    ("fx_handler_tests", ["fx"], {}),
    ("driver_tests", [], {}),
    ("codecs_memory_tests", ["codecs"], {}),
    ("codecs_tests", ["codecs"], {}),
    ("fx_tests", ["fx"], {}),
    ("fx_tests", ["fx"], PLAIN),
]
ROOMS = ["forms", "app", "canvas", "library", "bridge", "fx", "gradient", "codecs"]

# Binary operators count where blanks part them from both sides, so that no template, pointer or sign is taken for one.
BINARY = {
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=",
    "!=": "==", "&&": "||", "||": "&&", "&": "|", "|": "&", "^": "&", "<<": ">>", ">>": "<<",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=", "&=": "|=", "<<=": ">>=", ">>=": "<<=",
}
WORDS = {"true": "false", "false": "true"}
STEPS = {"++": "--", "--": "++"}
TOKEN = re.compile(
    r"""(?P<skipped> ^[ \t]*\#(?:[^\n]*\\\n)*[^\n]* | //[^\n]* | /\*.*?\*/ |
                     R"(?P<mark>[^(]*)\(.*?\)(?P=mark)" | "(?:\\.|[^"\\\n])*" | operator\s*[^\s\w(]+ )
      | (?P<number> (?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][-+]?\d+)?)[uUlLfFzZ]* )
      | (?P<letter> '(?:\\.|[^'\\\n])+' )
      | (?P<word> [A-Za-z_]\w* )
      | (?P<sign> <=>|<<=|>>=|->|\+\+|--|&&|\|\||<<|>>|[-+*/%&|^<>=!]=|[-+*/%&|^<>!=] )""",
    re.VERBOSE | re.MULTILINE | re.DOTALL)

MEMORY = 4 << 30
LARGEST_FILE = 1 << 30
LONGEST_RUN = 600


def one_more(number):
    digits, suffix = re.fullmatch(r"(0[xX][0-9a-fA-F']+|[\d'.]+(?:[eE][-+]?\d+)?)(\w*)", number).groups()
    digits = digits.replace("'", "")
    if digits[:2] in ("0x", "0X"):
        return hex(int(digits, 16) + 1) + suffix
    if re.search(r"[.eE]", digits):
        return repr(float(digits) + 1) + suffix
    return str(int(digits) + 1) + suffix


def changed(text, token):
    """What stands in a token's place after the change; None where it is not to be changed."""
    old = token.group()
    if token["number"]:
        return one_more(old)
    if token["word"]:
        return WORDS.get(old)
    if token["sign"]:
        before, after = text[token.start() - 1:token.start()], text[token.end():token.end() + 1]
        if old in BINARY and before in (" ", "\n") and after in (" ", "\n"):
            return BINARY[old]
        if old == "!" and not after.isspace():
            return ""
        return STEPS.get(old)
    return None


class Change:
    """One token of a file of the tree and what is to stand in its place."""

    def __init__(self, path, text, start, old, new):
        self.path, self.start, self.old, self.new = path, start, old, new
        self.number = text.count("\n", 0, start) + 1
        begin = text.rfind("\n", 0, start) + 1
        self.column = start - begin
        self.line = text[begin:].split("\n", 1)[0]

    def __str__(self):
        return f"{self.path}:{self.number}:{self.column + 1}: '{self.old}' -> '{self.new}' in: {self.line.strip()}"

    def key(self):
        """What finds it again when the file has changed elsewhere."""
        return f"{self.path}\t{self.line}\t{self.column}"

    def apply(self):
        file = TREE / self.path
        text = file.read_text()
        file.write_text(text[:self.start] + self.new + text[self.start + len(self.old):])


def changes_of(path):
    text = (TREE / path).read_text()
    for token in TOKEN.finditer(text):
        new = changed(text, token)
        if new is not None:
            yield Change(path, text, token.start(), token.group(), new)


def all_changes():
    files = [file.relative_to(TREE) for room in ROOMS for file in sorted((TREE / room).rglob("*"))
             if file.suffix in (".cpp", ".h")]
    return [change for path in files for change in changes_of(path)]


def call(*command, **options):
    return subprocess.run([str(word) for word in command], check=False, stdout=subprocess.DEVNULL, **options)


def files_below(folder):
    return {file.relative_to(folder) for file in folder.rglob("*") if file.is_file() or file.is_symlink()}


def same_time_and_size(one, other):
    a, b = one.stat(), other.stat()
    return (a.st_mtime_ns, a.st_size) == (b.st_mtime_ns, b.st_size)


def mirror(source, goal, same=same_time_and_size, copy=shutil.copy2):
    """Makes the folder goal hold what source holds, and writes only what is not the same there."""
    wanted = files_below(source)
    for name in files_below(goal) - wanted:
        (goal / name).unlink()
    for name in wanted:
        if not (goal / name).exists() or not same(source / name, goal / name):
            (goal / name).parent.mkdir(parents=True, exist_ok=True)
            copy(source / name, goal / name)


def copy_tree():
    """The sources as they stand, the uncommitted too. What is written anew gets the present time, and so is built."""
    def same(one, other):
        return one.read_bytes() == other.read_bytes() and one.stat().st_mode == other.stat().st_mode

    def copy(one, other):
        shutil.copy(one, other)

    TREE.mkdir(parents=True, exist_ok=True)
    for name in [*ROOMS, "cmake", "desktop", "tests", "tools", "Support"]:
        mirror(ROOT / name, TREE / name, same, copy)
    for name in ["CMakeLists.txt", "README.md"]:
        shutil.copy2(ROOT / name, TREE / name)


def configure():
    """Built for nothing but speed: unoptimised, without what a debugger wants, by the fast linker."""
    call("cmake", "-S", TREE, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
         "-DCMAKE_CXX_FLAGS=-w -fmax-errors=1", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold",
         "-DCMAKE_CXX_COMPILER_LAUNCHER=", "-DMIRELLE_DESKTOP=OFF",
         "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST").check_returncode()


def build(programs, show=None):
    return call("ninja", "-j", os.cpu_count(), "-C", BUILD, *dict.fromkeys(programs), stderr=show).returncode == 0


def program_of(name):
    return next(file for file in (BUILD / "tests").rglob(name) if file.is_file())


def confine(seconds):
    os.setsid()
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE, LARGEST_FILE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def passes(run, seconds):
    """Whether a test program passes within that time of the processor, and does not sleep for good."""
    name, _, environment = run
    arguments = ["--gtest_fail_fast", "--gtest_brief=1"]
    if environment == PLAIN:
        arguments.append("--gtest_filter=IMFXModule1Test.*:ContrastTest.*")
    shutil.rmtree(SCRATCH, ignore_errors=True)
    SCRATCH.mkdir()
    process = subprocess.Popen([str(program_of(name)), *arguments], cwd=SCRATCH, preexec_fn=lambda: confine(seconds),
                               env={**os.environ, **environment, "TMPDIR": str(SCRATCH)}, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        return process.wait(60 + 30 * seconds) == 0
    except subprocess.TimeoutExpired:
        return False
    finally:
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def seconds_of_children():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def prepare():
    """The copy, built and passing, and how long each run may take."""
    HOME.mkdir(parents=True, exist_ok=True)
    if CLEAN.exists():
        mirror(CLEAN, BUILD)
    copy_tree()
    configure()
    print("Building the tests ...", flush=True)
    if not build([name for name, _, _ in RUNS], sys.stderr):
        sys.exit("the tests do not build as they are")
    seconds = []
    for run in RUNS:
        before = seconds_of_children()
        if not passes(run, LONGEST_RUN):
            sys.exit(f"{run[0]} does not pass as it is")
        seconds.append(math.ceil(10 + 3 * (seconds_of_children() - before)))
    new = HOME / "clean.new"
    shutil.rmtree(new, ignore_errors=True)
    if CLEAN.exists():
        CLEAN.rename(new)
    else:
        new.mkdir()
    mirror(BUILD, new)
    new.rename(CLEAN)
    return seconds


def has_changed(name):
    program = program_of(name)
    return not same_time_and_size(program, CLEAN / program.relative_to(BUILD))


def killer_of(change, seconds):
    """The test program that fails; "" where none does, None where the change does not compile."""
    room = change.path.parts[0]
    own = [run for run in zip(RUNS, seconds) if room in run[0][1]]
    others = [run for run in zip(RUNS, seconds) if room not in run[0][1]]
    for part in (own, others):
        if not build([run[0] for run, _ in part], subprocess.DEVNULL):
            return None
        for run, limit in part:
            if has_changed(run[0]) and not passes(run, limit):
                return run[0]
    return ""


def attempt(change, seconds):
    file = TREE / change.path
    text, times = file.read_text(), (file.stat().st_atime_ns, file.stat().st_mtime_ns)
    try:
        change.apply()
        return killer_of(change, seconds)
    finally:
        file.write_text(text)
        os.utime(file, ns=times)
        mirror(CLEAN, BUILD)


def costs(change):
    """What nearly everything includes is tried last, so that a run that is broken off has told most."""
    return change.path.suffix == ".h" and change.path.parts[0] in ("forms", "app")


def try_all(changes, places, seconds):
    """Tells what has become of each; a run that is broken off ends with what it has so far."""
    killed, survived, unbuilt = 0, [], 0
    rest = iter(changes)
    try:
        while batch := list(itertools.islice(rest, places - killed - len(survived))):
            for change in sorted(batch, key=costs):
                killer = attempt(change, seconds)
                if killer is None:
                    unbuilt += 1
                elif killer:
                    killed += 1
                    print(f"killed   {change}  [{killer}]", flush=True)
                else:
                    survived.append(change)
                    print(f"SURVIVED {change}", flush=True)
    except KeyboardInterrupt:
        print("\nbroken off")
    tried = killed + len(survived)
    print(f"\n{killed} of {tried} changes killed ({100 * killed / max(tried, 1):.1f}%), {len(survived)} survived; "
          f"{unbuilt} more did not compile")
    for change in survived:
        print(f"  {change}")
    SURVIVORS.write_text("".join(change.key() + "\n" for change in survived))


def break_off(*_):
    raise KeyboardInterrupt


def main():
    signal.signal(signal.SIGTERM, break_off)
    again = sys.argv[1:] == ["--again"]
    numbers = [] if again else [int(word) for word in sys.argv[1:]]
    places, seed = (numbers + [200, 1][len(numbers):])[:2]
    seconds = prepare()
    changes = all_changes()
    if again:
        wanted = set(SURVIVORS.read_text().splitlines())
        changes = [change for change in changes if change.key() in wanted]
        places = len(changes)
    else:
        print(f"{len(changes)} places, seed {seed}", flush=True)
        random.Random(seed).shuffle(changes)
    try_all(changes, places, seconds)


if __name__ == "__main__":
    main()
