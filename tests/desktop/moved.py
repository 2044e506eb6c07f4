"""A project from another system names folders that have no place on this one. The user is asked where they are now:
after Cancel it cannot be opened and stays as it is; with the new folders it becomes the project of someone who has the
photographs there, and the list shows their paths as this system writes them."""

import os

from desk import expect

QUESTION = "Where are these Folders now"
MANY = 40  # photographs; more than the list can show


def run(desk):
    make_moved_project(desk)
    moved = desk.read("p.gpj")
    with desk.window(desk.path("p.gpj")):
        desk.screen.wait_for_window(QUESTION)
        desk.screen.press("Return")  # the answer is Cancel unless chosen otherwise
        desk.screen.wait_for_no_window(QUESTION)
        # One box is about the first photograph, which is missing, and one about the project.
        desk.screen.press_until("Gallery1", "File Error", "Return")
        desk.leave()  # nothing is asked about saving
    expect(moved, desk.read("p.gpj"), "project after Cancel")

    with desk.window(desk.path("p.gpj")):
        say_where_folders_are(desk)
        desk.screen.wait_for_window("p.gpj")
        desk.leave()
        desk.screen.wait_for_window("Project modified")
        desk.screen.press("alt+y")
    expect(desk.read("here.gpj"), desk.read("p.gpj"), "project after its folders were found")

    with desk.project("p.gpj"):  # now nothing is asked
        name_gallery_like_first_path(desk.screen)
    expect(desk.path("summer", "00.jpg"), desk.show("p.gpj")["project"]["textGalleryTitle"], "path in the list")


def make_moved_project(desk):
    """Makes a project of two folders, and the same one with these on a drive and on a share of another system."""
    for folder, count in (("summer", MANY), ("winter", 1)):
        os.makedirs(desk.path(folder))
        for number in range(count):
            os.link(desk.path("a.jpg"), desk.path(folder, f"{number:02}.jpg"))
    desk.make_project("here.gpj", "summer", "winter")
    project = desk.read("here.gpj")
    for here, there in ((b"C:/summer/", b"D:/Photos/Summer/"), (b"C:/winter/", b"//server/photos/winter/")):
        expect(True, here in project, f"{here} in the project")
        project = project.replace(here, there)
    with open(desk.path("p.gpj"), "wb") as file:
        file.write(project)


def say_where_folders_are(desk):
    """Types the new folder of the first row, then that of the second one, and goes on to OK."""
    screen = desk.screen
    screen.wait_for_window(QUESTION)
    screen.type(desk.path("summer"))
    screen.press("shift+Tab", "Down", "Tab")
    screen.type("C:\\winter")
    screen.press("Tab", "Tab", "space")
    screen.wait_for_no_window(QUESTION)


def name_gallery_like_first_path(screen):
    """Copies the first path from the list into the gallery's title."""
    screen.press("ctrl+Tab")
    screen.click("p.gpj", 300, 320)  # the column of paths
    screen.press("Home", "ctrl+c", "ctrl+shift+Tab", "alt+t", "ctrl+a", "ctrl+v", "ctrl+s")
