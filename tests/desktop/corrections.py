"""Photographs that lie on their side are added, and the question whether to turn them is answered with Yes; true colors
are checked in the Options menu. The gallery equals what the batch program makes of the saved project. With both
unchecked again it equals the gallery of a project that never had them."""

from desk import expect, expect_equal_folders

# The same picture each time: the first one stands, the others lie.
STANDING = "DisplayP3_1.jpg"
LYING = ("DisplayP3_6.jpg", "DisplayP3_3.jpg")


def run(desk):
    desk.make_photographs()
    desk.make_project("p.gpj", "a.jpg")
    with desk.project("p.gpj"):
        add_photographs(desk.screen)
        desk.screen.press("alt+o", "r", "ctrl+s")
        desk.create("corrected")
    check_corrected(desk)
    with desk.project("p.gpj"):
        desk.screen.press("alt+o", "u", "alt+o", "r", "ctrl+s")
        desk.create("plain")
    check_plain(desk)


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


def check_corrected(desk):
    check_project(desk, "--upright", "--true-colors")
    check_gallery(desk, "corrected")
    for name in LYING:
        expect(True, same_picture(desk, "corrected", STANDING, "corrected", name), f"{name} is upright")


def check_plain(desk):
    check_project(desk)
    check_gallery(desk, "plain")
    expect(True, same_picture(desk, "corrected", "a.jpg", "plain", "a.jpg"), "what is right stays")
    expect(False, same_picture(desk, "corrected", STANDING, "plain", STANDING), "colors are still converted")
    for name in LYING:
        expect(False, same_picture(desk, "plain", STANDING, "plain", name), f"{name} is still turned")


def check_project(desk, *switches):
    """Expects the saved project to be the one that the batch program makes with the switches."""
    photographs = [desk.path(name) for name in ("a.jpg", *LYING, STANDING)]
    desk.batch("new", "--force", desk.path("twin.gpj"), *switches, *photographs)
    expect(desk.read("twin.gpj"), desk.read("p.gpj"), "the project in the window")


def check_gallery(desk, folder):
    desk.batch("create", desk.path("p.gpj"), desk.path("twin", folder, "index.htm"))
    expect_equal_folders(desk.path("twin", folder), desk.path(folder))


def same_picture(desk, folder, name, other_folder, other_name):
    return desk.read(folder, "Images", name + ".jpg") == desk.read(other_folder, "Images", other_name + ".jpg")
