"""What the browser tests share: a `dispatch serve` of their own over a fresh demo
database, a headless Chromium on the page, and the clerk's ways of using it.

The environment names the programs: DISPATCH (the dispatch binary), CHROMIUM and
CHROMEDRIVER. Screenshots land in the working folder, one a test."""

import json
import os
import shutil
import socket
import sqlite3
import subprocess
import tempfile
import time
import unittest
import urllib.error
import urllib.request

from selenium import webdriver
from selenium.common.exceptions import TimeoutException
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import WebDriverWait

WAIT_SECONDS = 15


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Server:
    """A dispatch server on a free port over its own copy of the demo data."""

    def __init__(self, settings=None):
        self.folder = tempfile.mkdtemp(prefix="dispatch-browser-")
        self.db = os.path.join(self.folder, "demo.db")
        self.prints = os.path.join(self.folder, "prints")
        os.makedirs(self.prints)
        dispatch = os.environ["DISPATCH"]
        subprocess.run([dispatch, "demo-db", self.db], check=True, capture_output=True)
        self.port = free_port()
        self.url = f"http://127.0.0.1:{self.port}"
        command = [dispatch, "serve", "--db", self.db, "--listen", f"127.0.0.1:{self.port}",
                   "--print-dir", self.prints]
        if settings:
            path = os.path.join(self.folder, "settings.ini")
            with open(path, "w", encoding="utf-8") as out:
                out.write(settings)
            command += ["--settings", path]
        self.log = open(os.path.join(self.folder, "serve.log"), "w+", encoding="utf-8")
        self.process = subprocess.Popen(command, stdout=self.log, stderr=subprocess.STDOUT)
        self._wait_until_up()

    def _wait_until_up(self):
        deadline = time.monotonic() + WAIT_SECONDS
        while time.monotonic() < deadline:
            if self.process.poll() is not None:
                raise RuntimeError(f"dispatch serve ended with {self.process.returncode}: {self.output()}")
            try:
                with urllib.request.urlopen(self.url + "/api/menu", timeout=1):
                    return
            except (urllib.error.URLError, ConnectionError):
                time.sleep(0.1)
        raise RuntimeError("dispatch serve did not answer: " + self.output())

    def output(self):
        self.log.flush()
        self.log.seek(0)
        return self.log.read()

    def query(self, sql, *args):
        with sqlite3.connect(self.db) as db:
            return db.execute(sql, args).fetchall()

    def get(self, path, token):
        request = urllib.request.Request(self.url + path, headers={"X-Form-Token": token})
        with urllib.request.urlopen(request, timeout=WAIT_SECONDS) as answer:
            return answer.headers.get("Content-Type"), answer.read()

    def stop(self):
        self.process.terminate()
        try:
            self.process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.log.close()
        shutil.rmtree(self.folder, ignore_errors=True)


def start_browser():
    options = Options()
    if os.environ.get("CHROMIUM"):
        options.binary_location = os.environ["CHROMIUM"]
    for argument in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage", "--disable-gpu",
                     "--window-size=1280,900", "--disable-popup-blocking"):
        options.add_argument(argument)
    service = Service(executable_path=os.environ.get("CHROMEDRIVER", "chromedriver"))
    return webdriver.Chrome(service=service, options=options)


class PageTest(unittest.TestCase):
    """A test with a server and a browser of its own, on the page's menu."""

    settings = None

    def setUp(self):
        self.server = Server(self.settings)
        self.addCleanup(self.server.stop)
        self.browser = start_browser()
        self.addCleanup(self.browser.quit)
        # Runs before the browser goes: the page as it was when the test ended.
        self.addCleanup(self.screenshot, self.id().split(".")[-1])
        self.browser.get(self.server.url + "/")
        self.wait_for(lambda: self.browser.find_elements(By.CSS_SELECTOR, "#menu-buttons button"), "the menu")

    def screenshot(self, name):
        self.browser.save_screenshot(os.path.join(os.getcwd(), name + ".png"))

    def wait_for(self, condition, what):
        try:
            return WebDriverWait(self.browser, WAIT_SECONDS).until(lambda _: condition())
        except TimeoutException:
            self.fail(f"waited in vain for {what}; status: {self.status()!r}; server said:\n"
                      + self.server.output()[-2000:])

    def settle(self):
        """Waits until the page has sent everything and drawn the last answer."""
        self.wait_for(lambda: self.browser.execute_script("return typeof Form === 'undefined' || Form.idle()"), "the page to settle")

    def state(self):
        return self.browser.execute_script("return Form.current()")

    def status(self):
        found = self.browser.find_elements(By.ID, "status")
        return found[0].text if found else ""

    def token(self):
        return self.browser.execute_script("return sessionStorage.getItem('dispatch.token')")

    def control(self, control_id):
        return self.browser.find_element(By.CSS_SELECTOR, f'[data-control="{control_id}"]')

    def focused_control(self):
        return self.browser.execute_script(
            "const e = document.activeElement.closest('[data-control]'); return e && e.dataset.control")

    def open_screen(self, mode):
        self.browser.find_element(By.CSS_SELECTOR, f'#menu-buttons button[data-mode="{mode}"]').click()
        self.wait_for(lambda: self.browser.execute_script("return typeof Form !== 'undefined' && !!Form.current()"), "the form")
        self.settle()

    def keys(self, *keys):
        """Keys as the clerk presses them, into whatever has the browser's focus."""
        self.browser.switch_to.active_element.send_keys(*keys)
        self.settle()

    def click(self, element):
        element.click()
        self.settle()

    def grid_cell(self, row, col):
        return self.control("DTFlexDispatch").find_element(
            By.CSS_SELECTOR, f"tbody tr:nth-child({row}) td:nth-child({col})")

    def grid_state(self):
        return next(c["grid"] for c in self.state()["controls"] if c["id"] == "DTFlexDispatch")

    def dialog(self):
        """The dialog on the page, waited for: its kind and its element."""
        self.wait_for(lambda: self.browser.find_element(By.ID, "dialog-backdrop").is_displayed(), "a dialog")
        box = self.browser.find_element(By.ID, "dialog")
        return box.get_attribute("data-kind"), box

    def dialog_button(self, caption):
        box = self.browser.find_element(By.ID, "dialog")
        for button in box.find_elements(By.CSS_SELECTOR, ".dialog-buttons button"):
            if button.text.replace("&", "") == caption:
                return button
        self.fail(f"the dialog has no button {caption}")

    def transcript(self):
        return "\n".join(self.state()["lines"])

    def dump(self):
        return json.dumps(self.state(), indent=1)
