"""Makes the copy of the project that holds the mutants, and builds it. The tree itself is never written to."""

import json
import os
import pathlib
import re
import shlex
import subprocess

from rewriting import blamed, rewritten

rooms = ("tessaline", "qlw", "Vellane_Zyn", "skp_ruby")
room_libraries = ("tessaline_core", "qlw", "Vellane_Zyn", "skp_ruby", "tessaline")
test_programs = ("Vellane_Zyn_test", "skp_ruby_test", "qlw_test", "tessaline_test", "batch_test", "samples_test")

# A changed source is full of warnings, and of constants that are none any more.
compiler_flags = "-w -Wno-narrowing"


class Workshop:
    """The folder build/mutation of the project: `source` holds the copy, `build` what is made of it."""

    def __init__(self, root):
        self.root = pathlib.Path(root)
        self.folder = self.root / "build" / "mutation"
        self.source = self.folder / "source"
        self.build = self.folder / "build"

    def copy(self):
        """Brings every file of the tree over but the sources of the rooms, which only `write` changes."""
        listing = ["git", "ls-files", "-z", "-co", "--exclude-standard"]
        listed = subprocess.run(listing, cwd=self.root, check=True, capture_output=True, text=True).stdout
        names = {name for name in listed.split("\0") if name and (self.root / name).is_file()}
        for name in names:
            if not is_of_a_room(name) or not (self.source / name).exists():
                put(self.source / name, (self.root / name).read_bytes())
                (self.source / name).chmod((self.root / name).stat().st_mode)
        for path in self.source.rglob("*"):
            if path.is_file() and str(path.relative_to(self.source)) not in names:
                path.unlink()

    def configure(self):
        if (self.build / "build.ninja").exists():
            return
        options = ["-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -DNDEBUG"]
        options += [f"-DCMAKE_CXX_FLAGS={compiler_flags}", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"]
        options += ["-DTESSALINE_TESTS=ON", "-DTESSALINE_BENCH=OFF"]
        options += ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DCMAKE_C_COMPILER_LAUNCHER=ccache"]
        command = ["cmake", "-S", self.source, "-B", self.build, *options]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)

    def arguments(self):
        """What the compiler needs to read each source of the rooms, which are named from the root."""
        commands = json.loads((self.build / "compile_commands.json").read_text())
        found = {}
        for entry in commands:
            name = os.path.relpath(entry["file"], self.source)
            if is_of_a_room(name):
                words = shlex.split(entry["command"])
                found[name] = [word for word in words if word.startswith(("-I", "-D", "-std="))]
        return dict(sorted(found.items()))

    def write(self, originals, numbered):
        """Puts these (number, mutant) pairs into the copy. Gives the text and the spans of every source with some.

        originals: what each source of the rooms holds without a mutant."""
        written = {}
        for name, text in originals.items():
            own = [(number, mutant) for number, mutant in numbered if mutant.file == name]
            if own:
                text, spans = rewritten(text, own)
                written[name] = (text, spans)
                text = self.heading(name) + text
            put(self.source / name, text)
        return written

    def heading(self, name):
        header = self.source / "tests" / "mutation" / "mutant_is.h"
        return f'#include "{header}"\n#line 1 "{self.source / name}"\n'.encode()

    def make(self, targets):
        """Builds as far as it goes. Gives what the compiler said, or None if all is well."""
        done = subprocess.run(["ninja", "-C", self.build, "-k", "0", *targets], capture_output=True, text=True)
        return None if done.returncode == 0 else done.stdout + done.stderr

    def program(self, name):
        return self.build / "bin" / name


def is_of_a_room(name):
    return name.split("/")[0] in rooms and name.endswith(".cpp")


def put(path, content):
    """Writes a file unless it holds that already, so that nothing is compiled again for no reason."""
    if path.exists() and path.read_bytes() == content:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


def refused(said, written, numbered):
    """The numbers of the mutants that the compiler will not have.

    said: its messages by way of ninja. written: what Workshop.write gave. numbered: pairs of (number, mutant)."""
    numbers = set()
    for part in re.split(r"^FAILED: ", said, flags=re.MULTILINE)[1:]:
        found = re.match(r"(?:\S*/)??((?:" + "|".join(rooms) + r")\S*?)/CMakeFiles/[^/]+\.dir/(\S+)\.o", part)
        name = found and f"{found[1]}/{found[2]}"
        if name not in written:
            continue
        text, spans = written[name]
        places = re.findall(re.escape(name) + r":(\d+):(\d+): +(?:error|fatal error|required from)", part)
        guilty = {number for line, column in places for number in blamed(text, spans, int(line), int(column))}
        if not guilty:
            guilty = {number for number, mutant in numbered if mutant.file == name and mutant.frozen is not None}
        numbers |= guilty or {span.number for span in spans}
    return numbers


def build_drawn(workshop, originals, drawn, count, say):
    """Builds the first `count` of the drawn mutants that compile. Gives them as (number, mutant) pairs.

    originals: as for Workshop.write. drawn: mutants in the order of the draw; the number of each is its place in it."""
    dropped = set()
    while True:
        numbered = [(number, mutant) for number, mutant in enumerate(drawn) if number not in dropped][:count]
        written = workshop.write(originals, numbered)
        said = workshop.make(room_libraries)
        if said is None:
            return numbered
        wrong = refused(said, written, numbered)
        if not wrong:
            raise SystemExit(said)
        say(f"{len(wrong)} do not compile; drawing others for them")
        dropped |= wrong
