"""Galleries for the browser, made from real photographs by the batch program."""

import json
import os
import re
import shutil
import subprocess

PHOTOGRAPHS = "/usr/share/backgrounds/mate"
UNICODE_NAME = "Zwölf 月.jpg"


class Gallery:
    """A project and its gallery, in a folder of their own."""

    def __init__(self, batch, folder):
        self.folder = folder
        self.project = os.path.join(folder, "gallery.gpj")
        self.index = os.path.join(folder, "index.htm")
        self._command = [batch, "--program-folder", folder, "--temp-folder", folder]
        os.makedirs(folder, exist_ok=True)

    def run(self, *arguments):
        """Runs the batch program and returns its output."""
        finished = subprocess.run(self._command + list(arguments), capture_output=True, text=True, timeout=60)
        if finished.returncode != 0:
            raise RuntimeError(f"{arguments} ended with {finished.returncode}:\n{finished.stderr}")
        return finished.stdout

    def edit(self, **attributes):
        """Sets attributes in the project file; ELEMENT__NAME is the attribute NAME of the first such element."""
        text = self._read()
        for name, value in attributes.items():
            element, attribute = name.split("__")
            pattern = rf'(<{element} [^>]*?\b{attribute}=")[^"]*'
            text, changed = re.subn(pattern, rf"\g<1>{value}", text, count=1)
            if changed != 1:
                raise RuntimeError(f"{element} has no {attribute} in\n{text}")
        self._write(text)

    def replace(self, old, new):
        text = self._read()
        if text.count(old) != 1:
            raise RuntimeError(f"{old} is not there once in\n{text}")
        self._write(text.replace(old, new))

    def describe(self, name, description):
        """Gives an image without a description one."""
        element = re.search(f'<IMAGE [^>]*NAME="{re.escape(name)}"[^>]*/>', self._read()).group()
        self.replace(element, f"{element[:-2]}><DESCRIPTION><![CDATA[{description}]]></DESCRIPTION></IMAGE>")

    def names(self):
        """The names of the images in the order of the gallery."""
        return [image["ImageName"] for image in json.loads(self.run("show", self.project))["images"]]

    def _read(self):
        with open(self.project, encoding="utf-8") as file:
            return file.read()

    def _write(self, text):
        with open(self.project, "w", encoding="utf-8") as file:
            file.write(text)


def photographs_of(folder):
    """The folder of the photographs, and a folder with a copy whose name has a blank and letters of other languages."""
    target = os.path.join(folder, "photographs")
    os.makedirs(target)
    shutil.copy(os.path.join(PHOTOGRAPHS, "nature", "Garden.jpg"), os.path.join(target, UNICODE_NAME))
    return [PHOTOGRAPHS, target]


def new_gallery(batch, folder, photographs):
    gallery = Gallery(batch, folder)
    gallery.run("new", gallery.project, "--title", "MATE", "--recursive", *photographs)
    return gallery


def single_frame(batch, folder, photographs):
    """A gallery with the settings of a new project, but with several thumbnail pages."""
    gallery = new_gallery(batch, folder, photographs)
    gallery.edit(ARRANGEMENT__ROWS=2, ARRANGEMENT__COLS=3)
    gallery.run("create", gallery.project, gallery.index)
    return gallery


def left_frame(batch, folder, photographs):
    """Thumbnails on the left, dark pages, all pictures with the aspect ratio of the photographs, nature only."""
    gallery = new_gallery(batch, folder, [os.path.join(PHOTOGRAPHS, "nature"), *photographs[1:]])
    gallery.edit(LAYOUT__TYPE="thumbsleft", LAYOUT__IMAGEFRAMENAME="image_frame", LAYOUT__FRAMESIZE=190)
    gallery.edit(ARRANGEMENT__ROWS=20, ARRANGEMENT__COLS=1, ARRANGEMENT__CELLSPACING=8, SIZE__HEIGHT=480)
    gallery.replace(
        '<SIZE KEEPASPECTRATIO="0" WIDTH="60" HEIGHT="60"/>', '<SIZE KEEPASPECTRATIO="1" WIDTH="140"/>'
    )
    # In a project file blue comes first and red last.
    colors = 'BGCOLOR="202020" TEXT="E0E0E0" LINK="F0C890" ALINK="FFFFFF" VLINK="F0C890" '
    gallery.replace("<THUMBNAILPAGE ", "<THUMBNAILPAGE " + colors)
    gallery.replace("<IMAGEPAGE ", "<IMAGEPAGE " + colors)
    gallery.run("create", gallery.project, gallery.index)
    return gallery


def slideshow_of(batch, folder, made):
    """An endless slideshow of an existing gallery, with one second for each image."""
    gallery = Gallery(batch, folder)
    for name in ("Images", "Thumbs"):
        shutil.copytree(os.path.join(made.folder, name), os.path.join(folder, name))
    shutil.copy(made.project, gallery.project)
    show = '<SLIDESHOW FIRSTSLIDE="firstImage" NEXTSLIDE="nextImage" STARTOVER="firstImage" AUTOSTART="0" DELAY="1"/>'
    gallery.replace('BORDERS="0"/>', f'BORDERS="0">{show}</LAYOUT>')
    gallery.run("create", gallery.project, gallery.index, "--keep-existing")
    return gallery


def gallery_of_theme(batch, folder, photographs, theme):
    """A gallery with the settings of a theme, but with thumbnail pages of ten and a long title and description."""
    gallery = Gallery(batch, folder)
    gallery.run("new", gallery.project, "--theme", theme, "--title", "A title " + "that goes on " * 8 + "x" * 60,
                "--recursive", *[os.path.join(PHOTOGRAPHS, "nature"), *photographs[1:]])
    gallery.edit(ARRANGEMENT__ROWS=1, ARRANGEMENT__COLS=10)
    gallery.describe(gallery.names()[2], "A long description. " * 20 + "y" * 90)
    gallery.run("create", gallery.project, gallery.index)
    return gallery
