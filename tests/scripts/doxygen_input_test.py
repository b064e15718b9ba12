"""What Doxygen gets to read of a header and of a page."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from doxygen_input import ROOT, links_in_one_folder, doxygen_lines

HEADER = r"""// A header, C:\Data.
//
//  9. nine
// 10. ten

// Stands apart.

// ---- Points -----
//
// Their text.

// Enters one.
int Enter(int key);
int Bare(void);  // takes nothing
// ---- Lines -----

// Joins two.
int Join(void);"""

MARKED = r"""/// @file
/// A header, C:\\Data.
///
///  9. nine
///  10. ten

// Stands apart.

/// @defgroup a_h_points a.h: Points
///
/// Their text.
/// @{

/// Enters one.
int Enter(int key);
int Bare(void);  ///< takes nothing
/// @}

/// @defgroup a_h_lines a.h: Lines
///
/// @{

/// Joins two.
int Join(void);
/// @}"""


class DoxygenInputTest(unittest.TestCase):
    def test_a_header_gets_doxygens_marks(self):
        self.assertEqual(MARKED.splitlines(), doxygen_lines(HEADER.splitlines(), "a.h"))

    def test_links_of_pages_hold_in_one_folder(self):
        self.assertEqual(
            f"[a]({ROOT}/docs/a.md) [b](b.c) ![c](c.png) [d](http://x/y.md) [e](@ref index)",
            links_in_one_folder("[a](../a.md) [b](../x/b.c) ![c](../x/c.png) [d](http://x/y.md) [e](README.md)",
                           ROOT / "docs/guide"),
        )


if __name__ == "__main__":
    unittest.main()
