"""Opens a gallery with unusual names in a real browser, from a real server: just the names that the batch program warns
of may have links that do not work.

Use: warnings_in_browser.py --batch PROGRAM
Exit code: 0 success, 1 failure.
"""

import argparse
import functools
import http.server
import os
import re
import shutil
import subprocess
import sys
import threading
import unittest

sys.dont_write_bytecode = True  # leaves the source folder unchanged

import galleries
from harness import run_tests
from webdriver import Browser, wait_until

SECONDS_FOR_ALL = 60

NAMES = [
    "plain.jpg", "two words.jpg", "R&D.jpg", "a&copyright.jpg", "a&copy=b.jpg", "a+b=c.jpg", "(1)[2]{3}.jpg",
    "a,b;c!$*@^`~|.jpg", "<b>.jpg", "don't.jpg", "'quoted'.jpg", "10:30.jpg", "Äpfel 月.jpg",
    "a#1.jpg", "why?.jpg", 'a"b.jpg', "a%20b.jpg", "a%41.jpg", "100%.jpg", "x&lt;y.jpg", "a&copy.b.jpg", " blank.jpg",
    "Evening:1.jpg", "tab\there.jpg",
]
# Servers differ about a "%" that begins no code: this one takes it as it is.
DEPENDS_ON_SERVER = {"100%.jpg"}

# Link number i must lead to the page of image number i, and each thumbnail must load.
WORKING_LINKS = """
    const thumbnails = Array.from(document.images);
    return Promise.all(thumbnails.map(async (image, i) => {
        const link = image.closest('a[href]');
        if (link === null || image.naturalWidth === 0) return false;
        try {
            const page = await (await fetch(link.href)).text();
            return page.includes(` Image ${i + 1} of `);
        } catch (error) {
            return false;
        }
    }));"""


class QuietServer(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_arguments):
        pass


class Warnings(unittest.TestCase):
    """main makes `browser` and `folder` once."""

    browser: Browser
    batch: str
    folder: str

    def setUp(self):
        photographs = os.path.join(self.folder, "photographs")
        os.makedirs(photographs)
        for name in NAMES:
            shutil.copy(os.path.join(galleries.PHOTOGRAPHS, "nature", "Garden.jpg"), os.path.join(photographs, name))
        self.gallery = galleries.Gallery(self.batch, os.path.join(self.folder, "gallery"))
        self.gallery.run("new", self.gallery.project, photographs)
        self.gallery.edit(ARRANGEMENT__ROWS=len(NAMES))
        serve = functools.partial(QuietServer, directory=self.gallery.folder)
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), serve)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def tearDown(self):
        self.server.shutdown()
        self.server.server_close()

    def warned(self):
        """Creates the gallery and returns the names of the images in its warnings."""
        command = [self.batch, "--program-folder", self.folder, "--temp-folder", self.folder]
        finished = subprocess.run(command + ["create", self.gallery.project, self.gallery.index], text=True,
                                  capture_output=True, timeout=60)
        self.assertEqual(finished.returncode, 0, finished.stderr)
        numbers = re.findall(r"^Warning: Image (\d+), ", finished.stderr, re.MULTILINE)
        return {self.gallery.names()[int(number) - 1] for number in numbers}

    def broken(self):
        self.browser.open_address(f"http://127.0.0.1:{self.server.server_port}/thumbpage_1.htm")
        wait_until("thumbnails", lambda: self.browser.run(
            "return Array.from(document.images).every(image => image.complete)"))
        working = self.browser.run(WORKING_LINKS)
        self.assertEqual(len(working), len(NAMES))
        return {name for name, works in zip(self.gallery.names(), working) if not works}

    def test_just_the_names_with_warnings_have_links_that_do_not_work(self):
        warned = self.warned()
        self.assertEqual(self.broken(), warned - DEPENDS_ON_SERVER)
        self.assertLessEqual(DEPENDS_ON_SERVER, warned)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--batch", required=True, metavar="PROGRAM", help="the batch program")
    options = parser.parse_args()

    def prepare(folder):
        Warnings.folder = folder
        Warnings.batch = os.path.abspath(options.batch)
        Warnings.browser = Browser(os.path.join(folder, "browser"))

    return run_tests(Warnings, prepare, SECONDS_FOR_ALL)


if __name__ == "__main__":
    sys.exit(main())
