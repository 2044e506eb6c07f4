"""Opens a gallery of each theme in a real browser, on the screens of a telephone and of a desk.

Use: themes_in_browser.py --batch PROGRAM --themes FOLDER
Exit code: 0 success, 1 failure.
"""

import argparse
import os
import sys
import unittest

sys.dont_write_bytecode = True  # leaves the source folder unchanged

import galleries
from harness import run_tests
from webdriver import Browser, wait_until

SECONDS_FOR_ALL = 100
SMALLEST_READABLE = 11  # pixels
SCREENS = {"telephone": (390, 844), "desk": (1440, 900)}
ALL_LOADED = "return document.readyState === 'complete' && Array.from(document.images).every(image => image.complete)"
# A page with a frameset or without overflow has no scrolling element.
WIDTHS = """
    return [window.innerWidth, Math.max(document.documentElement.scrollWidth, document.body.scrollWidth)]"""

# An image may show a part of itself (object-fit), but what it shows must have the shape of the photograph.
BAD_IMAGES = """
    return Array.from(document.images, image => ({
        src: image.src, natural: image.naturalWidth / image.naturalHeight, shown: image.width / image.height,
        width: image.width, loaded: image.naturalWidth > 0,
        fit: getComputedStyle(image).objectFit, alt: image.alt}))
        .filter(image => !image.loaded || !image.alt || image.width < 40
            || (image.fit === 'fill' && Math.abs(image.natural / image.shown - 1) > 0.05));"""

# The smallest text, in pixels of the screen.
SMALLEST_TEXT = """
    const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    let smallest = 99;
    while (walker.nextNode()) {
        const style = getComputedStyle(walker.currentNode.parentElement);
        const size = parseFloat(style.fontSize);
        if (walker.currentNode.nodeValue.trim() && size > 0) smallest = Math.min(smallest, size);
    }
    return smallest;"""


class ThemesInBrowser(unittest.TestCase):
    """main makes `browser` and `galleries`, one for each theme, once."""

    browser: Browser
    galleries: dict
    seen: dict  # what was measured on each kind of page of each gallery on each screen

    @classmethod
    def setUpClass(cls):
        cls.seen = {}
        for theme, gallery in cls.galleries.items():
            names = gallery.names()
            for screen, size in SCREENS.items():
                cls.browser.set_screen(*size)
                for page in ("index.htm", "thumbpage_1.htm", "thumbpage_2.htm", names[0] + ".htm", names[2] + ".htm"):
                    cls.browser.open(os.path.join(gallery.folder, page))
                    wait_until("the page", lambda: cls.browser.run(ALL_LOADED))
                    looks = (WIDTHS, BAD_IMAGES, SMALLEST_TEXT)
                    cls.seen[theme, screen, page] = [cls.browser.run(look) for look in looks]

    def expect_nowhere(self, is_bad):
        """Expects is_bad(screen width, measured...) to be false for every page."""
        bad = {where: measured for where, measured in self.seen.items() if is_bad(SCREENS[where[1]][0], *measured)}
        self.assertEqual(bad, {})

    def test_pages_are_as_wide_as_the_screen(self):
        self.expect_nowhere(lambda width, widths, _images, _text: widths != [width, width])

    def test_photographs_keep_their_shape_and_have_a_text(self):
        self.expect_nowhere(lambda _width, _widths, bad_images, _text: bad_images)

    def test_texts_can_be_read(self):
        self.expect_nowhere(lambda _width, _widths, _images, smallest_text: smallest_text < SMALLEST_READABLE)


def prepare(batch, themes, folder):
    photographs = galleries.photographs_of(folder)
    ThemesInBrowser.galleries = {}
    for theme in sorted(name[: -len(".gpj")] for name in os.listdir(themes) if name.endswith(".gpj")):
        gallery = galleries.gallery_of_theme(batch, os.path.join(folder, theme), photographs, theme)
        ThemesInBrowser.galleries[theme] = gallery
    ThemesInBrowser.browser = Browser(os.path.join(folder, "browser"))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--batch", required=True, metavar="PROGRAM", help="the batch program")
    parser.add_argument("--themes", required=True, metavar="FOLDER", help="the themes that come with the program")
    options = parser.parse_args()
    batch = os.path.abspath(options.batch)
    return run_tests(ThemesInBrowser, lambda folder: prepare(batch, options.themes, folder), SECONDS_FOR_ALL)


if __name__ == "__main__":
    sys.exit(main())
