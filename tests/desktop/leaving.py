"""With a changed project the program asks before it ends, and each of the three answers does what it says."""

from desk import expect


def run(desk):
    screen = desk.screen
    desk.make_project("p.gpj", "a.jpg")
    before = desk.read("p.gpj")
    with desk.window(desk.path("p.gpj")):
        screen.wait_for_window("p.gpj")
        screen.write("alt+t", "Kept")
        ask_to_leave(desk)
        screen.press("Escape")  # means Cancel
        screen.wait_for_no_window("Project modified")
        screen.wait_for_window("p.gpj")
        expect(before, desk.read("p.gpj"), "project behind Cancel")
        ask_to_leave(desk)
        screen.press("alt+y")
    saved = desk.read("p.gpj")
    expect("Kept", desk.show("p.gpj")["project"]["textGalleryTitle"], "title behind Yes")

    with desk.window(desk.path("p.gpj")):
        screen.wait_for_window("p.gpj")
        screen.write("alt+t", "Lost")
        ask_to_leave(desk)
        screen.press("alt+n")
    expect(saved, desk.read("p.gpj"), "project behind No")

    with desk.project("p.gpj"):
        pass  # nothing changed: nothing is asked


def ask_to_leave(desk):
    desk.leave()
    desk.screen.wait_for_window("Project modified")
