"""A theme is applied to a project; the result equals a project that the batch program begins with that theme."""

from harness import expect


def run(harness):
    screen = harness.screen
    harness.make_project("p.gpj", "a.jpg", "b.jpg")
    harness.batch("new", harness.path("film.gpj"), "--theme", "film", harness.path("a.jpg"), harness.path("b.jpg"))
    with harness.project("p.gpj"):
        screen.press("alt+o", "l")
        screen.wait_for_window("Apply Theme")
        screen.press("Right", "Return")
        screen.wait_for_window("Replace Settings")
        screen.press("Return")  # the answer is no unless chosen otherwise
        screen.wait_for_no_window("Replace Settings")
        screen.wait_for_window("Apply Theme")
        screen.press("Return")
        screen.wait_for_window("Replace Settings")
        screen.press("alt+y")
        screen.wait_for_no_window("Apply Theme")
        screen.wait_for_window("p.gpj")
        screen.press("ctrl+s")
    expect(harness.read("film.gpj"), harness.read("p.gpj"), "the project with the theme")
