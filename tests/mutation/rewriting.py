"""Rewrites the text of one source so that it holds many mutants, of which a number switches on one.

Text is bytes throughout, since the places come from the compiler as offsets of bytes."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    """One change of the expression that lies from `start` up to `end` in the source `file`."""

    file: str  # from the root of the project
    line: int  # counted from 1
    start: int
    end: int
    changed: bytes  # the expression after the change; empty for a statement that is dropped
    cast: str = ""  # the type that both sides are turned into; empty where they share one
    frozen: int | None = None  # where a `constexpr` stands that has to go


@dataclass(frozen=True)
class Span:
    """Where a numbered mutant lies in the rewritten text."""

    number: int
    start: int
    end: int


def on_one_line(text):
    """The text without line ends, so that the lines of the source keep their numbers; None if a comment forbids it."""
    lines = [line.strip() for line in text.split(b"\n")]
    if any(b"//" in line for line in lines[:-1]):
        return None
    return b" ".join(lines)


def nested(numbered):
    """Pairs of (number, mutant) as a forest of (number, mutant, children), outer before inner.

    Of two that change the same expression, one is the child of the other."""
    roots, around = [], []
    for number, mutant in sorted(numbered, key=lambda pair: (pair[1].start, -pair[1].end, pair[0])):
        while around and around[-1][1].end <= mutant.start:
            around.pop()
        node = (number, mutant, [])
        (around[-1][2] if around else roots).append(node)
        around.append(node)
    return roots


def thawed(source, mutants):
    """The source with `const` for every `constexpr` that stands in the way of a mutant; no byte moves."""
    text = bytearray(source)
    for mutant in mutants:
        if mutant.frozen is not None:
            text[mutant.frozen : mutant.frozen + len(b"constexpr")] = b"const    "
    return bytes(text)


def rewritten(source, numbered):
    """The source with all mutants in place, and their spans in it.

    numbered: pairs of (number, mutant), whose offsets are those of `source`. Each expression becomes
    `(mutant_is(number) ? (changed) : (expression))`; mutants inside it are found in the last branch alone, because no
    two are ever switched on together. The lines keep their numbers."""
    out, spans = bytearray(), []
    text = thawed(source, [mutant for _, mutant in numbered])
    emit(text, 0, len(text), nested(numbered), out, spans)
    return bytes(out), sorted(spans, key=lambda span: span.start)


def emit(source, start, end, nodes, out, spans):
    for number, mutant, children in nodes:
        out += source[start : mutant.start]
        began = len(out)
        cast = f"static_cast<{mutant.cast}>".encode() if mutant.cast else b""
        out += b"(mutant_is(%d) ? %s(%s) : %s(" % (number, cast, mutant.changed or b"0", cast)
        emit(source, mutant.start, mutant.end, children, out, spans)
        out += b"))"
        spans.append(Span(number, began, len(out)))
        start = mutant.end
    out += source[start:end]


def blamed(text, spans, line, column):
    """The numbers of the mutants that a compiler's error is about: the innermost at that place, else all of the line.

    line, column: counted from 1, the column in bytes."""
    starts = [0]
    for row in text.split(b"\n"):
        starts.append(starts[-1] + len(row) + 1)
    if line >= len(starts):
        return []
    place = starts[line - 1] + column - 1
    holding = [span for span in spans if span.start <= place < span.end]
    if holding:
        return [min(holding, key=lambda span: span.end - span.start).number]
    return [span.number for span in spans if span.start < starts[line] and span.end > starts[line - 1]]


@dataclass(frozen=True)
class Shown:
    """A change as people read it: lines of the source joined by single spaces."""

    under: str  # the line above the change
    before: str
    after: str


def shown(source, mutant):
    """All lines that a mutant touches, as they are and as they become."""
    first = source.rfind(b"\n", 0, mutant.start) + 1
    last = source.find(b"\n", mutant.end)
    last = len(source) if last < 0 else last
    above = source[:first].rstrip().rsplit(b"\n", 1)[-1]
    after = source[first : mutant.start] + mutant.changed + source[mutant.end : last]
    return Shown(*(" ".join(text.decode().split()) for text in (above, source[first:last], after)))
