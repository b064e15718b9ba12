"""How the exported calls are read from the header, the list and the DLL's table."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import check_exports


class ExportedCalls(unittest.TestCase):
    def test_the_header_declares_calls_with_the_macro(self):
        header = """
            #define TAVIX_CALL __declspec(dllimport)
            // TAVIX_CALL int Tavix_InAComment(void);
            TAVIX_CALL void Tavix_SetIdx(int index);
            TAVIX_CALL CWnd* Tavix_Wnd(void);
            TAVIX_CALL int Tavix_EntPnt(int key, int number, CString name,
                                        double x, double y);
            int NotExported(int x);
        """
        self.assertEqual(
            ["Tavix_SetIdx", "Tavix_Wnd", "Tavix_EntPnt"], check_exports.declared_calls(header)
        )

    def test_the_list_stands_below_exports(self):
        text = "; remark\nLIBRARY tavix\nEXPORTS\n  Tavix_Crt\n  Tavix_Del ; why\n\n"
        self.assertEqual(["Tavix_Crt", "Tavix_Del"], check_exports.listed_calls(text))
        self.assertEqual([], check_exports.listed_calls("LIBRARY tavix\n"))

    def test_refreshing_sorts_and_keeps_what_stands_above(self):
        text = "; remark\nLIBRARY tavix\nEXPORTS\n  Tavix_Old\n"
        self.assertEqual(
            "; remark\nLIBRARY tavix\nEXPORTS\n  Tavix_Crt\n  Tavix_Del\n",
            check_exports.refreshed(text, ["Tavix_Del", "Tavix_Crt"]),
        )

    def test_the_dll_tells_its_names_in_either_form(self):
        older = "x\n[Ordinal/Name Pointer] Table\n\t[   0] Tavix_Crt\n\t[   1] Tavix_Del\n\nThe"
        newer = "x\n[Ordinal/Name Pointer] Table\n\t[   0] +base[   1] 0000 Tavix_Crt\n\nThe"
        self.assertEqual(["Tavix_Crt", "Tavix_Del"], check_exports.exported_calls(older))
        self.assertEqual(["Tavix_Crt"], check_exports.exported_calls(newer))
        self.assertEqual([], check_exports.exported_calls("no table"))

    def test_each_kind_of_difference_is_named(self):
        rows = (
            (["A"], ["A"], []),
            (["A", "B"], ["A"], ["B is missing in x"]),
            (["A"], ["A", "C"], ["C is in x but not in the header"]),
            (["A"], ["A", "A"], ["A stands twice in x"]),
        )
        for wanted, found, said in rows:
            with self.subTest(wanted=wanted, found=found):
                self.assertEqual(said, list(check_exports.differences("x", wanted, found)))


if __name__ == "__main__":
    unittest.main()
