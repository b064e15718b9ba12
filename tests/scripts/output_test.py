"""The output of a command ends with the command, whatever it leaves behind."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))

from commands.steps import call

# Prints on both outputs, and leaves a process that holds both.
LEAVES_ONE_BEHIND = "echo out; echo err >&2; sleep 30 & exit 3"
PATIENCE = 10  # seconds, less than what is left behind lives


class Output(unittest.TestCase):
    def test_a_step_ends_with_its_command(self):
        code = f"from commands.steps import call; print(call(['sh', '-c', '{LEAVES_ONE_BEHIND}']))"
        ended = subprocess.run(
            [sys.executable, "-c", code],
            cwd=ROOT / "scripts",
            capture_output=True,
            timeout=PATIENCE,
            check=True,
        )
        self.assertEqual(ended.stdout.decode().strip(), "(False, 'out\\nerr\\n')")

    def test_output_is_seen_while_the_command_runs(self):
        with tempfile.TemporaryDirectory() as folder:
            seen = Path(folder) / "seen"
            ends_when_seen = f"echo first; until [ -e {seen} ]; do sleep 0.05; done; echo last"

            def watch(output):
                if output == "first\n":
                    seen.touch()

            self.assertEqual(call(["sh", "-c", ends_when_seen], watch), (True, "first\nlast\n"))

    def test_a_step_reports_success(self):
        self.assertEqual(call(["echo", "well"]), (True, "well\n"))

    def test_a_test_program_ends_with_its_command(self):
        ended = subprocess.run(
            [ROOT / "scripts/detached_output.sh", "sh", "-c", LEAVES_ONE_BEHIND],
            capture_output=True,
            timeout=PATIENCE,
            check=False,
        )
        self.assertEqual(ended.returncode, 3)
        self.assertEqual(ended.stdout, b"out\nerr\n")
        self.assertEqual(ended.stderr, b"")

    def test_much_output_is_shown_to_its_end(self):
        ended = subprocess.run(
            [ROOT / "scripts/detached_output.sh", "seq", "200000"],
            capture_output=True,
            timeout=PATIENCE,
            check=False,
        )
        self.assertEqual(ended.stdout.split()[-1], b"200000")


if __name__ == "__main__":
    unittest.main()
