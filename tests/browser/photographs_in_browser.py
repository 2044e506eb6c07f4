"""Opens galleries of photographs that all show the same patches in a real browser. The photographs are stored in every
orientation and with several color profiles, so they look alike only if they are turned and their colors are converted.

Use: photographs_in_browser.py --batch PROGRAM --photographs PROGRAM
Exit code: 0 success, 1 failure.
"""

import argparse
import os
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True  # leaves the source folder unchanged

import galleries
from harness import run_tests
from webdriver import Browser, wait_until

SECONDS_FOR_ALL = 80
MODEL = "sRGB_1.jpg"  # stands, and has the colors of the screen
TOLERANCE = 8  # of 255: colors were rounded and compressed

ALL_LOADED = "return document.readyState === 'complete' && Array.from(document.images).every(image => image.complete)"

# The proportions of each image on its page, and the colors in the middle of its patches.
LOOKS = """
    const canvas = document.createElement('canvas');
    return Array.from(document.images, ({width, height}, i) => {
        [canvas.width, canvas.height] = [width, height];
        const context = canvas.getContext('2d');
        context.drawImage(document.images[i], 0, 0, width, height);
        const middles = [[1, 1], [3, 1], [5, 1], [1, 3], [3, 3], [5, 3]];
        return {proportions: width / height, colors: middles.flatMap(([x, y]) =>
            Array.from(context.getImageData(width * x / 6, height * y / 4, 1, 1).data.slice(0, 3)))};
    });"""


class PhotographsInBrowser(unittest.TestCase):
    """main makes `browser` and the folder `photographs` once."""

    browser: Browser
    batch: str
    photographs: str

    def setUp(self):
        self.names = sorted(os.listdir(self.photographs))
        self.assertEqual(len(self.names), 24)
        self.model = self.looks_of(os.path.join(self.photographs, MODEL))[0]

    def looks_of(self, page):
        self.browser.open(page)
        wait_until(page, lambda: self.browser.run(ALL_LOADED))
        return self.browser.run(LOOKS)

    def is_like_model(self, looks):
        differences = [abs(one - other) for one, other in zip(looks["colors"], self.model["colors"])]
        return looks["proportions"] == self.model["proportions"] and max(differences) <= TOLERANCE

    def gallery(self, *switches):
        """A project whose pages keep the proportions of the photographs. All thumbnails are on one page."""
        gallery = galleries.Gallery(self.batch, os.path.join(os.path.dirname(self.photographs), self.id()))
        gallery.run("new", gallery.project, *switches, self.photographs)
        gallery.replace('<SIZE KEEPASPECTRATIO="0" WIDTH="60" HEIGHT="60"/>', '<SIZE KEEPASPECTRATIO="1" WIDTH="60"/>')
        gallery.edit(ARRANGEMENT__ROWS=len(self.names), SIZE__HEIGHT=120)
        self.assertEqual(gallery.names(), self.names)
        return gallery

    def created(self, *switches):
        gallery = self.gallery(*switches)
        gallery.run("create", gallery.project, gallery.index)
        return gallery.folder

    def unlike_model(self, folder):
        """The names of the photographs in a gallery that do not look like the model; each looks the same as a thumbnail
        and on its own page."""
        thumbnails = self.looks_of(os.path.join(folder, "thumbpage_1.htm"))
        images = [self.looks_of(os.path.join(folder, name + ".htm")) for name in self.names]
        self.assertEqual([len(images_of_page) for images_of_page in images], [1] * len(thumbnails))
        unlike = [{name for name, looks in zip(self.names, kind, strict=True) if not self.is_like_model(looks)}
                  for kind in (thumbnails, [image for (image,) in images])]
        self.assertEqual(*unlike)
        return unlike[0]

    def test_the_browser_shows_the_photographs_themselves_alike(self):
        looks = {name: self.looks_of(os.path.join(self.photographs, name))[0] for name in self.names}
        self.assertEqual({name: look for name, look in looks.items() if not self.is_like_model(look)}, {})

    def test_turned_and_converted_photographs_look_as_the_browser_shows_them(self):
        self.assertEqual(self.unlike_model(self.created("--upright", "--true-colors")), set())

    def test_a_preview_looks_as_the_browser_shows_the_photographs(self):
        gallery = self.gallery("--upright", "--true-colors")
        index = gallery.run("preview", gallery.project).strip()
        self.assertEqual(self.unlike_model(os.path.dirname(index)), set())

    def test_without_upright_just_photographs_that_lie_look_different(self):
        lying = {name for name in self.names if not name.endswith("_1.jpg")}
        self.assertEqual(self.unlike_model(self.created("--true-colors")), lying)

    def test_without_true_colors_just_photographs_with_other_profiles_look_different(self):
        others = {name for name in self.names if not name.startswith("sRGB_")}
        self.assertEqual(self.unlike_model(self.created("--upright")), others)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--batch", required=True, metavar="PROGRAM", help="the batch program")
    parser.add_argument("--photographs", required=True, metavar="PROGRAM", help="writes the photographs")
    options = parser.parse_args()

    def prepare(folder):
        PhotographsInBrowser.batch = os.path.abspath(options.batch)
        PhotographsInBrowser.photographs = os.path.join(folder, "photographs")
        os.makedirs(PhotographsInBrowser.photographs)
        subprocess.run([options.photographs, PhotographsInBrowser.photographs], check=True, timeout=60)
        PhotographsInBrowser.browser = Browser(os.path.join(folder, "browser"))

    return run_tests(PhotographsInBrowser, prepare, SECONDS_FOR_ALL)


if __name__ == "__main__":
    sys.exit(main())
