"""Runs the tests: once without a mutant to see which test reaches which, then each mutant against those."""

import os
import pathlib
import re
import resource
import signal
import subprocess
import tempfile
import time
from dataclasses import dataclass, field

most_memory = 4 << 30  # bytes of address space; a mutant may ask for any amount
most_written = 1 << 28  # bytes of one file
open_to_all = 0o1777  # for a folder, as a test that gives its rights up still has to reach its files


@dataclass
class Test:
    program: pathlib.Path
    name: str  # as GoogleTest knows it
    seconds: float = 0.1  # a guess, until it is measured
    reached: frozenset = field(default_factory=frozenset)


@dataclass
class Run:
    passed: bool
    seconds: float
    output: str
    in_time: bool = True

    def culprit(self):
        """The test that failed first, or the one that ran when the program broke off."""
        failed = re.search(r"^\[  FAILED  \] ([^\s,]+)", self.output, re.MULTILINE)
        begun = re.findall(r"^\[ RUN      \] (\S+)", self.output, re.MULTILINE)
        return failed[1] if failed else begun[-1] if begun else "?"


def limit():
    resource.setrlimit(resource.RLIMIT_AS, (most_memory, most_memory))
    resource.setrlimit(resource.RLIMIT_FSIZE, (most_written, most_written))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(program, arguments, environment, timeout):
    """One run of a test program in a temporary folder of its own; what it started ends with it."""
    with tempfile.TemporaryDirectory(prefix="tessaline_mutant.", ignore_cleanup_errors=True) as folder:
        os.chmod(folder, open_to_all)
        log = pathlib.Path(folder) / "log"
        surroundings = {**os.environ, "TMPDIR": folder, **environment}
        started = time.monotonic()
        with open(log, "wb") as out:
            child = subprocess.Popen(
                [program, *arguments], env=surroundings, stdout=out, stderr=subprocess.STDOUT,
                stdin=subprocess.DEVNULL, start_new_session=True, preexec_fn=limit,
            )  # fmt: skip
            try:
                status, in_time = child.wait(timeout), True
            except subprocess.TimeoutExpired:
                status, in_time = 1, False
            end_group(child)
        return Run(status == 0, time.monotonic() - started, log.read_text(errors="replace"), in_time)


def end_group(child):
    try:
        os.killpg(child.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    child.wait()


def listed_tests(program):
    listing = run(program, ["--gtest_list_tests"], {}, 60).output
    suite, tests = "", []
    for line in listing.splitlines():
        name = line.split("#")[0].strip()
        if line.startswith("  "):
            tests.append(Test(program, suite + name))
        elif name.endswith("."):
            suite = name
    return tests


def measure(test, places, folder):
    """Runs one test without a mutant and notes which mutants it reaches. Gives the run."""
    notes = pathlib.Path(folder) / str(id(test))
    notes.write_bytes(bytes(places))
    notes.chmod(0o666)
    done = run(test.program, [f"--gtest_filter={test.name}"], {"TESSALINE_MUTANT_REACH": str(notes)}, 120)
    test.seconds = done.seconds
    test.reached = frozenset(number for number, byte in enumerate(notes.read_bytes()) if byte)
    notes.unlink()
    return done


def judge(number, tests):
    """Runs a mutant against tests until one fails. Gives ("noticed" or "timeout", the test), or ("survived", "").

    The cheapest program goes first."""
    programs = {}
    for test in tests:
        programs.setdefault(test.program, []).append(test)
    for program, own in sorted(programs.items(), key=lambda item: sum(test.seconds for test in item[1])):
        done = run_filtered(program, own, {"TESSALINE_MUTANT": str(number)})
        if not done.passed:
            return ("noticed" if done.in_time else "timeout"), f"{program.name} {done.culprit()}"
    return ("survived" if tests else "never reached"), ""


def run_filtered(program, tests, environment):
    """The timeout is generous: what the tests took each by itself is far more than what they take together."""
    with tempfile.NamedTemporaryFile("w", prefix="tessaline_filter.") as flags:
        flags.write("--gtest_filter=" + ":".join(test.name for test in tests) + "\n")
        flags.flush()
        arguments = [f"--gtest_flagfile={flags.name}", "--gtest_fail_fast"]
        return run(program, arguments, environment, 20 + 2 * sum(test.seconds for test in tests))
