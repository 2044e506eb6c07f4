"""A user's home, the two programs in it, and a screen to use them on."""

import contextlib
import filecmp
import json
import os
import shutil
import subprocess
import time

PHOTOGRAPH = os.path.join(os.path.dirname(__file__), "..", "..", "data", "preview.jpg")


class Harness:
    """A home folder with two photographs; it is drive C: of the programs."""

    def __init__(self, folder, screen, programs):
        self.folder = folder
        self.screen = screen
        self._programs = programs
        self._window = None
        self._environment = dict(os.environ, DISPLAY=screen.display, HOME=folder, XDG_CONFIG_HOME=self.path("config"),
                                 XDG_CACHE_HOME=self.path("cache"),
                                 XDG_RUNTIME_DIR=folder, QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="0",
                                 PATH=self.path("bin") + ":" + os.environ["PATH"])
        for name in ("a.jpg", "b.jpg"):
            shutil.copy(PHOTOGRAPH, self.path(name))
        os.makedirs(self.path("bin"))
        for opener in ("xdg-open", "gio"):
            self.make_opener(opener, "opened")

    def make_opener(self, name, list_name):
        """Makes a program that only records what it was asked to open."""
        opener = self.path("bin", name)
        with open(opener, "w") as script:
            script.write(f'#!/bin/sh\necho "$@" >> "{self.path(list_name)}"\n')
        os.chmod(opener, 0o755)

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def read(self, *names):
        with open(self.path(*names), "rb") as file:
            return file.read()

    def text(self, *names):
        return self.read(*names).decode()

    @contextlib.contextmanager
    def window(self, *arguments, ftp_port=21):
        """Runs the window for the length of a block; the block must close it."""
        program = subprocess.Popen([self._programs.window, *arguments],
                                   env=dict(self._environment, VANTORIUM_FTP_PORT=str(ftp_port)))
        try:
            yield
            code = program.wait(timeout=30)
            if code != 0:
                raise AssertionError(f"the program ended with {code}")
        finally:
            if program.poll() is None:
                program.kill()
                program.wait()

    @contextlib.contextmanager
    def project(self, name, ftp_port=21):
        """Runs the window with a project."""
        with self.window(self.path(name), ftp_port=ftp_port):
            self.screen.wait_for_window(name)
            yield
            self.screen.wait_for_window(name)
            self.leave()

    def leave(self):
        self.screen.press("alt+f", "e")

    def batch(self, *arguments):
        command = [self._programs.batch, "--program-folder", self.path("batch"), *arguments]
        finished = subprocess.run(command, env=self._environment, capture_output=True, text=True, timeout=60)
        if finished.returncode != 0:
            raise AssertionError(f"{arguments}: {finished.stderr}")
        return finished.stdout

    def make_project(self, name, *photographs):
        self.batch("new", "--force", self.path(name), *[self.path(photograph) for photograph in photographs])

    def make_photographs(self):
        """Writes the photographs of tests/browser/Photographs.cpp into the home."""
        subprocess.run([self._programs.photographs, self.folder], check=True, timeout=60)

    def create(self, folder):
        """Creates the gallery of the open project in a folder of the home."""
        screen = self.screen
        screen.press("ctrl+g")
        screen.wait_for_window("Create Gallery")
        screen.press("alt+l", "Tab", "ctrl+a")  # the box after the option
        screen.type(f"C:\\{folder}\\index.htm")
        screen.press("Return")
        screen.wait_for_no_window("Create Gallery")
        wait_for_file(self.path(folder, "index.htm"))  # while the run's window is up
        screen.wait_for_no_window("Creating Gallery")

    def show(self, name):
        return json.loads(self.batch("show", self.path(name)))

    @contextlib.contextmanager
    def ftp_server(self, *words):
        """Runs a real server on loopback, as FtpServer.cpp says; gives what that prints."""
        server = subprocess.Popen([self._programs.ftp_server, *words], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            yield json.loads(server.stdout.readline())
        finally:
            server.communicate(timeout=30)


def expect(expected, actual, what):
    if expected != actual:
        raise AssertionError(f"{what}: {actual!r} in place of {expected!r}")


def expect_within(part, text, what):
    if part not in text:
        raise AssertionError(f"{what}: no {part!r} in {text!r}")


def wait_for(condition, what, seconds=30):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"{what} does not come")
        time.sleep(0.05)


def wait_for_file(path):
    wait_for(lambda: os.path.exists(path), path)


def files_below(folder):
    return sorted(os.path.relpath(os.path.join(where, name), folder)
                  for where, _, names in os.walk(folder) for name in names)


def expect_equal_folders(expected, actual):
    expect(files_below(expected), files_below(actual), f"files of {actual}")
    for name in files_below(expected):
        if not filecmp.cmp(os.path.join(expected, name), os.path.join(actual, name), shallow=False):
            raise AssertionError(f"{name} of {actual} differs from that of {expected}")
