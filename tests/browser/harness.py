"""What the test programs of this folder have in common: what they need, their time limit and their folder."""

import os
import shutil
import signal
import sys
import tempfile
import unittest

import galleries
from webdriver import missing_programs


def run_tests(tests, prepare, seconds):
    """Calls prepare(folder), which sets tests.browser, and then runs the tests of the main module. The folder is removed
    at the end. Fails if all that takes longer than `seconds`. Returns the exit code of the program."""
    lacking = missing_programs()
    if not os.path.isdir(galleries.PHOTOGRAPHS):
        lacking.append(galleries.PHOTOGRAPHS + " (package mate-backgrounds)")
    if lacking:
        print("Not installed:", ", ".join(lacking), "(packaging/install-dependencies tests)")
        return 1

    def give_up(_signal, _frame):
        raise TimeoutError(f"not done within {seconds} seconds")

    signal.signal(signal.SIGALRM, give_up)
    signal.alarm(seconds)
    folder = tempfile.mkdtemp(prefix="vantorium-browser-")
    try:
        prepare(folder)
        result = unittest.main(argv=[sys.argv[0]], verbosity=2, exit=False).result
        return 0 if result.wasSuccessful() else 1
    finally:
        if hasattr(tests, "browser"):
            tests.browser.close()
        shutil.rmtree(folder, ignore_errors=True)
