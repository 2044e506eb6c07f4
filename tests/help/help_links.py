#!/usr/bin/env python3
"""Checks the links of the help: every page, image and anchor that they name must exist, and every page must be
reachable from index.html. Use: help_links.py FOLDER. Prints each problem on a line; exits with 1 if there are any."""

import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit


class Page(HTMLParser):
    """The contents of one page: its links with their line numbers, its images and its own anchors."""

    def __init__(self, file):
        super().__init__()
        self.links, self.anchors, self.wrong = [], set(), []
        self.feed(file.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        line = self.getpos()[0]
        anchor = attributes.get("id")
        if anchor and anchor in self.anchors:
            self.wrong.append((line, f'anchor "{anchor}" occurs twice'))
        self.anchors.add(anchor)
        for name in ("href", "src"):
            if name in attributes:
                self.links.append((line, attributes[name]))
        if tag == "img" and not attributes.get("alt"):
            self.wrong.append((line, "image without alternative text"))


def wrong_link(link, page, pages, folder):
    """The problem with a link of `page`, or None. A link to a place outside the help is a problem."""
    parts = urlsplit(link)
    if parts.scheme or parts.netloc:
        return f'"{link}" is outside the help'
    target = (page.parent / unquote(parts.path)).resolve() if parts.path else page
    if not target.is_relative_to(folder) or not target.is_file():
        return f'"{link}" does not exist'
    if parts.fragment and (target not in pages or parts.fragment not in pages[target].anchors):
        return f'"{link}" has no such anchor'
    return None


def reached(pages, start):
    found, waiting = set(), [start]
    while waiting:
        page = waiting.pop()
        if page in found or page not in pages:
            continue
        found.add(page)
        waiting += [(page.parent / unquote(urlsplit(link).path)).resolve() for _, link in pages[page].links]
    return found


def check(folder):
    """The problems of the help in `folder`, sorted."""
    folder = Path(folder).resolve()
    pages = {file: Page(file) for file in folder.rglob("*.html")}
    complaints = []
    for file, page in pages.items():
        name = file.relative_to(folder)
        complaints += [f"{name}:{line}: {text}" for line, text in page.wrong]
        for line, link in page.links:
            text = wrong_link(link, file, pages, folder)
            if text:
                complaints.append(f"{name}:{line}: {text}")
    index = folder / "index.html"
    if index not in pages:
        complaints.append("index.html is missing")
    complaints += [f"{file.relative_to(folder)} is not reached" for file in set(pages) - reached(pages, index)]
    return sorted(complaints)


if __name__ == "__main__":
    COMPLAINTS = check(sys.argv[1])
    print("\n".join(COMPLAINTS))
    sys.exit(1 if COMPLAINTS else 0)
