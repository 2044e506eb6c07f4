"""Drives a browser through the WebDriver protocol (W3C recommendation), with only the standard library."""

import base64
import http.client
import json
import os
import re
import shutil
import signal
import subprocess
import time

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"  # the key of an element's id, fixed by the protocol
PATIENCE = 15  # seconds to wait for one event
NARROWEST_DESK = 600  # pixels; a narrower screen is a telephone's

CHROMIUM_FLAGS = [
    "--headless",
    "--no-sandbox",
    "--disable-gpu",
    "--disable-dev-shm-usage",
    "--no-first-run",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-sync",
    "--allow-file-access-from-files",
    "--hide-scrollbars",
]


class BrowserError(Exception):
    """The driver refused a command, or something did not happen in time."""


def missing_programs():
    """The programs that the browser needs and that are not installed."""
    return [name for name in ("chromium", "chromedriver") if shutil.which(name) is None]


class Browser:
    """A headless Chromium with its driver. close() ends both. They write all their files into `folder`."""

    def __init__(self, folder, width=1000, height=800):
        self._session = None
        self._screen = (width, height)
        os.makedirs(folder, exist_ok=True)
        environment = dict(os.environ, HOME=folder, TMPDIR=folder)
        try:
            self._connection = http.client.HTTPConnection("127.0.0.1", self._start_driver(environment),
                                                          timeout=2 * PATIENCE)
            self._start_session(folder, width, height)
        except BaseException:
            self.close()
            raise

    def _start_driver(self, environment):
        """Starts the driver on a port of its choice and returns the port. The driver exits at once if another program
        takes the same port for the other IP version at that moment, so it is started up to five times."""
        for _ in range(5):
            self._driver = subprocess.Popen(
                ["chromedriver", "--port=0"],
                stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL,
                env=environment,
                start_new_session=True,  # so that the browser is in the driver's process group
                text=True,
            )
            for line in self._driver.stdout:
                started = re.search(r"started successfully on port (\d+)", line)
                if started:
                    return int(started.group(1))
            self._end_processes()
        raise BrowserError("chromedriver did not start")

    def _start_session(self, folder, width, height):
        flags = CHROMIUM_FLAGS + [f"--user-data-dir={folder}/profile", f"--window-size={width},{height}"]
        options = {"binary": shutil.which("chromium"), "args": flags}
        capabilities = {"alwaysMatch": {"goog:chromeOptions": options, "timeouts": {"pageLoad": 1000 * PATIENCE}}}
        self._session = self._send("POST", "/session", {"capabilities": capabilities})["sessionId"]

    def close(self):
        if self._session is not None:
            try:
                self._send("DELETE", f"/session/{self._session}")
            except (BrowserError, OSError, http.client.HTTPException):
                pass  # the processes are killed below in any case
        self._end_processes()
        self._driver.stdout.close()

    def _end_processes(self):
        """Kills the rest of the driver's process group and waits up to two seconds until it is gone."""
        for _ in range(100):
            try:
                os.killpg(self._driver.pid, signal.SIGKILL)
            except ProcessLookupError:
                return
            self._driver.poll()
            time.sleep(0.02)

    def _send(self, method, path, body=None):
        text = None if body is None else json.dumps(body)
        self._connection.request(method, path, text, {"Content-Type": "application/json"})
        value = json.loads(self._connection.getresponse().read())["value"]
        if isinstance(value, dict) and "error" in value:
            raise BrowserError(f"{value['error']}: {value['message']}")
        return value

    def _command(self, name, **body):
        return self._send("POST", f"/session/{self._session}/{name}", body)

    def open(self, file):
        self.open_address("file://" + file)

    def open_address(self, address):
        self._command("url", url=address)

    def enter_frame(self, name):
        """Directs the following calls to the frame of that name in the top page; None is the top page itself."""
        self._command("frame", id=None)
        if name is not None:
            frame = self._command("element", using="css selector", value=f'frame[name="{name}"]')
            self._command("frame", id=frame)

    def run(self, script, *arguments):
        """Runs a script in the current frame and returns its result."""
        return self._command("execute/sync", script=script, args=list(arguments))

    def click(self, xpath):
        element = self._command("element", using="xpath", value=xpath)
        self._command(f"element/{element[ELEMENT]}/click")

    def count(self, xpath):
        return len(self._command("elements", using="xpath", value=xpath))

    def screenshot(self, file):
        self._command("frame", id=None)
        picture = self._send("GET", f"/session/{self._session}/screenshot")
        with open(file, "wb") as output:
            output.write(base64.b64decode(picture))

    def set_screen(self, width, height):
        """Shows pages on a screen of that size, which may be smaller than any window of the browser."""
        self._screen = (width, height)
        self._devtools("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1,
                       mobile=width < NARROWEST_DESK)

    def photograph(self, file, width):
        """Saves the screen of set_screen as a JPEG file, reduced to that width."""
        area = dict(x=0, y=0, width=self._screen[0], height=self._screen[1], scale=width / self._screen[0])
        picture = self._devtools("Page.captureScreenshot", format="jpeg", quality=82, clip=area)
        with open(file, "wb") as output:
            output.write(base64.b64decode(picture["data"]))

    def _devtools(self, command, **parameters):
        return self._command("goog/cdp/execute", cmd=command, params=parameters)


def wait_until(what, condition):
    """Waits until condition() is true and returns its value."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            value = condition()
        except BrowserError:  # the page is just being replaced
            value = None
        if value:
            return value
        if time.monotonic() > deadline:
            raise BrowserError("did not happen in time: " + what)
        time.sleep(0.02)
