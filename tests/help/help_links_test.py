#!/usr/bin/env python3
"""Tests of help_links.py."""

import tempfile
import unittest
from pathlib import Path

from help_links import check


class HelpLinks(unittest.TestCase):
    def problems(self, **pages):
        """The problems reported for a help with these pages, the image there.png and the style sheet a.css."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in pages.items():
                (Path(folder) / f"{name}.html").write_text(text, encoding="utf-8")
            (Path(folder) / "there.png").touch()
            (Path(folder) / "a.css").touch()
            return check(folder)

    def test_a_correct_help_has_no_problems(self):
        index = '<link href="a.css"><a href="two.html#there">2</a><a href="#own" id="own">1</a>'
        self.assertEqual(self.problems(index=index, two='<b id="there"><img src="there.png" alt="a picture">'), [])

    def test_a_missing_page_is_reported_with_its_line(self):
        self.assertEqual(self.problems(index='\n<a href="gone.html">x</a>'), ['index.html:2: "gone.html" does not exist'])

    def test_a_missing_image_is_reported(self):
        self.assertEqual(self.problems(index='<img src="gone.png" alt="x">'), ['index.html:1: "gone.png" does not exist'])

    def test_a_missing_anchor_is_reported(self):
        self.assertEqual(
            self.problems(index='<a href="two.html#gone">x</a><a href="#gone">y</a><a href="there.png#z">z</a>', two=""),
            [
                'index.html:1: "#gone" has no such anchor',
                'index.html:1: "there.png#z" has no such anchor',
                'index.html:1: "two.html#gone" has no such anchor',
            ],
        )

    def test_a_page_that_no_link_reaches_is_reported(self):
        self.assertEqual(
            self.problems(index="", two='<a href="three.html">3</a>', three='<a href="two.html">2</a>'),
            ["three.html is not reached", "two.html is not reached"],
        )

    def test_a_link_out_of_the_help_is_reported(self):
        self.assertEqual(
            self.problems(index='<a href="https://example.com/">x</a><a href="../../etc/passwd">y</a>'),
            [
                'index.html:1: "../../etc/passwd" does not exist',
                'index.html:1: "https://example.com/" is outside the help',
            ],
        )

    def test_an_image_without_alternative_text_and_a_repeated_anchor_are_reported(self):
        self.assertEqual(
            self.problems(index='<img src="there.png"><b id="a"><b id="a">'),
            [
                'index.html:1: anchor "a" occurs twice',
                "index.html:1: image without alternative text",
            ],
        )

    def test_a_help_without_an_index_is_reported(self):
        self.assertEqual(self.problems(two=""), ["index.html is missing", "two.html is not reached"])


if __name__ == "__main__":
    unittest.main()
