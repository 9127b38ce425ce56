#!/usr/bin/env python3
"""Shows what the tests notice: breaks lines of src/ one by one and runs the tests of their folder.

  tools/break_lines.py                       300 lines, drawn with seed 1
  tools/break_lines.py --lines 50 --seed 7 --folders src/food src/days

The lines are drawn from every line that can be broken (breaks.py says how), so that a long file
gives more of them. Work goes on in a copy of the tree; the checkout is only read. Breaks that one
line can hold beside its sound form are built all at once and chosen by a variable of the
environment; each of the others is built for itself. A break counts as noticed when a test fails,
crashes or runs far longer than it should. What survives is printed as a change, to be judged by a
reader: either a test is missing, or nothing that anyone can see has changed.
"""
import argparse
import os
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path

from breaks import breaks_of, switched

VARIABLE = "KELVORA_BROKEN_LINE"
# What a broken line leaves unused or converts is no reason not to compile it.
HARMLESS = ("pragmas", "unknown-warning-option", "unused-variable", "unused-function",
            "unused-parameter", "unused-but-set-variable", "unused-value", "conversion", "float-conversion", "sign-compare", "type-limits",
            "empty-body", "return-type", "div-by-zero", "tautological-compare", "bool-compare",
            "int-in-bool-context", "parentheses", "logical-op", "array-bounds", "nonnull",
            "unused-but-set-parameter", "maybe-uninitialized", "uninitialized", "switch")
SWITCH = "".join(f'#pragma GCC diagnostic ignored "-W{name}"\n' for name in HARMLESS) + f"""
#include <cstdlib>
namespace kelvora_broken {{
inline bool IsBroken(int number) {{
  static const char* const chosen = std::getenv("{VARIABLE}");
  static const int broken = chosen == nullptr ? 0 : std::atoi(chosen);
  return broken == number;
}}
}}
"""
MEMORY = 6 << 30
FILE_SIZE = 256 << 20


@dataclass
class Change:
    """One broken line."""
    path: str
    line: int  # from 1
    kind: str
    old: str
    new: str
    noticed_by: str = ""

    def __str__(self):
        place = f"{self.path}:{self.line}: {self.kind}"
        return f"{place}\n  - {self.old.strip()}\n  + {self.new.strip()}"


@dataclass
class Step:
    """A run of tests: a command, and how long it took when nothing was broken."""
    command: list[str]
    seconds: float = 0.0


@dataclass
class Project:
    """A tree that can be built and tested. `steps` gives the runs of tests for a file, in order."""
    root: Path
    build: list[str]
    steps: callable
    environment: dict = field(default_factory=dict)

    def read(self, path):
        return (self.root / path).read_text().split("\n")

    def write(self, path, lines):
        (self.root / path).write_text("\n".join(lines))

    def made(self):
        """Whether the tree builds, and what the compiler said."""
        done = subprocess.run(self.build, cwd=self.root, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)
        return done.returncode == 0, done.stdout

    def run(self, step, number=0):
        """None if the tests pass, else what was noticed."""
        limit = 30 + 10 * step.seconds

        def confine():
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        with tempfile.TemporaryDirectory(prefix="break_lines_") as home:
            os.chmod(home, 0o755)  # some tests read it as another user
            environment = {**os.environ, **self.environment, "HOME": home, "TMPDIR": home,
                           "XDG_RUNTIME_DIR": home}
            if number:
                environment[VARIABLE] = str(number)
            try:
                done = subprocess.run(step.command, cwd=home, env=environment, text=True,
                                      errors="replace", stdin=subprocess.DEVNULL,
                                      stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                      timeout=limit, preexec_fn=confine)
            except subprocess.TimeoutExpired:
                return "ran too long"
        if done.returncode == 0:
            return None
        failed = re.search(r"\[  FAILED  \] (\S+)", done.stdout)
        return failed.group(1) if failed else f"ended with {done.returncode}"


def candidates(root: Path, folders):
    """Every line that can be broken, with the ways to do it."""
    found = []
    for folder in folders:
        for path in sorted((root / folder).rglob("*.cpp")):
            name = path.relative_to(root).as_posix()
            for number, line in enumerate(path.read_text().split("\n"), 1):
                if ways := breaks_of(line):
                    found.append((name, number, line, ways))
    return found


def drawn(root, folders, seed):
    """All candidates as changes in an order that the seed decides, one change a line."""
    chance = random.Random(seed)
    lines = candidates(root, folders)
    chance.shuffle(lines)
    for path, number, line, ways in lines:
        kind = chance.choice(sorted({way.kind for way in ways}))
        way = chance.choice([way for way in ways if way.kind == kind])
        yield Change(path, number, way.kind, line, way.line)


def with_switch(project, lines):
    """The lines with what they need before them; their numbers stay."""
    switch = project.root / "broken_lines.h"
    if not switch.exists():
        switch.write_text(SWITCH)
    return [f'#include "{switch}"\n#line 1\n' + lines[0], *lines[1:]]


def write_switched(project, sound, changes):
    """Writes the files with every change in `changes` (by number) beside its sound line."""
    for path, lines in sound.items():
        lines = list(lines)
        inside = False
        for number, change in changes.items():
            if change.path == path:
                inside = True
                lines[change.line - 1] = switched(
                    change.old, change.new, f"kelvora_broken::IsBroken({number})")
        project.write(path, with_switch(project, lines) if inside else lines)


def build_switched(project, sound, changes):
    """Builds as many changes as compile side by side; gives those back that do not."""
    left = {}
    while True:
        write_switched(project, sound, changes)
        made, said = project.made()
        if made:
            return left
        wrong = set()
        for path in {change.path for change in changes.values()}:
            lines = {int(found) for found in
                     re.findall(rf"{re.escape(path)}:(\d+):\d+: (?:fatal )?error", said)}
            here = {n for n, change in changes.items() if change.path == path}
            if lines:
                wrong |= {n for n in here if changes[n].line in lines} or here
        if not wrong:
            sys.exit("The tree does not build:\n" + said[-4000:])
        for number in wrong:
            left[number] = changes.pop(number)


def judge(project, change, number=0):
    for step in project.steps(change.path):
        if seen := project.run(step, number):
            change.noticed_by = seen
            return


def tell(change, count, total):
    print(f"[{count}/{total}] {change.path}:{change.line} {change.kind}: "
          f"{change.noticed_by or 'SURVIVED'}", file=sys.stderr, flush=True)


def break_lines(project, folders, wanted, seed, jobs):
    """The list of changes that were tried; those of one build are judged `jobs` at a time."""
    order = drawn(project.root, folders, seed)
    chosen = dict(enumerate((change for change, _ in zip(order, range(wanted))), 1))
    sound = {change.path: project.read(change.path) for change in chosen.values()}
    changes = {n: c for n, c in chosen.items() if switched(c.old, c.new, "true")}
    alone = {n: c for n, c in chosen.items() if n not in changes}
    alone |= build_switched(project, sound, changes)
    done = []

    def judged(item):
        judge(project, item[1], item[0])
        done.append(item[1])
        tell(item[1], len(done), wanted)

    with ThreadPoolExecutor(jobs) as pool:
        list(pool.map(judged, sorted(changes.items(), key=lambda item: item[1].path)))
    for path, lines in sound.items():
        project.write(path, lines)
    waiting = sorted(alone.values(), key=lambda change: change.path)
    while len(done) < wanted:
        change = waiting.pop(0) if waiting else next(order, None)
        if change is None:
            break
        lines = project.read(change.path)
        broken = lines[:change.line - 1] + [change.new] + lines[change.line:]
        project.write(change.path, with_switch(project, broken))
        made, _ = project.made()
        if made:
            judge(project, change)
            done.append(change)
            tell(change, len(done), wanted)
        project.write(change.path, lines)
    return done


def report(done):
    survivors = [change for change in done if not change.noticed_by]
    lines = [f"{len(done)} lines broken, {len(done) - len(survivors)} noticed"]
    for folder in sorted({"/".join(change.path.split("/")[:2]) for change in done}):
        here = [change for change in done if change.path.startswith(folder + "/")]
        seen = sum(bool(change.noticed_by) for change in here)
        lines.append(f"  {folder}: {seen} of {len(here)}")
    return "\n".join(lines + [""] + [str(change) for change in survivors])


WINDOW = re.compile(r"_(window|dialog|panel)\.cpp$")


def suites_of(path):
    found = sorted(set(re.findall(r"^TEST(?:_F|_P)?\(\s*(\w+)\s*,", path.read_text(), re.M)))
    return [name for suite in found for name in (f"{suite}.*", f"*/{suite}.*")]


class KelvoraSteps:
    """Which tests concern a file: its own test first, then its folder's, then the windows'."""

    def __init__(self, root):
        self.root, self.known = root, {}
        self.programs = root / "build/broken/tests"

    def step(self, program, suites):
        if not suites:
            return []
        command = [str(self.programs / program), "--gtest_filter=" + ":".join(suites),
                   "--gtest_fail_fast", "--gtest_brief=1"]
        return [self.known.setdefault(tuple(command), Step(command))]

    def included(self, file):
        """The headers of src/ that a test file includes, itself or through a header of the tests."""
        found = set(re.findall(r'#include "([^"]+)"', file.read_text()))
        for name in list(found):
            if (helper := self.root / "tests" / name).is_file():
                found |= set(re.findall(r'#include "([^"]+)"', helper.read_text()))
        return found

    def __call__(self, path):
        folder = path.split("/")[1]
        stem = re.sub(WINDOW, "", path).rsplit("/")[-1].removesuffix(".cpp")

        def steps(program, files):
            near = [file for file in files if file.name.startswith(stem)]
            return [step for some in (near, files)
                    for step in self.step(program, [s for file in some for s in suites_of(file)])]

        tests = self.root / "tests"
        shown = steps("window_tests",
                      [file for file in sorted((tests / "windows").glob("*_test.cpp"))
                       if any(name.startswith(f"{folder}/") for name in self.included(file))])
        if WINDOW.search(path):
            return shown
        return steps("logic_tests", sorted((tests / folder).rglob("*_test.cpp"))) + shown


def kelvora(checkout, work):
    """A copy of the tree below `work`; its sound objects are those of the preset dev."""
    root = work / "tree"
    root.mkdir(parents=True, exist_ok=True)
    names = subprocess.run(["git", "ls-files"], cwd=checkout, text=True, check=True,
                           stdout=subprocess.PIPE).stdout.split("\n")
    for name in filter(None, names):
        target, source = root / name, checkout / name
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.exists() or target.read_bytes() != source.read_bytes():
            shutil.copy(source, target)
    for old in [*(root / "src").rglob("*.cpp"), *(root / "tests").rglob("*.cpp")]:
        if not (checkout / old.relative_to(root)).exists():
            old.unlink()
    build = root / "build/broken"
    subprocess.run(["cmake", "--preset", "dev", "-B", build, "--log-level=WARNING"], cwd=root,
                   check=True, stdout=subprocess.DEVNULL)
    steps = KelvoraSteps(root)
    return Project(root, ["cmake", "--build", build, "--target", "logic_tests", "window_tests",
                          "--", "-k0"], steps, {"QT_QPA_PLATFORM": "offscreen"})


def check_sound(project, paths):
    """Ends the program unless everything passes as it stands; notes how long it takes."""
    made, said = project.made()
    if not made:
        sys.exit("The tree does not build:\n" + said[-4000:])
    for step in {id(step): step for path in paths for step in project.steps(path)}.values():
        begun = time.monotonic()
        if seen := project.run(Step(step.command, 60)):
            sys.exit(f"Nothing is broken, but {seen}: {' '.join(step.command)}")
        step.seconds = time.monotonic() - begun


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--lines", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--folders", nargs="+",
                        default=["src/food", "src/days", "src/storage", "src/core"])
    parser.add_argument("--jobs", type=int, default=1,
                        help="runs of tests at a time; 1 if absent")
    parser.add_argument("--work", type=Path,
                        help="where the copy lies, and stays; a temporary folder if absent")
    options = parser.parse_args()
    checkout = Path(__file__).resolve().parent.parent
    with tempfile.TemporaryDirectory(prefix="break_lines_") as temporary:
        project = kelvora(checkout, (options.work or Path(temporary)).resolve())
        paths = {path for path, *_ in candidates(project.root, options.folders)}
        check_sound(project, sorted(paths))
        print(report(break_lines(project, options.folders, options.lines, options.seed,
                                 options.jobs)))


if __name__ == "__main__":
    main()
