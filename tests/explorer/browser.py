"""A real browser that shows the layout explorer, for the tests of the page."""

import contextlib
import os
import pathlib
import sys
import tempfile
import time

try:
    from selenium import webdriver
    from selenium.webdriver.common.by import By
    from selenium.webdriver.chrome.service import Service
except ImportError:
    webdriver = None

skipped = 77


def is_installed():
    return webdriver and all(os.path.exists(f"/usr/bin/{name}") for name in ("chromium", "chromedriver"))


def skip():
    print("skipped: chromium, chromium-driver or python3-selenium is not installed")
    sys.exit(skipped)


class Browser:
    """The page in a browser, and what a person or a script does with it."""

    def __init__(self, page, downloads):
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for option in ("--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                       "--window-size=1300,1000", "--disable-ipc-flooding-protection"):
            options.add_argument(option)
        # The driver would wait for each step within the page too.
        options.page_load_strategy = "none"
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(120)
        self.driver.execute_cdp_cmd(
            "Browser.setDownloadBehavior", {"behavior": "allow", "downloadPath": downloads})
        self.url = pathlib.Path(page).resolve().as_uri()
        self.downloads = downloads
        self.open("#")

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def wait(self, script, *arguments, seconds=10):
        """The result of the script once it is true; what it was at the end otherwise."""
        for _ in range(20 * seconds):
            result = self.run(script, *arguments)
            if result:
                return result
            time.sleep(0.05)
        return result

    def open(self, state):
        """Shows the state of an address anew, as a link does."""
        self.driver.get("about:blank")
        self.wait("return location.href === 'about:blank' && document.readyState === 'complete'")
        self.driver.get(self.url + state)
        self.wait("return window.velmar && document.readyState === 'complete'")

    def one(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def text(self, selector="main"):
        return self.run("return document.querySelector(arguments[0])?.innerText ?? ''", selector)

    def values(self):
        """The hexadecimal values by field, as the page shows them."""
        return self.run("""return Object.fromEntries([...document.querySelectorAll("[data-field]")]
            .map((one) => [one.dataset.field, one.dataset.value]))""")

    def paste(self, text, order="bytes"):
        self.run("""
            const box = document.querySelector("textarea");
            box.value = arguments[0];
            box.dispatchEvent(new Event("input"));
            if (arguments[1] === null) return;
            document.querySelector(`input[value=${arguments[1]}]`).click();
            box.dispatchEvent(new Event("input"));""", text, order)

    def choose_file(self, path, side=0):
        self.one(f"[data-side='{side}'] input[type=file]").send_keys(path)

    def saved(self, button, name):
        """The text of the file that a button saves."""
        path = os.path.join(self.downloads, name)
        with contextlib.suppress(FileNotFoundError):
            os.remove(path)
        self.run("""[...document.querySelectorAll("button")].find(
            (one) => one.textContent === arguments[0]).click()""", button)
        for _ in range(100):
            if os.path.exists(path):
                with open(path, encoding="utf-8") as file:
                    return file.read()
            time.sleep(0.05)
        return ""

    def errors(self):
        """What the console has, and what was loaded beside the page."""
        return [entry["message"] for entry in self.driver.get_log("browser")] + self.run(
            "return performance.getEntriesByType('resource').map((one) => one.name)")


@contextlib.contextmanager
def browser(page):
    with tempfile.TemporaryDirectory() as downloads:
        shown = Browser(page, downloads)
        try:
            yield shown
        finally:
            shown.driver.quit()
