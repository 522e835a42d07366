"""A headless Chromium, driven by chromedriver over WebDriver."""

import json
import socket
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

FLAGS = [
    "--headless",
    "--no-sandbox",
    "--disable-gpu",
    "--disable-quic",
    "--no-first-run",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-sync",
    "--disable-dev-shm-usage",
    "--window-size=1400,900",
]

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"  # how WebDriver marks a reference to an element
KEYS = {"Enter": "\ue007", "Escape": "\ue00c", "ArrowUp": "\ue013", "ArrowDown": "\ue015", "ArrowLeft": "\ue012",
        "ArrowRight": "\ue014"}  # fmt: skip


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


class Browser:
    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        port = free_port()
        self.address = f"http://127.0.0.1:{port}"
        self.driver = subprocess.Popen(
            ["chromedriver", f"--port={port}"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        try:
            self._wait_for_driver()
            self._start_session()
        except BaseException:
            self._stop_driver()
            raise

    def _wait_for_driver(self):
        for _ in range(200):
            try:
                if self._call("GET", "/status")["ready"]:
                    return
            except (urllib.error.URLError, ConnectionError):
                time.sleep(0.05)
        raise RuntimeError("chromedriver does not start")

    def _start_session(self):
        options = {"args": [*FLAGS, f"--user-data-dir={self.profile.name}"]}
        capabilities = {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL"}}
        session = self._call("POST", "/session", {"capabilities": {"alwaysMatch": capabilities}})
        self.session = f"/session/{session['sessionId']}"

    def _call(self, method, path, body=None):
        data = json.dumps(body).encode() if body is not None else None
        request = urllib.request.Request(self.address + path, data, {"Content-Type": "application/json"}, method=method)
        try:
            with urllib.request.urlopen(request, timeout=30) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise RuntimeError(json.load(error)["value"]["message"].splitlines()[0]) from None

    def _stop_driver(self):
        self.driver.terminate()
        self.driver.wait(10)
        self.profile.cleanup()

    def close(self):
        try:
            self._call("DELETE", self.session)
        finally:
            self._stop_driver()

    def open(self, url):
        self._call("POST", f"{self.session}/url", {"url": url})

    def run(self, script, *arguments):
        """What a function body in the page returns."""
        return self._call("POST", f"{self.session}/execute/sync", {"script": script, "args": arguments})

    def find(self, selector):
        body = {"using": "css selector", "value": selector}
        return self._call("POST", f"{self.session}/element", body)[ELEMENT]

    def click(self, selector):
        self._call("POST", f"{self.session}/element/{self.find(selector)}/click", {})

    def text(self, selector):
        return self._call("GET", f"{self.session}/element/{self.find(selector)}/text")

    def role(self, selector):
        return self._call("GET", f"{self.session}/element/{self.find(selector)}/computedrole")

    def label(self, selector):
        return self._call("GET", f"{self.session}/element/{self.find(selector)}/computedlabel")

    def press(self, *keys):
        """Types into whatever has the focus: texts, or the names of keys."""
        typed = [letter for key in keys for letter in ([KEYS[key]] if key in KEYS else key)]
        actions = [{"type": step, "value": letter} for letter in typed for step in ("keyDown", "keyUp")]
        source = {"type": "key", "id": "keyboard", "actions": actions}
        self._call("POST", f"{self.session}/actions", {"actions": [source]})

    def log(self):
        """What the console has said since the last call."""
        return self._call("POST", f"{self.session}/se/log", {"type": "browser"})

    def screenshot(self):
        """A PNG, in base64."""
        return self._call("GET", f"{self.session}/screenshot")
