#!/usr/bin/python3
"""Changes one operator, constant, condition or call of the program at a time and says which changes no test notices."""

import argparse
import concurrent.futures
import os
import pathlib
import pickle
import random
import sys
import tempfile
import time
import tomllib

from building import Workshop, build_drawn, test_programs
from candidates import candidates
from rewriting import shown
from running import judge, listed_tests, measure, open_to_all

left_over = ("survived", "never reached")
here = pathlib.Path(__file__).resolve().parent


def say(text):
    print(time.strftime("%H:%M:%S"), text, file=sys.stderr, flush=True)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, prog="./dev mutate")
    parser.add_argument("count", nargs="?", type=int, default=500, help="how many mutants (500)")
    parser.add_argument("seed", nargs="?", type=int, default=1, help="of the draw (1)")
    parser.add_argument("--only", metavar="NUMBERS", help="of the draw before, against all tests as they are")
    parser.add_argument("--jobs", type=int, default=2, help="test programs at a time (2)")
    return parser.parse_args()


def draw(workshop, count, seed):
    """Builds a draw. Gives the sources as they are and (number, mutant) pairs, and keeps both for --only."""
    say("looking for what can be changed")
    arguments = workshop.arguments()
    originals = {name: (workshop.root / name).read_bytes() for name in arguments}
    found = [one for name in arguments for one in candidates(workshop.root, name, arguments[name])]
    random.Random(seed).shuffle(found)
    say(f"{len(found)} candidates; building {count} of them")
    numbered = build_drawn(workshop, originals, found, count, say)
    (workshop.folder / "draw").write_bytes(pickle.dumps((originals, numbered)))
    return originals, numbered


def build_tests(workshop):
    say("building the tests")
    said = workshop.make(test_programs)
    if said is not None:
        raise SystemExit(said)
    return [test for name in test_programs for test in listed_tests(workshop.program(name))]


def measured(tests, places, jobs):
    """The tests that pass, with what each reaches. One that reads the sources as text may not."""
    say(f"running {len(tests)} tests without a mutant")
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        os.chmod(folder, open_to_all)
        runs = list(pool.map(lambda test: measure(test, places, folder), tests))
    for test, run in zip(tests, runs):
        if not run.passed:
            print(f"left out, because it fails without a mutant: {test.program.name} {test.name}\n{run.output}")
    return [test for test, run in zip(tests, runs) if run.passed]


def reason_of_equivalence(table, file, change):
    """Why the change shows in nothing, or None if the table does not say so."""
    for row in table:
        if (row["file"], row["before"], row["after"]) == (file, change.before, change.after):
            if row.get("under", change.under) == change.under:
                return row["why"]
    return None


def equivalents(originals):
    """The table of changes that show in nothing. Says which rows speak of lines that have changed since."""
    table = tomllib.loads((here / "equivalents.toml").read_text())["mutant"]
    texts = {name: " ".join(text.decode().split()) for name, text in originals.items()}
    for row in table:
        lines = f"{row['under']} {row['before']}" if "under" in row else row["before"]
        if lines not in texts.get(row["file"], ""):
            print(f"equivalents.toml: not in {row['file']} any more: {lines}")
    return table


def judged(originals, numbered, tests, reach_known, jobs):
    """Runs every mutant and prints what became of it. Gives the count of each outcome."""
    table = equivalents(originals)
    counts = {}

    def outcome(pair):
        number, mutant = pair
        change = shown(originals[mutant.file], mutant)
        verdict, by = judge(number, [test for test in tests if not reach_known or number in test.reached])
        if verdict in left_over and (reason := reason_of_equivalence(table, mutant.file, change)):
            verdict, by = "equivalent", reason
        return number, mutant, change, verdict, by

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for number, mutant, change, verdict, by in pool.map(outcome, numbered):
            counts[verdict] = counts.get(verdict, 0) + 1
            print(f"{number:5} {mutant.file}:{mutant.line} {verdict} {by}")
            print(f"      - {change.before}\n      + {change.after}", flush=True)
    return counts


def summary(counts):
    total = sum(counts.values())
    left = sum(counts.get(verdict, 0) for verdict in left_over)
    print(f"{total} mutants:", ", ".join(f"{count} {verdict}" for verdict, count in sorted(counts.items())))
    print(f"{100 * (total - left) / max(total, 1):.1f} % noticed or equivalent")


def main():
    asked = arguments()
    workshop = Workshop(here.parent.parent)
    workshop.copy()
    workshop.configure()
    if asked.only:
        chosen = {int(number) for number in asked.only.split(",")}
        originals, numbered = pickle.loads((workshop.folder / "draw").read_bytes())
        numbered = [pair for pair in numbered if pair[0] in chosen]
        tests = build_tests(workshop)
    else:
        originals, numbered = draw(workshop, asked.count, asked.seed)
        tests = measured(build_tests(workshop), 1 + max(number for number, _ in numbered), asked.jobs)
        say("running the mutants")
    summary(judged(originals, numbered, tests, not asked.only, asked.jobs))


if __name__ == "__main__":
    main()
