"""What a source becomes with mutants in it. Expected texts are written out by hand."""

import unittest

from rewriting import Mutant, Shown, blamed, on_one_line, rewritten, shown


def mutant(source, part, changed, **more):
    start = source.index(part)
    return Mutant("a.cpp", 1, start, start + len(part), changed, **more)


class Rewriting(unittest.TestCase):
    def test_an_expression_becomes_a_choice(self):
        source = b"return a < b;"
        text, spans = rewritten(source, [(7, mutant(source, b"a < b", b"a <= b"))])
        self.assertEqual(text, b"return (mutant_is(7) ? (a <= b) : (a < b));")
        self.assertEqual([(spans[0].number, spans[0].start, spans[0].end)], [(7, 7, 42)])

    def test_a_dropped_statement_becomes_a_choice_of_nothing(self):
        source = b"stop();"
        text, _ = rewritten(source, [(0, mutant(source, b"stop()", b"", cast="void"))])
        self.assertEqual(text, b"(mutant_is(0) ? static_cast<void>(0) : static_cast<void>(stop()));")

    def test_an_inner_mutant_stands_in_the_branch_that_is_as_written(self):
        source = b"a + 2"
        outer, inner = mutant(source, b"a + 2", b"a - 2"), mutant(source, b"2", b"0")
        text, _ = rewritten(source, [(1, inner), (2, outer)])
        self.assertEqual(text, b"(mutant_is(2) ? (a - 2) : (a + (mutant_is(1) ? (0) : (2))))")

    def test_two_mutants_of_one_expression_are_both_there(self):
        source = b"5"
        text, _ = rewritten(source, [(1, mutant(source, b"5", b"5 + 1")), (2, mutant(source, b"5", b"0"))])
        self.assertEqual(text, b"(mutant_is(1) ? (5 + 1) : ((mutant_is(2) ? (0) : (5))))")

    def test_a_constant_in_the_way_of_a_mutant_is_no_constant_expression_any_more(self):
        source = b"constexpr int a = 1; constexpr int b = 2;"
        text, _ = rewritten(source, [(3, mutant(source, b"2", b"0", frozen=21))])
        self.assertEqual(text, b"constexpr int a = 1; const     int b = (mutant_is(3) ? (0) : (2));")

    def test_lines_keep_their_numbers(self):
        source = b"a &&\n    b;\nlast"
        text, _ = rewritten(source, [(3, mutant(source, b"a &&\n    b", on_one_line(b"a ||\n    b")))])
        self.assertEqual(text, b"(mutant_is(3) ? (a || b) : (a &&\n    b));\nlast")

    def test_no_line_is_made_of_text_with_a_comment_in_it(self):
        self.assertIsNone(on_one_line(b"a && // both\n b"))


class Blame(unittest.TestCase):
    source = b"x = a + 2;\nstop();"
    text, spans = rewritten(source, [
        (1, mutant(source, b"2", b"0")), (2, mutant(source, b"a + 2", b"a - 2")),
        (3, mutant(source, b"stop()", b"", cast="void")),
    ])  # fmt: skip

    def test_the_innermost_mutant_at_the_place_of_the_error_is_to_blame(self):
        self.assertEqual(self.text[36:48], b"mutant_is(1)")
        self.assertEqual(blamed(self.text, self.spans, 1, 47), [1])

    def test_outside_of_the_inner_one_it_is_the_outer_one(self):
        self.assertEqual(blamed(self.text, self.spans, 1, 5), [2])

    def test_elsewhere_on_the_line_it_may_be_any_of_the_line(self):
        self.assertEqual(blamed(self.text, self.spans, 1, 1), [2, 1])

    def test_a_line_without_mutants_blames_none(self):
        self.assertEqual(blamed(self.text + b"\nend", self.spans, 3, 1), [])


class Report(unittest.TestCase):
    def test_all_lines_of_a_mutant_are_shown_as_one(self):
        source = b"first\n  if (a &&\n      b)\nlast"
        change = mutant(source, b"a &&\n      b", b"a || b")
        self.assertEqual(shown(source, change), Shown("first", "if (a && b)", "if (a || b)"))


if __name__ == "__main__":
    unittest.main()
