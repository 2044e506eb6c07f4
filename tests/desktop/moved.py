"""A project from another system names folders that have no place on this one. The user is asked where they are now:
after Cancel it cannot be opened and stays as it is; with the new folders it becomes the project of someone who has the
photographs there, and the list shows their paths as this system writes them."""

import os

from harness import expect

QUESTION = "Where are these Folders now"
MANY = 40  # photographs; more than the list can show


def run(harness):
    make_moved_project(harness)
    moved = harness.read("p.gpj")
    with harness.window(harness.path("p.gpj")):
        harness.screen.wait_for_window(QUESTION)
        harness.screen.press("Return")  # the answer is Cancel unless chosen otherwise
        harness.screen.wait_for_no_window(QUESTION)
        # One box is about the first photograph, which is missing, and one about the project.
        harness.screen.press_until("Gallery1", "File Error", "Return")
        harness.leave()  # nothing is asked about saving
    expect(moved, harness.read("p.gpj"), "project after Cancel")

    with harness.window(harness.path("p.gpj")):
        say_where_folders_are(harness)
        harness.screen.wait_for_window("p.gpj")
        harness.leave()
        harness.screen.wait_for_window("Project modified")
        harness.screen.press("alt+y")
    expect(harness.read("here.gpj"), harness.read("p.gpj"), "project after its folders were found")

    with harness.project("p.gpj"):  # now nothing is asked
        name_gallery_like_first_path(harness.screen)
    expect(harness.path("summer", "00.jpg"), harness.show("p.gpj")["project"]["textGalleryTitle"], "path in the list")


def make_moved_project(harness):
    """Makes a project of two folders, and the same one with these on a drive and on a share of another system."""
    for folder, count in (("summer", MANY), ("winter", 1)):
        os.makedirs(harness.path(folder))
        for number in range(count):
            os.link(harness.path("a.jpg"), harness.path(folder, f"{number:02}.jpg"))
    harness.make_project("here.gpj", "summer", "winter")
    project = harness.read("here.gpj")
    for here, there in ((b"C:/summer/", b"D:/Photos/Summer/"), (b"C:/winter/", b"//server/photos/winter/")):
        expect(True, here in project, f"{here} in the project")
        project = project.replace(here, there)
    with open(harness.path("p.gpj"), "wb") as file:
        file.write(project)


def say_where_folders_are(harness):
    """Types the new folder of the first row, then that of the second one, and goes on to OK."""
    screen = harness.screen
    screen.wait_for_window(QUESTION)
    screen.type(harness.path("summer"))
    screen.press("shift+Tab", "Down", "Tab")
    screen.type("C:\\winter")
    screen.press("Tab", "Tab", "space")
    screen.wait_for_no_window(QUESTION)


def name_gallery_like_first_path(screen):
    """Copies the first path from the list into the gallery's title."""
    screen.press("ctrl+Tab")
    screen.click("p.gpj", 300, 320)  # the column of paths
    screen.press("Home", "ctrl+c", "ctrl+shift+Tab", "alt+t", "ctrl+a", "ctrl+v", "ctrl+s")
