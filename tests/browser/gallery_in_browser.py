"""Opens generated galleries in a real browser: frames, images and links must do what a visitor expects.

Use: gallery_in_browser.py --batch PROGRAM [--screenshots FOLDER]
Exit code: 0 success, 1 failure.
"""

import argparse
import os
import sys
import unittest
from urllib.parse import unquote

sys.dont_write_bytecode = True  # leaves the source folder unchanged

import galleries
from harness import run_tests
from webdriver import Browser, wait_until

SECONDS_FOR_ALL = 85
THUMB_FRAME = "thumb_frame"
IMAGE_FRAME = "image_frame"

IMAGES_OF_PAGE = """
    return Array.from(document.images, image => ({
        src: decodeURI(image.src), complete: image.complete,
        naturalWidth: image.naturalWidth, naturalHeight: image.naturalHeight,
        width: image.width, height: image.height,
        href: image.closest('a[href]') === null ? null : decodeURI(image.closest('a[href]').href)}));"""


class GalleryInBrowser(unittest.TestCase):
    """The common part of all tests. main makes `browser` and the galleries once."""

    browser: Browser
    single: galleries.Gallery
    left: galleries.Gallery
    slideshow: galleries.Gallery

    def page_in(self, frame):
        """The file name, with the anchor, of the page in a frame; None while it is loading."""
        self.browser.enter_frame(frame)
        state, address = self.browser.run("return [document.readyState, location.href]")
        return unquote(address.rsplit("/", 1)[1]) if state == "complete" else None

    def expect_page(self, frame, page):
        wait_until(f"{page} in {frame}", lambda: self.page_in(frame) == page)

    def images_in(self, frame):
        """The images of a frame's page, once each is loaded or has failed."""
        self.browser.enter_frame(frame)
        wait_until("images", lambda: all(image["complete"] for image in self.browser.run(IMAGES_OF_PAGE)))
        return self.browser.run(IMAGES_OF_PAGE)

    def go(self, frame, page):
        """Opens a page of the current gallery in a frame."""
        self.browser.enter_frame(frame)
        self.browser.run("location.href = encodeURI(arguments[0])", page)
        self.expect_page(frame, page)

    def click(self, frame, label):
        self.browser.enter_frame(frame)
        self.browser.click(f"//a[@href and normalize-space()='{label}']")

    def is_link(self, frame, label):
        self.browser.enter_frame(frame)
        return self.browser.count(f"//a[@href and normalize-space()='{label}']") > 0

    def frames(self):
        self.browser.enter_frame(None)
        return self.browser.run("return Array.from(document.querySelectorAll('frame'), f => [f.name, f.clientWidth])")

    def expect_walk(self, frame, label, pages):
        """Expects the first page; the link must lead from each page to the next, and be no link on the last one."""
        self.expect_page(frame, pages[0])
        for page in pages[1:]:
            self.click(frame, label)
            self.expect_page(frame, page)
        self.assertFalse(self.is_link(frame, label), f"{label} on {pages[-1]}")


class SingleFrame(GalleryInBrowser):
    def setUp(self):
        self.names = self.single.names()
        self.wrappers = [name + ".htm" for name in self.names]
        self.pages = [f"thumbpage_{number}.htm" for number in range(1, (len(self.names) + 5) // 6 + 1)]
        self.browser.open(self.single.index)

    def test_the_only_frame_shows_the_first_thumbnail_page(self):
        self.expect_page(THUMB_FRAME, self.pages[0])
        self.assertEqual([name for name, _ in self.frames()], [THUMB_FRAME])

    def test_every_thumbnail_loads_at_its_size_and_leads_to_its_wrapper_page(self):
        hrefs = []
        for page in self.pages:
            self.go(THUMB_FRAME, page)
            for image in self.images_in(THUMB_FRAME):
                self.assertEqual((image["naturalWidth"], image["naturalHeight"]), (60, 60), image)
                self.assertEqual((image["width"], image["height"]), (60, 60), image)
                hrefs.append(image["href"].rsplit("/", 1)[1])
        self.assertEqual(hrefs, self.wrappers)

    def test_a_click_on_a_thumbnail_opens_its_wrapper_page(self):
        for name in (self.names[0], galleries.UNICODE_NAME):
            self.go(THUMB_FRAME, self.pages[self.names.index(name) // 6])
            self.browser.click(f"//a[@href='{name}.htm']/img")
            self.expect_page(THUMB_FRAME, name + ".htm")

    def test_every_wrapper_page_shows_its_image(self):
        for name in self.names:
            self.go(THUMB_FRAME, name + ".htm")
            images = self.images_in(THUMB_FRAME)
            self.assertEqual([image["src"].rsplit("/", 1)[1] for image in images], [name + ".jpg"])
            self.assertEqual((images[0]["naturalHeight"], images[0]["height"]), (300, 300), images)
            self.assertEqual(images[0]["naturalWidth"], images[0]["width"], images)

    def test_next_and_back_lead_through_the_wrapper_pages(self):
        self.go(THUMB_FRAME, self.wrappers[0])
        self.expect_walk(THUMB_FRAME, "NEXT", self.wrappers)
        self.expect_walk(THUMB_FRAME, "BACK", self.wrappers[::-1])

    def test_first_and_last_lead_to_the_ends(self):
        self.go(THUMB_FRAME, self.wrappers[2])
        self.expect_walk(THUMB_FRAME, "LAST", [self.wrappers[2], self.wrappers[-1]])
        self.expect_walk(THUMB_FRAME, "FIRST", [self.wrappers[-1], self.wrappers[0]])

    def test_next_and_back_lead_through_the_thumbnail_pages(self):
        self.expect_walk(THUMB_FRAME, "NEXT", self.pages)
        self.expect_walk(THUMB_FRAME, "BACK", self.pages[::-1])

    def test_index_leads_back_to_the_images_thumbnail_page(self):
        for position in (0, 7, len(self.names) - 1):
            self.go(THUMB_FRAME, self.wrappers[position])
            self.click(THUMB_FRAME, "INDEX")
            self.expect_page(THUMB_FRAME, f"{self.pages[position // 6]}#{self.names[position]}")


class LeftFrame(GalleryInBrowser):
    def setUp(self):
        self.names = self.left.names()
        self.browser.open(self.left.index)

    def test_thumbnails_stand_left_of_the_first_image(self):
        self.expect_page(THUMB_FRAME, "thumbpage_1.htm")
        self.expect_page(IMAGE_FRAME, self.names[0] + ".htm")
        (left, width), (right, _) = self.frames()
        self.assertEqual((left, width, right), (THUMB_FRAME, 190, IMAGE_FRAME))

    def test_every_thumbnail_loads_in_the_shape_of_its_photograph(self):
        images = self.images_in(THUMB_FRAME)
        self.assertEqual(len(images), len(self.names))
        for image in images:
            self.assertEqual((image["naturalWidth"], image["width"]), (140, 140), image)
            self.assertLess(image["naturalHeight"], 140, image)

    def test_a_click_on_a_thumbnail_changes_the_image_frame_only(self):
        for name in (self.names[3], self.names[1], galleries.UNICODE_NAME):
            self.browser.enter_frame(THUMB_FRAME)
            self.browser.click(f"//a[@href='{name}.htm']/img")
            self.expect_page(IMAGE_FRAME, name + ".htm")
            self.assertEqual(self.page_in(THUMB_FRAME), "thumbpage_1.htm")
            image = self.images_in(IMAGE_FRAME)[0]
            self.assertEqual((image["naturalHeight"], image["height"]), (480, 480), image)

    def test_next_leads_on_in_the_image_frame_and_there_is_no_index_link(self):
        self.expect_page(IMAGE_FRAME, self.names[0] + ".htm")
        self.assertFalse(self.is_link(IMAGE_FRAME, "INDEX"))
        self.click(IMAGE_FRAME, "NEXT")
        self.expect_page(IMAGE_FRAME, self.names[1] + ".htm")
        self.assertEqual(self.page_in(THUMB_FRAME), "thumbpage_1.htm")


class Slideshow(GalleryInBrowser):
    def setUp(self):
        self.names = self.slideshow.names()
        self.browser.open(self.slideshow.index)

    def refresh(self):
        self.browser.enter_frame(THUMB_FRAME)
        return self.browser.run("return document.querySelector('meta[http-equiv=refresh i]').content")

    def test_it_begins_with_the_first_image_and_goes_on_by_itself(self):
        self.expect_page(THUMB_FRAME, self.names[0] + ".htm")
        self.assertEqual(self.refresh(), f"1; URL={self.names[1]}.htm")
        self.expect_page(THUMB_FRAME, self.names[1] + ".htm")
        self.expect_page(THUMB_FRAME, self.names[2] + ".htm")

    def test_it_starts_over_behind_the_last_image(self):
        self.go(THUMB_FRAME, self.names[-1] + ".htm")
        self.assertEqual(self.refresh(), f"1; URL={self.names[0]}.htm")
        self.expect_page(THUMB_FRAME, self.names[0] + ".htm")


class Preview(GalleryInBrowser):
    def setUp(self):
        self.browser.open(self.single.run("preview", self.single.project).rstrip("\n"))

    def test_thumbnails_are_the_photographs_themselves_scaled_by_the_browser(self):
        self.expect_page(THUMB_FRAME, "thumbpage_1.htm")
        images = self.images_in(THUMB_FRAME)
        self.assertEqual(len(images), 6)
        for image in images:
            self.assertTrue(image["src"].startswith("file://" + galleries.PHOTOGRAPHS), image)
            self.assertGreater(image["naturalWidth"], 1000, image)
            self.assertEqual((image["width"], image["height"]), (60, 60), image)

    def test_wrapper_pages_show_the_photographs(self):
        for name in (self.single.names()[-2], galleries.UNICODE_NAME):
            self.go(THUMB_FRAME, name + ".htm")
            image = self.images_in(THUMB_FRAME)[0]
            self.assertTrue(image["src"].endswith("/" + name), image)
            self.assertGreater(image["naturalWidth"], 1000, image)
            self.assertEqual(image["height"], 300, image)


class Screenshots(GalleryInBrowser):
    """Not a test: makes pictures for people to look at."""

    def take(self, folder):
        os.makedirs(folder, exist_ok=True)
        for name, gallery, pages in (
            ("single-frame", self.single, {}),
            ("wrapper-page", self.single, {THUMB_FRAME: "LadyBird.jpg.htm"}),
            ("left-frame", self.left, {IMAGE_FRAME: "LadyBird.jpg.htm"}),
        ):
            self.browser.open(gallery.index)
            for frame, page in pages.items():
                self.go(frame, page)
            for frame, _ in self.frames():
                self.images_in(frame)
            self.browser.screenshot(os.path.join(folder, name + ".png"))


def prepare(batch, folder):
    photographs = galleries.photographs_of(folder)
    single = galleries.single_frame(batch, os.path.join(folder, "single"), photographs)
    GalleryInBrowser.single = single
    GalleryInBrowser.left = galleries.left_frame(batch, os.path.join(folder, "left"), photographs)
    GalleryInBrowser.slideshow = galleries.slideshow_of(batch, os.path.join(folder, "slideshow"), single)
    GalleryInBrowser.browser = Browser(os.path.join(folder, "browser"))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--batch", required=True, metavar="PROGRAM", help="the batch program")
    parser.add_argument("--screenshots", metavar="FOLDER", help="save pictures of the galleries there")
    options = parser.parse_args()

    def prepare_and_take(folder):
        prepare(os.path.abspath(options.batch), folder)
        if options.screenshots:
            Screenshots().take(options.screenshots)

    return run_tests(GalleryInBrowser, prepare_and_take, SECONDS_FOR_ALL)


if __name__ == "__main__":
    sys.exit(main())
