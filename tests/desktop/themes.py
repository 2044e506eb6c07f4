"""A theme is applied to a project; the result equals a project that the batch program begins with that theme."""

from desk import expect


def run(desk):
    screen = desk.screen
    desk.make_project("p.gpj", "a.jpg", "b.jpg")
    desk.batch("new", desk.path("film.gpj"), "--theme", "film", desk.path("a.jpg"), desk.path("b.jpg"))
    with desk.project("p.gpj"):
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
    expect(desk.read("film.gpj"), desk.read("p.gpj"), "the project with the theme")
