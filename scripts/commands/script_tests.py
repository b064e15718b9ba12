"""Runs the tests of the project's own scripts."""

import io
import unittest

from commands.tally import Tally


class _Counting(unittest.TextTestResult):
    """Also counts the tests that passed."""

    passed = 0

    def addSuccess(self, test):
        super().addSuccess(test)
        self.passed += 1


def count_script_tests(folder):
    """The tally of every test method below `folder`."""
    suite = unittest.TestLoader().discover(str(folder), pattern="*_test.py")
    runner = unittest.TextTestRunner(stream=io.StringIO(), resultclass=_Counting)
    result = runner.run(suite)
    failures = [(str(test), trace) for test, trace in result.failures + result.errors]
    return Tally(result.passed, failures, [(str(test), why) for test, why in result.skipped])
