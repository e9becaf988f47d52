# SPDX-License-Identifier: MIT
"""The browsers that lessons are given in: each is a driver, and what a driver has no word for."""

import base64
import json
import os
import pathlib
import shutil
import socket
import subprocess
import time

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.remote.command import Command
from selenium.webdriver.remote.remote_connection import RemoteConnection


class Chromium:
    programs = ("chromium", "chromedriver")

    def __init__(self, profile):
        options = webdriver.ChromeOptions()
        options.binary_location = shutil.which("chromium")
        for word in ("headless=new", "no-sandbox", "disable-gpu", "no-first-run", "disable-background-networking",
                     "disable-component-update", "disable-sync", "mute-audio", "window-size=800,600",
                     "autoplay-policy=no-user-gesture-required", f"user-data-dir={profile}"):
            options.add_argument(f"--{word}")
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(options=options, service=Service(shutil.which("chromedriver")))

    def quit(self):
        self.driver.quit()

    def be_calm(self, is_calm):
        features = [{"name": "prefers-reduced-motion", "value": "reduce" if is_calm else "no-preference"}]
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": features})

    def resize(self, width, height):
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": height, "deviceScaleFactor": 1, "mobile": width < 400})

    def run_scripts(self, is_run):
        self.driver.execute_cdp_cmd("Emulation.setScriptExecutionDisabled", {"value": not is_run})

    def speak(self, languages):
        agent = self.driver.execute_script("return navigator.userAgent")
        self.driver.execute_cdp_cmd("Emulation.setUserAgentOverride", {"userAgent": agent, "acceptLanguage": languages})

    def paper(self):
        return base64.b64decode(self.driver.execute_cdp_cmd("Page.printToPDF", {"preferCSSPageSize": True})["data"])

    def errors(self):
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] in ("SEVERE", "WARNING")]

    def requests(self):
        events = (json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance"))
        return [event["params"]["request"]["url"] for event in events if event["method"] == "Network.requestWillBeSent"]


class Marionette(RemoteConnection):
    """Hands a driver's commands to a Firefox on a port of this machine: Debian has no driver of its own for it."""

    names = {
        Command.NEW_SESSION: "NewSession", Command.GET: "Navigate", Command.GO_BACK: "Back",
        Command.GO_FORWARD: "Forward", Command.GET_TITLE: "GetTitle", Command.W3C_EXECUTE_SCRIPT: "ExecuteScript",
        Command.W3C_ACTIONS: "PerformActions", Command.SCREENSHOT: "TakeScreenshot",
        Command.FIND_ELEMENT: "FindElement", Command.FIND_ELEMENTS: "FindElements",
        Command.FIND_CHILD_ELEMENT: "FindElement",
        Command.FIND_CHILD_ELEMENTS: "FindElements", Command.CLICK_ELEMENT: "ElementClick",
        Command.SEND_KEYS_TO_ELEMENT: "ElementSendKeys", Command.GET_ELEMENT_TEXT: "GetElementText",
        Command.GET_ELEMENT_VALUE_OF_CSS_PROPERTY: "GetElementCSSValue", Command.PRINT_PAGE: "Print",
        Command.GET_ELEMENT_ARIA_LABEL: "GetComputedLabel", Command.GET_ELEMENT_ARIA_ROLE: "GetComputedRole",
        Command.W3C_GET_ACTIVE_ELEMENT: "GetActiveElement", Command.IS_ELEMENT_ENABLED: "IsElementEnabled",
    }

    def __init__(self, port):
        super().__init__(f"http://127.0.0.1:{port}")
        self.socket = socket.create_connection(("127.0.0.1", port))
        self.count = 0
        self.receive()

    def receive(self):
        length = b""
        while not length.endswith(b":"):
            length += self.socket.recv(1)
        text = b""
        while len(text) < int(length[:-1]):
            text += self.socket.recv(int(length[:-1]) - len(text))
        return json.loads(text)

    def send(self, name, **parameters):
        self.count += 1
        text = json.dumps([0, self.count, name, parameters]).encode()
        self.socket.sendall(b"%d:%s" % (len(text), text))
        _, _, error, result = self.receive()
        if error:
            return {"status": 500, "value": json.dumps({"value": error})}
        return {"value": result["value"] if isinstance(result, dict) and set(result) == {"value"} else result}

    def execute(self, command, params):
        told = {key: value for key, value in (params or {}).items() if key != "sessionId"}
        if command in (Command.FIND_CHILD_ELEMENT, Command.FIND_CHILD_ELEMENTS):
            told["element"] = told.pop("id")
        return self.send(f"WebDriver:{self.names[command]}", **told)


class Firefox:
    programs = ("firefox-esr",)
    settings = {"marionette.port": 0, "media.cubeb.force_mock_context": True, "media.autoplay.default": 0,
                "browser.shell.checkDefaultBrowser": False,
                "datareporting.policy.dataSubmissionEnabled": False, "app.update.enabled": False,
                "network.captive-portal-service.enabled": False, "network.connectivity-service.enabled": False,
                "full-screen-api.transition-duration.enter": "0 0", "full-screen-api.warning.timeout": 0}

    def __init__(self, profile):
        profile = pathlib.Path(profile)
        profile.mkdir()
        (profile / "user.js").write_text("".join(
            f"user_pref({json.dumps(name)}, {json.dumps(value)});\n" for name, value in self.settings.items()))
        self.process = subprocess.Popen(
            ["firefox-esr", "--headless", "--marionette", "--remote-allow-system-access", "--no-remote",
             "--width=1400", "--height=1200", "--profile", profile],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env={**os.environ, "HOME": str(profile)})
        port = profile / "MarionetteActivePort"
        end = time.time() + 60
        while not (port.exists() and port.read_text()):
            if time.time() > end:
                raise RuntimeError("Firefox didn't start")
            time.sleep(0.1)
        self.connection = Marionette(int(port.read_text()))
        self.driver = webdriver.Remote(self.connection, options=webdriver.FirefoxOptions())
        self.about("""window.asked = []; Services.console.reset();
            Services.obs.addObserver((channel) => {
                const from = channel.QueryInterface(Ci.nsIHttpChannel).loadInfo.loadingPrincipal;
                if (from && from.schemeIs('file')) { window.asked.push(channel.URI.asciiSpec); }
            }, 'http-on-modify-request');""")

    def about(self, script, *arguments):
        """Runs a script in the browser's own window, beside the page."""
        self.connection.send("Marionette:SetContext", value="chrome")
        try:
            return self.driver.execute_script(script, *arguments)
        finally:
            self.connection.send("Marionette:SetContext", value="content")

    def quit(self):
        self.connection.send("Marionette:Quit", flags=["eForceQuit"])
        self.process.wait(30)

    def be_calm(self, is_calm):
        self.about("Services.prefs.setIntPref('ui.prefersReducedMotion', arguments[0])", int(is_calm))

    def resize(self, width, height):
        self.about("""const { style } = gBrowser.selectedBrowser;
            for (const [side, size] of [['width', arguments[0]], ['height', arguments[1]]]) {
                style[`min-${side}`] = style[`max-${side}`] = `${size}px`; }""", width, height)
        drawn = "return new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)))"
        self.driver.execute_script(drawn)

    def run_scripts(self, is_run):
        self.about("gBrowser.selectedBrowser.browsingContext.allowJavascript = arguments[0]", is_run)

    def speak(self, languages):
        self.about("Services.prefs.setCharPref('intl.accept_languages', arguments[0])", languages)

    def paper(self):
        return base64.b64decode(self.driver.execute("printPage", {"background": True})["value"])

    def errors(self):
        return self.about("""const found = Services.console.getMessageArray()
            .filter((one) => one instanceof Ci.nsIScriptError && /^(file|data):/.test(one.sourceName)
                && one.category !== 'Media')
            .map((one) => `${one.category} ${one.errorMessage} ${one.sourceName.slice(-60)}:${one.lineNumber}`);
            Services.console.reset(); return found;""")

    def requests(self):
        return self.about("return window.asked.splice(0)")
