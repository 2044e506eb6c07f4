"""With a changed project the program asks before it ends, and each of the three answers does what it says."""

from harness import expect


def run(harness):
    screen = harness.screen
    harness.make_project("p.gpj", "a.jpg")
    before = harness.read("p.gpj")
    with harness.window(harness.path("p.gpj")):
        screen.wait_for_window("p.gpj")
        screen.write("alt+t", "Kept")
        ask_to_leave(harness)
        screen.press("Escape")  # means Cancel
        screen.wait_for_no_window("Project modified")
        screen.wait_for_window("p.gpj")
        expect(before, harness.read("p.gpj"), "project after Cancel")
        ask_to_leave(harness)
        screen.press("alt+y")
    saved = harness.read("p.gpj")
    expect("Kept", harness.show("p.gpj")["project"]["textGalleryTitle"], "title after Yes")

    with harness.window(harness.path("p.gpj")):
        screen.wait_for_window("p.gpj")
        screen.write("alt+t", "Lost")
        ask_to_leave(harness)
        screen.press("alt+n")
    expect(saved, harness.read("p.gpj"), "project after No")

    with harness.project("p.gpj"):
        pass  # nothing changed: nothing is asked


def ask_to_leave(harness):
    harness.leave()
    harness.screen.wait_for_window("Project modified")
