"""How the declarations of other languages are made from the header."""

import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bindings"))

import make_bindings
from description import OUTPUT, TEXT_OUTPUT, parse_header, read_header
from writers import c_layer, csharp, flat, go, javascript, pascal, python_ctypes
from writers.wording import LAYER_CODES

HEADER = """
#define TAVIX_VERSION_MAJOR 3
#define TAVIX_VERSION_MINOR 1
#define TAVIX_VERSION_PATCH 4
// ---- Fixed values ----

// Of one.
inline constexpr int kTavixOneValue = 20;

// Of two; see kTavixOneValue.
inline constexpr double kTavixLeft = 0.5;  // half
inline constexpr double kTavixRight = -2;

extern "C" {
// ---- First ----
//
// Of the family.

// Of the call; see Tavix_Two and kTavixOneValue of the current instance.
TAVIX_CALL int Tavix_One(int key, CString* name,
                         double* x);

// ---- Second ----

TAVIX_CALL CWnd* Tavix_Two(void);
TAVIX_CALL void Tavix_SetIdx(int index);
}  // extern "C"
"""


class Description(unittest.TestCase):
    def setUp(self):
        self.description = parse_header(HEADER)

    def test_families_keep_their_order_calls_and_comments(self):
        first, second = self.description.families
        self.assertEqual((3, 1, 4), self.description.version)
        self.assertEqual("First", first.title)
        self.assertEqual(["Of the family."], [line for line in first.comment if line])
        self.assertEqual(["One"], [call.name for call in first.calls])
        self.assertEqual(["Two", "SetIdx"], [call.name for call in second.calls])

    def test_a_call_over_two_lines_keeps_its_parameters(self):
        call = self.description.calls[0]
        self.assertEqual(["key", "name", "x"], [p.name for p in call.parameters])
        self.assertEqual([TEXT_OUTPUT, OUTPUT], [p.kind for p in call.outputs])
        self.assertEqual("window", self.description.calls[1].result)

    def test_an_unknown_type_is_refused_with_its_words(self):
        broken = HEADER.replace("double* x", "float* x")
        with self.assertRaisesRegex(ValueError, "float\\* x"):
            parse_header(broken)

    def test_a_call_of_another_prefix_is_refused(self):
        with self.assertRaisesRegex(ValueError, "Other_One"):
            parse_header(HEADER.replace("Tavix_One", "Other_One"))


class Constants(unittest.TestCase):
    def setUp(self):
        self.description = parse_header(HEADER)

    def test_those_below_one_comment_are_a_group(self):
        one, two = self.description.constants
        self.assertEqual(["Of one."], one.comment)
        self.assertEqual([("OneValue", "int", "20", "")],
                         [(c.name, c.type, c.value, c.note) for c in one.constants])
        self.assertEqual([("Left", "double", "0.5", "half"), ("Right", "double", "-2", "")],
                         [(c.name, c.type, c.value, c.note) for c in two.constants])

    def test_one_of_another_form_is_refused_with_its_words(self):
        with self.assertRaisesRegex(ValueError, "constexpr long kTavixOneValue"):
            parse_header(HEADER.replace("int kTavixOneValue", "long kTavixOneValue"))

    def test_each_language_spells_them_in_its_manner(self):
        for write, one, right in (
                (lambda d: c_layer.header(d, "@CONSTANTS@"),
                 "#define TAVIX_C_ONE_VALUE 20", "#define TAVIX_C_RIGHT (-2)"),
                (csharp.declarations, "public const int OneValue = 20;",
                 "public const double Right = -2;"),
                (go.declarations, "\tOneValue = 20", "\tRight = -2"),
                (javascript.declarations, "  ONE_VALUE: 20,", "  RIGHT: -2,"),
                (pascal.declarations, "  TavixOneValue = 20;", "  TavixRight = -2;"),
                (python_ctypes.declarations, "ONE_VALUE = 20", "RIGHT = -2")):
            lines = write(self.description).splitlines()
            lines = [line.removeprefix("        ") for line in lines]
            self.assertIn(one, lines)
            self.assertIn(right, lines)


class FlatCalls(unittest.TestCase):
    def test_the_instance_comes_first_and_a_text_takes_three_places(self):
        call = flat.flat_call(parse_header(HEADER).calls[0])
        self.assertEqual(
            ["int instance", "int key", "wchar_t* name", "int capacity", "int* length",
             "double* x"],
            [f"{p.type} {p.name}" for p in call.parameters])

    def test_the_calls_on_the_index_name_no_instance_beside_it(self):
        call = flat.flat_call(parse_header(HEADER).calls[2])
        self.assertEqual(["index"], [p.name for p in call.parameters])

    def test_comments_name_the_calls_of_the_layer(self):
        made = c_layer.header(parse_header(HEADER), "@CALLS@")
        self.assertIn("// Of the call; see TavixC_Two and TAVIX_C_ONE_VALUE of the instance.", made)


class KeptFiles(unittest.TestCase):
    def test_every_language_has_every_call(self):
        description = read_header()
        names = {call.name for _, calls in flat.all_calls(description) for call in calls}
        self.assertEqual(87, len(names))
        for path, text in make_bindings.kept_files(description):
            self.assertNotIn("kTavix", text, path)
            found = set(re.findall(r"TavixC_\w+", text))
            self.assertEqual(set(), names - found, path)

    def test_every_language_has_every_constant(self):
        for path, text in make_bindings.kept_files(read_header()):
            for group in [LAYER_CODES, *read_header().constants]:
                for c in group.constants:
                    sign = "[ =:(]+" + re.escape(c.value)
                    self.assertRegex(text.replace("_", ""), f"(?i){c.name}{sign}", path)

    def test_they_are_what_the_header_makes_of_them(self):
        for path, text in make_bindings.kept_files(read_header()):
            self.assertEqual(text, (ROOT / path).read_text(encoding="utf-8"), path)


if __name__ == "__main__":
    unittest.main()
