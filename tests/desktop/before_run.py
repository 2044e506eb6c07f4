"""Warnings come up before a run: cancelled, nothing is made; renamed there, an image has links that work; and a gallery
can be made as it is."""

import os

from harness import expect, wait_for_file

TITLE = "Before This Gallery Is Made"


def run(harness):
    for name in ("a#1.jpg", "50%.jpg"):
        os.link(harness.path("a.jpg"), harness.path(name))
    harness.make_project("p.gpj", "a#1.jpg", "50%.jpg")
    screen = harness.screen
    with harness.project("p.gpj"):
        ask_for_gallery(screen)
        screen.press("Return")  # the answer is Cancel unless chosen otherwise
        screen.wait_for_no_window(TITLE)
        expect(False, os.path.exists(harness.path("gallery")), "gallery after Cancel")
        screen.wait_for_window("p.gpj")
        ask_for_gallery(screen)
        screen.press("alt+r")
        screen.wait_for_window("Rename Image")
        screen.type("better.jpg")
        screen.press("Return")
        screen.wait_for_no_window("Rename Image")
        screen.wait_for_window(TITLE)
        screen.press("alt+a")
        wait_for_file(harness.path("gallery", "50%.jpg.htm"))
        screen.wait_for_no_window("Creating Gallery")
        screen.wait_for_window("p.gpj")
        screen.press("ctrl+s")
    expect(True, os.path.exists(harness.path("gallery", "better.jpg.htm")), "page of the renamed image")
    expect(["better.jpg", "50%.jpg"], [image["ImageName"] for image in harness.show("p.gpj")["images"]], "names")


def ask_for_gallery(screen):
    screen.press("ctrl+g")
    screen.wait_for_window("Create Gallery")
    screen.press("Return")
    screen.wait_for_window(TITLE)
