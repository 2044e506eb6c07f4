"""The finished program on a screen, with the keyboard alone.

Use: end_to_end.py JOURNEY --window PROGRAM --batch PROGRAM --ftp-server PROGRAM
with JOURNEY one of the modules beside this one. Ends with 77 where what it needs is not installed."""

import argparse
import importlib
import sys
import tempfile

from desk import Desk
from screen import Screen, Skipped

SKIPPED = 77


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("journey")
    arguments.add_argument("--window", required=True)
    arguments.add_argument("--batch", required=True)
    arguments.add_argument("--ftp-server", required=True)
    options = arguments.parse_args()
    journey = importlib.import_module(options.journey)
    try:
        with tempfile.TemporaryDirectory() as folder, Screen() as screen:
            journey.run(Desk(folder, screen, options))
    except Skipped as reason:
        print(reason)
        return SKIPPED
    return 0


if __name__ == "__main__":
    sys.exit(main())
