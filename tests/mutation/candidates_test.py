"""What can be changed in a source: each case is a few lines of C++ and every change of them."""

import pathlib
import tempfile
import unittest

try:
    from candidates import candidates
except ImportError:
    candidates = None


@unittest.skipIf(candidates is None, "the bindings of clang are missing: apt-get install python3-clang-14")
class Candidates(unittest.TestCase):
    def changes(self, source):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "a.cpp").write_text(source)
            text = source.encode()
            found = candidates(root, "a.cpp", ["-std=c++20"])
            return [(text[one.start : one.end].decode(), one.changed.decode()) for one in found]

    def test_a_comparison_moves_its_border_and_its_number(self):
        self.assertEqual(
            self.changes("bool f(int a) { return a < 7; }"),
            [("a < 7", "!(a < 7)"), ("a < 7", "a <= 7"), ("7", "(7 + 1)"), ("7", "0")],
        )

    def test_what_an_equality_becomes_is_its_negation_already(self):
        self.assertEqual(self.changes("bool f(int a, int b) { return a == b; }"), [("a == b", "a != b")])

    def test_a_condition_is_negated_and_a_call_left_out(self):
        self.assertEqual(
            self.changes("void g(); void f(bool a) { if (a) g(); }"),
            [("a", "!(a)"), ("g()", "")],
        )

    def test_an_assignment_is_left_out(self):
        self.assertEqual(self.changes("void f(int& a, int b) { a = b; }"), [("a = b", "")])

    def test_a_variable_declared_in_a_condition_is_left_alone(self):
        self.assertEqual(self.changes("void f(int* a) { if (int* b = a) *b = *a; }"), [("*b = *a", "")])

    def test_truths_texts_and_characters_are_replaced(self):
        self.assertEqual(
            self.changes('bool a = true; const char* b = "text"; char c = \'x\';'),
            [("true", "false"), ('"text"', '""'), ("'x'", "'?'")],
        )

    def test_what_the_compiler_evaluates_is_left_alone(self):
        source = "static_assert(1 < 2); enum { a = 3 }; char b[4]; unsigned long c = sizeof(5);"
        self.assertEqual(self.changes(source), [])

    def test_a_constant_says_which_word_freezes_it(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "a.cpp").write_text("int a; constexpr int b = 0;")
            self.assertEqual([one.frozen for one in candidates(root, "a.cpp", ["-std=c++20"])], [7])

    def test_a_macro_is_left_alone(self):
        self.assertEqual(self.changes("#define TWO 2\nint a = TWO;"), [])


if __name__ == "__main__":
    unittest.main()
