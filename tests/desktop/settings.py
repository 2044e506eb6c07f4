"""A project is made, saved, opened again, previewed and created into a folder; the result equals what the batch program
makes from the same project."""

from harness import expect, expect_equal_folders, expect_within, wait_for_file


def run(harness):
    make_project(harness)
    check_project(harness)
    preview_and_create(harness)
    harness.batch("create", harness.path("ferien.gpj"), harness.path("twin", "index.htm"))
    expect_equal_folders(harness.path("twin"), harness.path("out"))
    expect_within("VANTORIUM_TEMP/index.htm", harness.text("opened"), "what the preview opened")


def make_project(harness):
    """Makes a new project with two photographs and a change on each page, saves it and closes the window."""
    screen = harness.screen
    with harness.window():
        screen.wait_for_window("Gallery1")
        screen.write("alt+t", "Ferien")
        screen.press("alt+s")  # a slideshow

        screen.press("ctrl+Tab", "alt+l")
        screen.wait_for_window("Add")
        screen.type('"a.jpg" "b.jpg"')
        screen.press("Return")
        screen.wait_for_no_window("Add")
        screen.wait_for_window("Gallery1")

        screen.press("ctrl+Tab", "alt+z")  # sizes in percent
        screen.press("ctrl+Tab")
        screen.write("alt+r", "2")
        screen.write("alt+c", "1")
        screen.press("ctrl+Tab", "alt+r")  # a regular caption
        screen.press("ctrl+Tab", "alt+d")  # direct links
        screen.press("ctrl+s")
        screen.wait_for_window("Save Gallery Project As")
        screen.type("C:\\ferien")
        screen.press("Return")
        screen.wait_for_window("ferien.gpj")
        harness.leave()


def check_project(harness):
    shown = harness.show("ferien.gpj")
    project = shown["project"]
    for field, value in {"textGalleryTitle": "Ferien", "checkGallerySlideShow": 1, "textThumbnailsTableRows": "2",
                         "textThumbnailsTableColumns": "1", "checkCaptionsImagesRegular": 1,
                         "checkPageLinksThumbnailDirectLinks": 1}.items():
        expect(value, project[field], field)
    expect(["a.jpg", "b.jpg"], [image["ImageName"] for image in shown["images"]], "images")
    expect(1, shown["thumbnailPageCount"], "pages")
    harness.batch("save", harness.path("ferien.gpj"), harness.path("again.gpj"))
    expect(harness.read("again.gpj"), harness.read("ferien.gpj"), "the project written by the batch program")


def preview_and_create(harness):
    """Opens the project from the command line, previews it, creates its gallery and closes the window."""
    screen = harness.screen
    with harness.project("ferien.gpj"):
        screen.press("ctrl+i")
        wait_for_file(harness.path("opened"))
        screen.wait_for_window("ferien.gpj")
        harness.create("out")
