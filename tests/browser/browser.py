"""A browser without a window that is asked over a pipe."""
import json
import os
import select
import shutil
import subprocess
import tempfile

NAMES = ("chromium-headless-shell", "chrome-headless-shell")
PATIENCE = 60


def find():
    return next((path for path in map(shutil.which, NAMES) if path), None)


class Browser:
    def __init__(self, program):
        self.profile = tempfile.TemporaryDirectory()
        to_read, self.out = os.pipe()
        self.inn, to_write = os.pipe()

        def arrange():  # the browser reads from 3 and writes to 4
            read, write = os.dup(to_read), os.dup(to_write)
            os.dup2(read, 3)
            os.dup2(write, 4)

        self.process = subprocess.Popen(
            [program, "--remote-debugging-pipe", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
             "--allow-file-access-from-files", "--force-color-profile=srgb",
             f"--user-data-dir={self.profile.name}", "about:blank"],
            preexec_fn=arrange, close_fds=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(to_read)
        os.close(to_write)
        self.number, self.rest, self.events = 0, b"", []
        targets = self.ask("Target.getTargets")["targetInfos"]
        page = next(each["targetId"] for each in targets if each["type"] == "page")
        self.session = None
        self.session = self.ask("Target.attachToTarget", targetId=page, flatten=True)["sessionId"]
        for area in ("Page", "Runtime", "Network"):
            self.ask(area + ".enable")

    def message(self):
        while b"\0" not in self.rest:
            assert select.select([self.inn], [], [], PATIENCE)[0], "the browser says nothing any more"
            more = os.read(self.inn, 1 << 20)
            assert more, "the browser has ended"
            self.rest += more
        text, self.rest = self.rest.split(b"\0", 1)
        return json.loads(text)

    def ask(self, method, **parameters):
        self.number += 1
        order = {"id": self.number, "method": method, "params": parameters}
        if getattr(self, "session", None):
            order["sessionId"] = self.session
        os.write(self.out, json.dumps(order).encode() + b"\0")
        while True:
            said = self.message()
            if said.get("id") == self.number:
                assert "error" not in said, (method, said)
                return said["result"]
            self.events.append(said)

    def wait(self, name):
        """Until an event of that name comes, or has come since the last events were forgotten."""
        while not any(event.get("method") == name for event in self.events):
            self.events.append(self.message())

    def open(self, address):
        for each in ("about:blank", address):  # a page that is there already would not be loaded again
            self.events = []
            self.ask("Page.navigate", url=each)
            self.wait("Page.loadEventFired")

    def requests(self):
        return [event["params"]["request"]["url"] for event in self.events
                if event.get("method") == "Network.requestWillBeSent"]

    def value(self, expression, wait=False):
        told = self.ask("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=wait)
        assert "exceptionDetails" not in told, told["exceptionDetails"]
        return told["result"].get("value")

    def look(self, width, height, scheme):
        self.ask("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)
        self.ask("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])

    def press(self, key, code):
        text = {"text": "\r"} if key == "Enter" else {}
        for kind in ("keyDown", "keyUp"):
            self.ask("Input.dispatchKeyEvent", type=kind, key=key, code=key, windowsVirtualKeyCode=code, **text)

    def touch(self, kind, *fingers):
        self.ask("Input.dispatchTouchEvent", type=kind,
                 touchPoints=[{"x": x, "y": y, "id": number} for number, (x, y) in enumerate(fingers)])

    def swipe(self, start, end):
        """One finger from one place to another, in pixels of the window."""
        self.touch("touchStart", start)
        for part in (1 / 3, 2 / 3, 1):
            self.touch("touchMove", tuple(a + (b - a) * part for a, b in zip(start, end)))
        self.touch("touchEnd")

    def close(self):
        self.process.kill()
        self.process.wait(PATIENCE)
        self.profile.cleanup()
