"""Figures are read from goal_bench's lines and written into the page's table."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from commands.figures import BEGIN, END, in_order, read_figures, replace_figures


def line(goal="1", value="0.05", limit="0.08", different="0"):
    return "\t".join(["figure", goal, "S(1e4)", value, "", limit, "floor 1 ms", different])


class Figures(unittest.TestCase):
    def test_other_lines_are_passed_over(self):
        figures = read_figures("fixme: something\n" + line() + "\n")
        self.assertEqual([("1", 0.05)], [(f.goal, f.value) for f in figures])

    def test_a_goal_is_met_up_to_its_limit(self):
        values = [("0.08", True), ("0.081", False)]
        for value, met in values:
            self.assertEqual(met, read_figures(line(value=value))[0].met)

    def test_a_different_pixel_misses_the_goal(self):
        self.assertFalse(read_figures(line(different="1"))[0].met)
        self.assertTrue(read_figures(line(different="-1"))[0].met)

    def test_goals_stand_in_the_order_of_their_numbers(self):
        figures = read_figures("\n".join(line(goal) for goal in ("10", "1b", "2", "1")))
        self.assertEqual(["1", "1b", "2", "10"], [f.goal for f in in_order(figures)])

    def test_what_is_written_by_hand_stays(self):
        page = f"before\n{BEGIN}\nold table\n{END}\nafter\n"
        new = replace_figures(page, "a machine", read_figures(line()))
        self.assertTrue(new.startswith("before\n") and new.endswith(f"{END}\nafter\n"))
        self.assertIn("a machine", new)
        self.assertIn("| 1 | S(1e4) | 0.08 | 0.05 | yes | 0 | floor 1 ms |", new)
        self.assertNotIn("old table", new)
        self.assertEqual(new, replace_figures(new, "a machine", read_figures(line())))


if __name__ == "__main__":
    unittest.main()
