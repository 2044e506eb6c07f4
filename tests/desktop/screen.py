"""A separate screen for a program, its keyboard and its mouse."""

import os
import shutil
import subprocess
import time

TOOLS = ("Xvfb", "xdotool")


class Screen:
    """An X server without a window manager; it ends with the block."""

    def __enter__(self):
        for tool in TOOLS:
            if not shutil.which(tool):
                raise RuntimeError(f"{tool} is not installed: run packaging/install-dependencies tests")
        read, write = os.pipe()
        self._server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24", "-noreset"],
                                        pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            self.display = ":" + answer.readline().strip()
        return self

    def __exit__(self, *failure):
        self._server.terminate()
        self._server.wait(timeout=10)

    def _xdotool(self, *words):
        environment = dict(os.environ, DISPLAY=self.display)
        return subprocess.run(["xdotool", *words], capture_output=True, text=True, env=environment, timeout=30).stdout

    def _windows(self, title):
        return self._xdotool("search", "--onlyvisible", "--name", title).split()

    def wait_for_window(self, title, seconds=30):
        """Waits for a window whose title contains the text, and gives it the keyboard focus."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            found = self._windows(title)
            if found:
                self._xdotool("windowfocus", "--sync", found[-1])
                return
            time.sleep(0.1)
        raise AssertionError(f'no window "{title}" came up; there are: {self.titles()}')

    def press_until(self, next_title, title, key, seconds=30):
        """Presses the key in each window of that title that comes up, until the next one is there."""
        end = time.monotonic() + seconds
        while not self._windows(next_title) and time.monotonic() < end:
            for window in self._windows(title)[-1:]:
                self._xdotool("windowfocus", "--sync", window)
                self.press(key)
            time.sleep(0.1)
        self.wait_for_window(next_title, seconds=1)

    def wait_for_no_window(self, title, seconds=30):
        end = time.monotonic() + seconds
        while self._windows(title):
            if time.monotonic() > end:
                raise AssertionError(f'the window "{title}" stays')
            time.sleep(0.1)

    def titles(self):
        return [self._xdotool("getwindowname", window).strip() for window in self._windows(".")]

    def click(self, title, x, y):
        """Clicks a place in a window, in pixels from its top left."""
        self._xdotool("mousemove", "--sync", "--window", self._windows(title)[-1], str(x), str(y), "click", "1")
        time.sleep(0.05)

    def press(self, *keys):
        for key in keys:
            self._xdotool("key", "--delay", "30", key)
            # A button that is pressed by its letter acts a tenth of a second later.
            time.sleep(0.3 if key.startswith("alt+") else 0.05)

    def type(self, text):
        self._xdotool("type", "--delay", "10", text)
        time.sleep(0.1)

    def write(self, key, text):
        """Goes to a text box by its letter and replaces its text."""
        self.press(key, "ctrl+a")
        self.type(text)
