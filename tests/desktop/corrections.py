"""Photographs that lie on their side are added, and the question whether to turn them is answered with Yes; true colors
are checked in the Options menu. The gallery equals what the batch program makes of the saved project. With both
unchecked again it equals the gallery of a project that never had them."""

from harness import expect, expect_equal_folders

# The same picture each time: the first one stands, the others lie.
STANDING = "DisplayP3_1.jpg"
LYING = ("DisplayP3_6.jpg", "DisplayP3_3.jpg")


def run(harness):
    harness.make_photographs()
    harness.make_project("p.gpj", "a.jpg")
    with harness.project("p.gpj"):
        add_photographs(harness.screen)
        harness.screen.press("alt+o", "r", "ctrl+s")
        harness.create("corrected")
    check_corrected(harness)
    with harness.project("p.gpj"):
        harness.screen.press("alt+o", "u", "alt+o", "r", "ctrl+s")
        harness.create("plain")
    check_plain(harness)


def add_photographs(screen):
    """Adds the photographs one by one; the question comes after the first."""
    screen.press("ctrl+Tab")
    add(screen, LYING[0])
    screen.wait_for_window("Photographs on their Side")
    screen.press("alt+y")
    screen.wait_for_no_window("Photographs on their Side")
    screen.wait_for_window("p.gpj")
    for name in (LYING[1], STANDING):
        add(screen, name)
        screen.wait_for_no_window("Add")
        screen.wait_for_window("p.gpj")


def add(screen, name):
    screen.press("alt+l")
    screen.wait_for_window("Add")
    screen.type(name)
    screen.press("Return")


def check_corrected(harness):
    check_project(harness, "--upright", "--true-colors")
    check_gallery(harness, "corrected")
    for name in LYING:
        expect(True, same_picture(harness, "corrected", STANDING, "corrected", name), f"{name} is upright")


def check_plain(harness):
    check_project(harness)
    check_gallery(harness, "plain")
    expect(True, same_picture(harness, "corrected", "a.jpg", "plain", "a.jpg"), "what is right stays")
    expect(False, same_picture(harness, "corrected", STANDING, "plain", STANDING), "colors are still converted")
    for name in LYING:
        expect(False, same_picture(harness, "plain", STANDING, "plain", name), f"{name} is still turned")


def check_project(harness, *switches):
    """Expects the saved project to be the one that the batch program makes with the switches."""
    photographs = [harness.path(name) for name in ("a.jpg", *LYING, STANDING)]
    harness.batch("new", "--force", harness.path("twin.gpj"), *switches, *photographs)
    expect(harness.read("twin.gpj"), harness.read("p.gpj"), "the project in the window")


def check_gallery(harness, folder):
    harness.batch("create", harness.path("p.gpj"), harness.path("twin", folder, "index.htm"))
    expect_equal_folders(harness.path("twin", folder), harness.path(folder))


def same_picture(harness, folder, name, other_folder, other_name):
    return harness.read(folder, "Images", name + ".jpg") == harness.read(other_folder, "Images", other_name + ".jpg")
