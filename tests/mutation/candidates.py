"""Finds what can be changed in a source: walks the syntax tree that clang makes of it."""

import re

from clang.cindex import CursorKind as Kind
from clang.cindex import Index, TranslationUnit, TypeKind

from rewriting import Mutant, on_one_line

other_operators = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "^": "|", "<<": ">>", ">>": "<<",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=", "&=": "|=",
}  # fmt: skip
of_any_type = {"<", "<=", ">", ">=", "==", "!=", "&&", "||"}
of_one_side = {"!": "", "-": "+", "~": "+", "++": "--", "--": "++"}

arithmetic = {
    TypeKind.BOOL, TypeKind.CHAR_U, TypeKind.UCHAR, TypeKind.USHORT, TypeKind.UINT, TypeKind.ULONG,
    TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.SHORT, TypeKind.INT, TypeKind.LONG,
    TypeKind.LONGLONG, TypeKind.FLOAT, TypeKind.DOUBLE,
}  # fmt: skip

with_two_sides = {Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.CALL_EXPR, Kind.UNEXPOSED_EXPR}
holding_statements = {
    Kind.COMPOUND_STMT, Kind.IF_STMT, Kind.FOR_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.WHILE_STMT, Kind.CASE_STMT,
    Kind.DEFAULT_STMT,
}  # fmt: skip
never_evaluated = {Kind.STATIC_ASSERT, Kind.CXX_UNARY_EXPR, Kind.ENUM_CONSTANT_DECL}


class Source:
    """One source under its name from the root of the project, with the candidates found so far."""

    def __init__(self, root, name, arguments):
        self.name = name
        self.text = (root / name).read_bytes()
        options = TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD
        self.unit = Index.create().parse(str(root / name), arguments, options=options)
        self.found = {}
        self.own = [cursor for cursor in self.unit.cursor.get_children() if self.has(cursor)]
        self.macros = [place(cursor) for cursor in self.own if cursor.kind == Kind.MACRO_INSTANTIATION]

    def has(self, cursor):
        """Whether this stands in the file itself, and not in one that it includes."""
        file = cursor.location.file
        return file is not None and file.name == self.unit.spelling

    def words(self, start, end):
        return self.text[start:end].decode(errors="replace")

    def add(self, cursor, edits, frozen, cast=""):
        """A mutant of the expression at the cursor. edits: (start, end, new text), in order, inside the expression."""
        start, end = place(cursor)
        if any(start < until and since < end for since, until in self.macros):
            return
        changed, at = b"", start
        for since, until, new in edits:
            changed += self.text[at:since] + new.encode()
            at = until
        changed = on_one_line(changed + self.text[at:end])
        if changed is None or end <= start:
            return
        line = self.text.count(b"\n", 0, start) + 1
        self.found.setdefault((start, end, changed), Mutant(self.name, line, start, end, changed, cast, frozen))


def place(cursor):
    return cursor.extent.start.offset, cursor.extent.end.offset


def candidates(root, name, arguments):
    """All mutants of a source, in the order of their places. arguments: what the compiler is called with."""
    source = Source(root, name, arguments)
    for cursor in source.own:
        visit(source, cursor, None, None)
    return [source.found[key] for key in sorted(source.found)]


def visit(source, cursor, parent, frozen):
    """frozen: where the word constexpr stands that would forbid a question at run time, if it does."""
    if cursor.kind in never_evaluated:
        return
    frozen = frozen_word(source, cursor) or frozen
    children = list(cursor.get_children())
    operator_of_two(source, cursor, children, frozen)
    operator_of_one(source, cursor, children, frozen)
    literal(source, cursor, parent, frozen)
    negated_condition(source, cursor, children, frozen)
    negated_result(source, cursor, children, frozen)
    dropped_statements(source, cursor, children, frozen)
    if cursor.kind == Kind.CASE_STMT:
        children = children[1:]
    for child in children:
        visit(source, child, cursor, frozen)


def frozen_word(source, cursor):
    if cursor.kind not in (Kind.VAR_DECL, Kind.FUNCTION_DECL):
        return None
    start = cursor.extent.start.offset
    word = re.search(rb"\bconstexpr\b", source.text[start:cursor.location.offset])
    return start + word.start() if word else None


def operator_of_two(source, cursor, children, frozen):
    if cursor.kind not in with_two_sides or len(children) not in (2, 3):
        return
    since, until = place(children[0])[1], place(children[-1])[0]
    operator = source.words(since, until).strip()
    if operator not in other_operators:
        return
    kind = cursor.type.get_canonical().kind
    pointer = kind == TypeKind.POINTER and operator in ("+", "-", "+=", "-=")
    if operator in of_any_type or kind in arithmetic or pointer:
        source.add(cursor, [(since, until, f" {other_operators[operator]} ")], frozen)


def operator_of_one(source, cursor, children, frozen):
    if cursor.kind != Kind.UNARY_OPERATOR or len(children) != 1:
        return
    start, end = place(cursor)
    inner_start, inner_end = place(children[0])
    before, after = source.words(start, inner_start).strip(), source.words(inner_end, end).strip()
    if before in of_one_side:
        source.add(cursor, [(start, inner_start, of_one_side[before])], frozen, "bool" if before == "!" else "")
    elif after in of_one_side:
        source.add(cursor, [(inner_end, end, of_one_side[after])], frozen)


def literal(source, cursor, parent, frozen):
    start, end = place(cursor)
    text = source.words(start, end)
    if is_part_of_a_type(source, start, end, parent):
        return
    for changed in other_literals(cursor.kind, text):
        source.add(cursor, [(start, end, changed)], frozen)


def is_part_of_a_type(source, start, end, parent):
    """Whether a literal is an argument of a template or the size of an array."""
    before, after = source.words(start - 1, start), source.words(end, end + 1)
    declared = parent is not None and parent.kind in (Kind.VAR_DECL, Kind.FIELD_DECL)
    return before == "<" or after == ">" or (before == "[" and declared)


def other_literals(kind, text):
    if kind == Kind.CXX_BOOL_LITERAL_EXPR:
        return {"true": ["false"], "false": ["true"]}.get(text, [])
    if kind == Kind.INTEGER_LITERAL:
        number = re.fullmatch(r"(0[xXbB][0-9a-fA-F']+|[0-9']+)([uUlLzZ]*)", text)
        return other_numbers(text, number[1] == "0", "0" + number[2]) if number else []
    if kind == Kind.FLOATING_LITERAL:
        number = re.fullmatch(r"([0-9.eE+-]+)([fFlL]?)", text)
        return other_numbers(text, float(number[1]) == 0, "0.0" + number[2]) if number else []
    if kind == Kind.CHARACTER_LITERAL:
        return ["'?'"] if text.startswith("'") and text != "'?'" else []
    if kind == Kind.STRING_LITERAL and re.match(r'R?"', text):
        ending = re.search(r"\w*$", text)[0]
        return [('"?"' if text.startswith('""') else '""') + ending]
    return []


def other_numbers(text, is_zero, zero):
    return [f"({text} + 1)"] if is_zero else [f"({text} + 1)", zero]


def negated_condition(source, cursor, children, frozen):
    condition = None
    if cursor.kind == Kind.CONDITIONAL_OPERATOR:
        condition = children[0]
    elif cursor.kind in (Kind.IF_STMT, Kind.WHILE_STMT):
        condition = next((c for c in children if c.kind.is_expression() and is_in_brackets(source, c)), None)
    if condition is not None:
        negated(source, condition, frozen)


def is_in_brackets(source, cursor):
    """Whether this is a whole condition: a variable declared in one ends in an expression that is a part of it."""
    start, end = place(cursor)
    return source.words(0, start).rstrip()[-1:] in "(;" and source.words(end, end + 200).lstrip()[:1] == ")"


def negated_result(source, cursor, children, frozen):
    if cursor.kind == Kind.RETURN_STMT and children and children[0].type.get_canonical().kind == TypeKind.BOOL:
        if children[0].kind != Kind.CXX_BOOL_LITERAL_EXPR:
            negated(source, children[0], frozen)


def negated(source, condition, frozen):
    start, end = place(condition)
    if not has_its_own_opposite(source, condition):
        source.add(condition, [(start, start, "!("), (end, end, ")")], frozen, "bool")


def has_its_own_opposite(source, cursor):
    """Whether another mutant negates this expression already: `!a`, `a == b` and `a != b` at its top."""
    while cursor.kind == Kind.UNEXPOSED_EXPR and len(children := list(cursor.get_children())) == 1:
        cursor = children[0]
    children = list(cursor.get_children())
    if cursor.kind == Kind.UNARY_OPERATOR:
        return source.text[cursor.extent.start.offset : cursor.extent.start.offset + 1] == b"!"
    if cursor.kind not in with_two_sides or len(children) not in (2, 3):
        return False
    return source.words(place(children[0])[1], place(children[-1])[0]).strip() in ("==", "!=")


def dropped_statements(source, cursor, children, frozen):
    """Calls and assignments that stand as statements."""
    if cursor.kind not in holding_statements:
        return
    for child in children:
        if source.words(child.extent.end.offset, child.extent.end.offset + 100).lstrip()[:1] != ";":
            continue
        if is_call_or_assignment(source, child):
            source.add(child, [(*place(child), "")], frozen, "void")


def is_call_or_assignment(source, cursor):
    if cursor.kind in (Kind.CALL_EXPR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.UNEXPOSED_EXPR):
        return True
    if cursor.kind != Kind.BINARY_OPERATOR:
        return False
    left, right = cursor.get_children()
    return source.words(place(left)[1], place(right)[0]).strip() == "="
