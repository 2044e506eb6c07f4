"""A gallery is made with Only Changes, and again after an image has left the project: the other picture is not made
again, and the files that nothing uses any more are named and removed."""

import os

from desk import expect, files_below, wait_for_file


def run(desk):
    desk.make_project("p.gpj", "a.jpg", "b.jpg")
    create(desk, "alt+n")
    kept = desk.path("gallery", "Images", "a.jpg.jpg")
    made = os.stat(kept)
    desk.make_project("p.gpj", "a.jpg")
    create(desk, "alt+n", "alt+r", names_unused=True)
    expect((made.st_ino, made.st_mtime_ns), (os.stat(kept).st_ino, os.stat(kept).st_mtime_ns), "the picture that stays")
    expect(["Images/a.jpg.jpg", "Thumbs/thumb_a.jpg.jpg", "a.jpg.htm", "index.htm", "thumbpage_1.htm"],
           files_below(desk.path("gallery")), "files of the gallery")
    expect(1, len(os.listdir(desk.path("cache", "vantorium"))), "number of records")


def create(desk, *boxes, names_unused=False):
    screen = desk.screen
    with desk.project("p.gpj"):
        screen.press("ctrl+g")
        screen.wait_for_window("Create Gallery")
        screen.press(*boxes, "Return")
        if names_unused:
            screen.wait_for_window("Unused Files")
            screen.press("Return")
            screen.wait_for_no_window("Unused Files")
        wait_for_file(desk.path("gallery", "b.jpg.htm" if not names_unused else "index.htm"))
        screen.wait_for_no_window("Creating Gallery")
