"""The finished program on a screen, with the keyboard alone: a project is made, saved, opened again, previewed and
published into a folder, and what comes out equals what the batch program makes of the same project.

Use: end_to_end.py --window PROGRAM --batch PROGRAM. Ends with 77 where the screen's tools are not installed."""

import argparse
import filecmp
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time

from screen import Screen, tools_are_there

PHOTOGRAPH = os.path.join(os.path.dirname(__file__), "..", "..", "data", "preview.jpg")
SKIPPED = 77


class Desk:
    """A user's home with two photographs, and the two programs in it."""

    def __init__(self, folder, screen, window, batch):
        self.folder = folder
        self.screen = screen
        self._window = window
        self._batch = batch
        self._environment = dict(os.environ, DISPLAY=screen.display, HOME=folder, XDG_CONFIG_HOME=self.path("config"),
                                 XDG_RUNTIME_DIR=folder, QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="0",
                                 PATH=self.path("bin") + ":" + os.environ["PATH"])
        for name in ("a.jpg", "b.jpg"):
            shutil.copy(PHOTOGRAPH, self.path(name))
        self._make_opener()

    def _make_opener(self):
        """In place of the desktop's opener of files one that writes down what it was to open."""
        os.makedirs(self.path("bin"))
        for name in ("xdg-open", "gio"):
            opener = self.path("bin", name)
            with open(opener, "w") as script:
                script.write(f'#!/bin/sh\necho "$@" >> "{self.path("opened")}"\n')
            os.chmod(opener, 0o755)

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def start(self, *arguments):
        self._program = subprocess.Popen([self._window, *arguments], env=self._environment)

    def wait_for_end(self):
        code = self._program.wait(timeout=30)
        if code != 0:
            raise AssertionError(f"the program ended with {code}")

    def kill(self):
        if self._program.poll() is None:
            self._program.kill()
            self._program.wait()

    def batch(self, *arguments):
        command = [self._batch, "--program-folder", self.path("batch"), *arguments]
        finished = subprocess.run(command, env=self._environment, capture_output=True, text=True, timeout=60)
        if finished.returncode != 0:
            raise AssertionError(f"{arguments}: {finished.stderr}")
        return finished.stdout

    def read(self, *names):
        with open(self.path(*names), "rb") as file:
            return file.read()


def expect(expected, actual, what):
    if expected != actual:
        raise AssertionError(f"{what}: {actual!r} in place of {expected!r}")


def make_project(desk):
    """A new project with two photographs and a change on each page, saved and left."""
    screen = desk.screen
    desk.start()
    screen.wait_for_window("Gallery1")
    screen.write("alt+t", "Ferien")
    screen.press("alt+s")  # a slideshow

    screen.press("ctrl+Tab", "alt+l")
    screen.wait_for_window("Add")
    screen.type('"a.jpg" "b.jpg"')
    screen.press("Return")
    screen.wait_for_no_window("Add")
    screen.wait_for_window("Gallery1")

    screen.press("ctrl+Tab", "alt+z")  # sizes in percent
    screen.press("ctrl+Tab")
    screen.write("alt+r", "2")
    screen.write("alt+c", "1")
    screen.press("ctrl+Tab", "alt+r")  # a regular caption
    screen.press("ctrl+Tab", "alt+d")  # direct links
    screen.press("ctrl+s")
    screen.wait_for_window("Save Gallery Project As")
    screen.type("C:\\ferien")
    screen.press("Return")
    screen.wait_for_window("ferien.gpj")
    screen.press("alt+f", "e")
    desk.wait_for_end()


def check_project(desk):
    shown = json.loads(desk.batch("show", desk.path("ferien.gpj")))
    project = shown["project"]
    for field, value in {"textGalleryTitle": "Ferien", "checkGallerySlideShow": 1, "textThumbnailsTableRows": "2",
                         "textThumbnailsTableColumns": "1", "checkCaptionsImagesRegular": 1,
                         "checkPageLinksThumbnailDirectLinks": 1}.items():
        expect(value, project[field], field)
    expect(["a.jpg", "b.jpg"], [image["ImageName"] for image in shown["images"]], "images")
    expect(1, shown["thumbnailPageCount"], "pages")
    desk.batch("save", desk.path("ferien.gpj"), desk.path("again.gpj"))
    expect(desk.read("again.gpj"), desk.read("ferien.gpj"), "the project written by the batch program")


def preview_and_create(desk):
    """The project on the command line is previewed, created and left."""
    screen = desk.screen
    desk.start(desk.path("ferien.gpj"))
    screen.wait_for_window("ferien.gpj")
    screen.press("ctrl+i")
    wait_for_file(desk.path("opened"))
    screen.wait_for_window("ferien.gpj")
    screen.press("ctrl+g")
    screen.wait_for_window("Create Gallery")
    write_target(screen)
    screen.press("Return")
    wait_for_file(desk.path("out", "index.htm"))
    screen.wait_for_no_window("Creating Gallery")
    time.sleep(0.5)
    screen.wait_for_window("ferien.gpj")
    screen.press("alt+f", "e")
    desk.wait_for_end()


def write_target(screen):
    """The box of the index file, which the option of a local gallery stands before."""
    screen.press("alt+l", "Tab", "ctrl+a")
    screen.type("C:\\out\\index.htm")


def wait_for_file(path, seconds=30):
    end = time.monotonic() + seconds
    while not os.path.exists(path):
        if time.monotonic() > end:
            raise AssertionError(f"{path} does not come")
        time.sleep(0.1)


def files_below(folder):
    return sorted(os.path.relpath(os.path.join(where, name), folder)
                  for where, _, names in os.walk(folder) for name in names)


def check_gallery(desk):
    desk.batch("create", desk.path("ferien.gpj"), desk.path("twin", "index.htm"))
    made, twin = files_below(desk.path("out")), files_below(desk.path("twin"))
    expect(twin, made, "files of the gallery")
    for name in made:
        if not filecmp.cmp(desk.path("out", name), desk.path("twin", name), shallow=False):
            raise AssertionError(f"{name} differs from the batch program's")
    opened = desk.read("opened").decode()
    if "VANTORIUM_TEMP/index.htm" not in opened:
        raise AssertionError(f"the preview was not opened: {opened}")


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--window", required=True)
    arguments.add_argument("--batch", required=True)
    options = arguments.parse_args()
    if not tools_are_there():
        print("no Xvfb or xdotool")
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder, Screen() as screen:
        desk = Desk(folder, screen, options.window, options.batch)
        try:
            make_project(desk)
            check_project(desk)
            preview_and_create(desk)
            check_gallery(desk)
        finally:
            desk.kill()
    print("the window makes what the batch program makes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
