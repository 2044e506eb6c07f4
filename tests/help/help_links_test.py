#!/usr/bin/env python3
"""Tests that help_links.py finds the problems that it should find."""

import tempfile
import unittest
from pathlib import Path

from help_links import check


class HelpLinks(unittest.TestCase):
    def complaints(self, **pages):
        """The problems reported for a help with these pages, the image there.png and the style sheet a.css."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in pages.items():
                (Path(folder) / f"{name}.html").write_text(text, encoding="utf-8")
            (Path(folder) / "there.png").touch()
            (Path(folder) / "a.css").touch()
            return check(folder)

    def test_a_help_in_order_is_not_complained_of(self):
        index = '<link href="a.css"><a href="two.html#there">2</a><a href="#own" id="own">1</a>'
        self.assertEqual(self.complaints(index=index, two='<b id="there"><img src="there.png" alt="a picture">'), [])

    def test_a_missing_page_is_told_with_its_line(self):
        self.assertEqual(self.complaints(index='\n<a href="gone.html">x</a>'), ['index.html:2: "gone.html" is not there'])

    def test_a_missing_image_is_told(self):
        self.assertEqual(self.complaints(index='<img src="gone.png" alt="x">'), ['index.html:1: "gone.png" is not there'])

    def test_a_missing_anchor_is_told(self):
        self.assertEqual(
            self.complaints(index='<a href="two.html#gone">x</a><a href="#gone">y</a><a href="there.png#z">z</a>', two=""),
            [
                'index.html:1: "#gone" has no such anchor',
                'index.html:1: "there.png#z" has no such anchor',
                'index.html:1: "two.html#gone" has no such anchor',
            ],
        )

    def test_a_page_that_no_link_reaches_is_told(self):
        self.assertEqual(
            self.complaints(index="", two='<a href="three.html">3</a>', three='<a href="two.html">2</a>'),
            ["three.html is not reached", "two.html is not reached"],
        )

    def test_a_link_out_of_the_help_is_told(self):
        self.assertEqual(
            self.complaints(index='<a href="https://example.com/">x</a><a href="../../etc/passwd">y</a>'),
            [
                'index.html:1: "../../etc/passwd" is not there',
                'index.html:1: "https://example.com/" leads out of the help',
            ],
        )

    def test_an_image_without_a_text_and_an_anchor_twice_are_told(self):
        self.assertEqual(
            self.complaints(index='<img src="there.png"><b id="a"><b id="a">'),
            [
                'index.html:1: anchor "a" stands there twice',
                "index.html:1: image without a text for those who do not see it",
            ],
        )

    def test_a_help_without_an_index_is_told(self):
        self.assertEqual(self.complaints(two=""), ["index.html is missing", "two.html is not reached"])


if __name__ == "__main__":
    unittest.main()
