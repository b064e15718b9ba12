"""Which tests a source is found to hold, and what each of them is found to say."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import gtest_sources


def names(text):
    return [test.name for test in gtest_sources.tests_in(text)]


class TestsInASource(unittest.TestCase):
    def test_each_macro_gives_the_names_that_are_printed(self):
        rows = (
            ("TEST(Clip, Inside) {}", ["Clip.Inside"]),
            ("TEST_F(Clip,\n       Inside) {\n}", ["Clip.Inside"]),
            ("TEST_P(Kind, Draws) {}", []),
            (
                "TEST_P(Kind, Draws) {}\nINSTANTIATE_TEST_SUITE_P(All, Kind, Range(1, 12));",
                ["All/Kind.Draws/*"],
            ),
            (
                "INSTANTIATE_TEST_SUITE_P(A, Kind, Values(1));\n"
                "INSTANTIATE_TEST_SUITE_P(B, Kind, Values(2));\nTEST_P(Kind, Draws) {}",
                ["A/Kind.Draws/*", "B/Kind.Draws/*"],
            ),
            ("TEST_P(Kind, Draws) {}\nINSTANTIATE_TEST_SUITE_P(, Kind, Bool());", ["Kind.Draws/*"]),
            ("TEST_P(Kind, Draws) {}\nINSTANTIATE_TEST_SUITE_P(All, Other, Bool());", []),
            ("TEST(Clip, DISABLED_Inside) {}\nTEST(DISABLED_Clip, Outside) {}", []),
        )
        for text, found in rows:
            with self.subTest(text=text):
                self.assertEqual(found, names(text))

    def test_what_only_looks_like_a_test_is_none(self):
        rows = (
            "// TEST(Clip, Inside) {}",
            "// goes on \\\nTEST(Clip, Inside) {}",
            "/* TEST(Clip, Inside) {} */",
            'const char* text = "TEST(Clip, Inside) {}";',
            'const char* text = R"x(" TEST(Clip, Inside) {} )" )x";',
            "MY_TEST(Clip, Inside) {}",
            "TEST(Clip, Inside);",
        )
        for text in rows:
            with self.subTest(text=text):
                self.assertEqual([], names(text))

    def test_a_test_ends_with_its_last_brace(self):
        rows = (
            "if (a) { Call(); }",
            "char c = '}'; Call();",
            'Say("}"); Call();',
            'Say(R"(}")"); Call();',
            "int many = 20'000; char c = '}'; Call();",
            "Say(L'\\''); /* } */ Call();  // }",
            "rows[] = {{1, 2}, {3, 4}}; Call();",
        )
        for body in rows:
            with self.subTest(body=body):
                first, second = gtest_sources.tests_in(
                    f"TEST(A, First) {{ {body}\n}}\nTEST(A, Second) {{ Other(); }}"
                )
                self.assertTrue(first.mentions("Call"))
                self.assertFalse(first.mentions("Other"))
                self.assertTrue(second.mentions("Other"))

    def test_helpers_of_the_file_count_and_other_tests_do_not(self):
        text = """
            int Helper() { return Asked(); }
            TEST(A, First) { Call("Named"); }  // Remarked
            TEST(A, Second) { Helper(); }
        """
        first, second = gtest_sources.tests_in(text)
        for word, by_first, by_second in (
            ("Asked", True, True),
            ("Named", True, False),
            ("Name", False, False),
            ("Remarked", False, False),
            ("A", False, False),
        ):
            with self.subTest(word=word):
                self.assertEqual(by_first, first.mentions(word))
                self.assertEqual(by_second, second.mentions(word))

    def test_the_cases_of_a_test_have_one_general_name(self):
        rows = (
            ("Clip.Inside", "Clip.Inside"),
            ("All/Kind.Draws/7", "All/Kind.Draws/*"),
            ("All/Kind.Draws/north/east", "All/Kind.Draws/*"),
            ("All/Kind.Draws/*", "All/Kind.Draws/*"),
        )
        for name, general in rows:
            with self.subTest(name=name):
                self.assertEqual(general, gtest_sources.general_name(name))

    def test_only_sources_that_are_built_count(self):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder).resolve()
            (root / "draw").mkdir()
            for name in ("clip_test.cpp", "left_test.cpp", "off_test.cpp", "draw/mark_test.cpp"):
                (root / name).touch()
            (root / "draw/CMakeLists.txt").write_text(
                "tavix_test(draw_tests SOURCES mark_test.cpp ../clip_test.cpp gone_test.cpp)\n"
                "# ../off_test.cpp\n",
                encoding="utf-8",
            )
            self.assertEqual(
                [root / "clip_test.cpp", root / "draw/mark_test.cpp"],
                gtest_sources.built_sources(root),
            )


if __name__ == "__main__":
    unittest.main()
