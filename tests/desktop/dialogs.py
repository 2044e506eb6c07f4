"""The dialogs of the pages and menus change the project, and a listed browser shows the preview in the temporary folder
that the user chose."""

import os

from harness import expect, expect_within, wait_for_file


def run(harness):
    screen = harness.screen
    harness.make_project("p.gpj", "a.jpg", "b.jpg")
    with harness.project("p.gpj"):
        screen.press("ctrl+Tab")
        choose_filter(screen)
        write_watermark(screen)
        describe_second_image(screen)
        screen.press("ctrl+Tab")
        choose_background(screen)
        screen.press("ctrl+Tab", "ctrl+Tab", "ctrl+Tab")
        name_link(screen)
        screen.press("ctrl+s")
        list_browser(harness)
        move_temporary_folder(screen)
        view_in_listed_browser(harness)
        clear_temporary_folder(harness)
    check_project(harness)


def choose_filter(screen):
    """Checks the first box, for gray pictures; then another one, which is not kept."""
    screen.press("alt+t")
    screen.wait_for_window("Filters")
    screen.press("space", "Return")
    screen.wait_for_no_window("Filters")
    screen.wait_for_window("p.gpj")
    screen.press("alt+t")
    screen.wait_for_window("Filters")
    screen.press("Tab", "space", "Escape")
    screen.wait_for_no_window("Filters")
    screen.wait_for_window("p.gpj")


def write_watermark(screen):
    screen.press("alt+w")
    screen.wait_for_window("Watermarks")
    screen.press("space", "Tab", "ctrl+a")
    screen.type("Copyright")
    screen.press("alt+a")
    screen.wait_for_no_window("Watermarks")
    screen.wait_for_window("p.gpj")


def describe_second_image(screen):
    """The tool window follows the list while it is open."""
    screen.press("alt+i", "Tab", "Tab", "Tab", "Home", "Down")
    screen.press("alt+s")
    screen.wait_for_window("Image Descriptions ToolBox")
    screen.type("By the lake")
    screen.wait_for_window("p.gpj")
    screen.press("Up")
    screen.wait_for_window("Image Descriptions ToolBox")
    screen.type("At the lake")
    screen.press("Escape")
    screen.wait_for_no_window("Image Descriptions ToolBox")
    screen.wait_for_window("p.gpj")


def choose_background(screen):
    """Chooses the background of the image wrappers in the system's color dialog."""
    screen.press("alt+c", "alt+r")
    screen.wait_for_window("Select Image Wrapper Colors")
    screen.press("alt+b", "space")
    screen.wait_for_window("Select Color")
    screen.write("alt+h", "#112233")
    screen.press("Return")
    screen.wait_for_no_window("Select Color")
    screen.wait_for_window("Select Image Wrapper Colors")
    screen.press("alt+a")
    screen.wait_for_no_window("Select Image Wrapper Colors")
    screen.wait_for_window("p.gpj")


def name_link(screen):
    screen.press("alt+t")
    screen.wait_for_window("First Thumbnail Page")
    screen.write("alt+l", "Beginning")
    screen.press("Return")
    screen.wait_for_no_window("First Thumbnail Page")
    screen.wait_for_window("p.gpj")


def list_browser(harness):
    screen = harness.screen
    harness.make_opener("reader", "read")
    screen.press("alt+o", "a")
    screen.wait_for_window("Available Browsers")
    screen.press("alt+a")
    screen.wait_for_window("Add Browser")
    screen.write("alt+n", "Reader")
    screen.write("alt+l", "C:\\bin\\reader")
    screen.press("Return")
    screen.wait_for_no_window("Add Browser")
    screen.wait_for_window("Available Browsers")
    screen.press("Return")
    screen.wait_for_no_window("Available Browsers")
    screen.wait_for_window("p.gpj")
    expect_within('Location1="C:\\bin\\reader"', harness.text("config", "vantorium", "vantorium.ini"), "preferences")


def move_temporary_folder(screen):
    screen.press("alt+o", "t")
    screen.wait_for_window("Location of Temporary Folder")
    screen.write("alt+p", "C:\\elsewhere")
    screen.press("Return")
    screen.wait_for_no_window("Location of Temporary Folder")
    screen.wait_for_window("p.gpj")


def view_in_listed_browser(harness):
    """The menu's first entry is the default browser; the second is the one in the list."""
    harness.screen.press("alt+a", "v", "Down", "Return")
    wait_for_file(harness.path("read"))
    index = harness.path("elsewhere", "VANTORIUM_TEMP", "index.htm")
    expect_within(index, harness.text("read"), "what the browser was to show")
    expect(True, os.path.exists(index), "preview in the temporary folder")
    harness.screen.wait_for_window("p.gpj")


def clear_temporary_folder(harness):
    harness.screen.press("alt+o", "c")
    harness.screen.wait_for_no_window("Clearing")
    harness.screen.wait_for_window("p.gpj")
    preview = harness.path("elsewhere", "VANTORIUM_TEMP", "index.htm")
    expect(False, os.path.exists(preview), "preview after the clearing")


def check_project(harness):
    shown = harness.show("p.gpj")
    project = shown["project"]
    expect(1, project["ImageFilters"]["checkGrayscale"], "grey pictures")
    expect(0, project["ImageFilters"]["checkBrightness"], "a filter that was cancelled")
    expect(1, project["ImageWatermark"]["checkUseWatermark"], "watermark")
    expect("Copyright", project["ImageWatermark"]["textWatermark"], "text of the watermark")
    expect(["At the lake", "By the lake"], [image["ImageDescription"] for image in shown["images"]], "descriptions")
    expect(1, project["checkImageWrapperSetColors"], "colors are set")
    expect(0x332211, project["ImagePageBgColor"], "background")
    expect("Beginning", project["ThumbnailFirstLink"]["textLinkLabel"], "label of the first link")
