"""A gallery is made with Only Changes, and again after an image has left the project: the other picture is not made
again, and the files that nothing uses any more are named and removed."""

import os

from harness import expect, files_below, wait_for_file


def run(harness):
    harness.make_project("p.gpj", "a.jpg", "b.jpg")
    create(harness, "alt+n")
    kept = harness.path("gallery", "Images", "a.jpg.jpg")
    made = os.stat(kept)
    harness.make_project("p.gpj", "a.jpg")
    create(harness, "alt+n", "alt+r", names_unused=True)
    expect((made.st_ino, made.st_mtime_ns), (os.stat(kept).st_ino, os.stat(kept).st_mtime_ns), "the picture that stays")
    expect(["Images/a.jpg.jpg", "Thumbs/thumb_a.jpg.jpg", "a.jpg.htm", "index.htm", "thumbpage_1.htm"],
           files_below(harness.path("gallery")), "files of the gallery")
    expect(1, len(os.listdir(harness.path("cache", "vantorium"))), "number of records")


def create(harness, *boxes, names_unused=False):
    screen = harness.screen
    with harness.project("p.gpj"):
        screen.press("ctrl+g")
        screen.wait_for_window("Create Gallery")
        screen.press(*boxes, "Return")
        if names_unused:
            screen.wait_for_window("Unused Files")
            screen.press("Return")
            screen.wait_for_no_window("Unused Files")
        wait_for_file(harness.path("gallery", "b.jpg.htm" if not names_unused else "index.htm"))
        screen.wait_for_no_window("Creating Gallery")
