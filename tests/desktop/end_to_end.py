"""Uses the finished program on a screen, with keyboard and mouse.

Use: end_to_end.py JOURNEY --window PROGRAM --batch PROGRAM --ftp-server PROGRAM --photographs PROGRAM
with JOURNEY one of the modules beside this one."""

import argparse
import importlib
import tempfile

from harness import Harness
from screen import Screen


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("journey")
    arguments.add_argument("--window", required=True)
    arguments.add_argument("--batch", required=True)
    arguments.add_argument("--ftp-server", required=True)
    arguments.add_argument("--photographs", required=True)
    options = arguments.parse_args()
    journey = importlib.import_module(options.journey)
    with tempfile.TemporaryDirectory() as folder, Screen() as screen:
        journey.run(Harness(folder, screen, options))


if __name__ == "__main__":
    main()
