"""What running fuzzers keeps and says, with small programs in their place."""

import contextlib
import io
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import run_fuzzers

# Ends as a fuzzer that found nothing, and keeps one input in the folder it works in; asked to merge,
# it copies that to the corpus under the long name that libFuzzer gives.
FINDS_NOTHING = """#!/bin/sh
case $1 in
  -merge=1) cp $4/* $3/0123456789abcdef0123456789abcdef01234567 ;;
  *) for word; do work=$before; before=$word; done
     echo new > $work/input; echo 'stat::number_of_executed_units: 4711' ;;
esac
"""
FINDS_SOMETHING = """#!/bin/sh
echo "terminate called after throwing an instance of 'Broken'"
echo "  what():  (line 12) what is written is read back"
echo "Test unit written to {found}/crash-0815"
exit 77
"""
FAILS_TO_MERGE = """#!/bin/sh
[ $1 = -merge=1 ] && echo 'no room' && exit 1
echo 'stat::number_of_executed_units: 1'
"""


class RunFuzzers(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        places = {"ROOT": self.root, "CORPUS": self.root / "fuzzers/corpus",
                  "BUILD": self.root / "build/fuzz", "FOUND": self.root / "build/fuzz/found"}
        for name, place in places.items():
            place.mkdir(parents=True, exist_ok=True)
            patch = mock.patch.object(run_fuzzers, name, place)
            patch.start()
            self.addCleanup(patch.stop)
        for name in ("clip", "arc"):
            (run_fuzzers.CORPUS / name).mkdir()
        (run_fuzzers.CORPUS / "clip/old").write_text("old", encoding="utf-8")

    def install(self, text):
        program = run_fuzzers.program("clip")
        program.parent.mkdir(parents=True, exist_ok=True)
        program.write_text(text.format(found=run_fuzzers.FOUND), encoding="utf-8")
        program.chmod(0o755)

    def fuzz(self):
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            tally = run_fuzzers.fuzz("clip", 1)
        return tally, printed.getvalue()

    def corpus(self):
        return sorted(path.name for path in (run_fuzzers.CORPUS / "clip").iterdir())

    def test_without_words_every_fuzzer_runs_for_the_usual_time(self):
        self.assertEqual((60, ["arc", "clip"]), run_fuzzers.arguments([]))
        self.assertEqual((5, ["arc", "clip"]), run_fuzzers.arguments(["5"]))
        self.assertEqual((5, ["clip"]), run_fuzzers.arguments(["5", "clip"]))

    def test_other_words_are_refused_with_the_names_that_there_are(self):
        for words in (["0"], ["-1"], ["clip"], ["5", "circle"], ["5", "clip", "circle"]):
            with self.subTest(words=words), self.assertRaises(SystemExit) as ended:
                run_fuzzers.arguments(words)
            self.assertIn("names: arc clip", str(ended.exception))

    def test_a_dictionary_is_handed_over_where_there_is_one(self):
        self.assertEqual([], run_fuzzers.dictionary("clip"))
        words = self.root / "fuzzers/clip.dict"
        words.write_text('"word"\n', encoding="utf-8")
        self.assertEqual([f"-dict={words}"], run_fuzzers.dictionary("clip"))

    def test_what_reaches_new_code_is_kept_under_a_short_name(self):
        self.install(FINDS_NOTHING)
        tally, printed = self.fuzz()
        self.assertEqual((1, []), (tally.passed, tally.failures))
        self.assertEqual("4711 inputs, 1 kept, ", printed)
        self.assertEqual(["0123456789ab", "old"], self.corpus())

    def test_an_input_that_breaks_a_promise_is_a_failure_that_can_be_repeated(self):
        self.install(FINDS_SOMETHING)
        tally, _ = self.fuzz()
        self.assertEqual(0, tally.passed)
        [(name, said)] = tally.failures
        self.assertEqual("clip", name)
        self.assertIn("(line 12) what is written is read back\n", said)
        self.assertIn("build/fuzz/bin/clip_fuzzer build/fuzz/found/crash-0815\n", said)
        self.assertIn("fuzzers/corpus/clip", said)
        self.assertEqual(["old"], self.corpus())

    def test_the_promise_is_found_whoever_reports_it(self):
        for output, promise in (
            ("SUMMARY: AddressSanitizer: heap-use-after-free", "AddressSanitizer: heap-use-after-free"),
            ("ERROR: libFuzzer: timeout after 20 seconds", "libFuzzer: timeout after 20 seconds"),
            ("line\nnothing known", "line\nnothing known"),
        ):
            with self.subTest(output=output):
                said = run_fuzzers.failure("clip", output)
                self.assertTrue(said.startswith(promise + "\n"), said)
                self.assertIn("the input:     no file\n", said)

    def test_a_merge_that_fails_is_a_failure(self):
        self.install(FAILS_TO_MERGE)
        tally, _ = self.fuzz()
        self.assertEqual([("clip", "no room\n")], tally.failures)


if __name__ == "__main__":
    unittest.main()
