"""A person at the desktop: real keys and clicks by xdotool, on controls that are found by their names.

Where a control is and what it shows is asked of the program's locator plugin (locator.cpp). Nothing waits for a fixed
time; every wait looks again until what it waits for is there, and fails with what is on the screen instead.
"""

import json
import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time
from datetime import date

PROJECT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
LONGEST_WAIT = 20  # seconds; only a program that hangs takes as long
PAUSE = 0.03  # seconds between two looks


class Failure(Exception):
    """What was expected and did not come."""


def long_date(day):
    """As the program writes a date: November 1, 2026."""
    return f"{day:%B} {day.day}, {day.year}"


class Person:
    """Starts an installed program beside a household of its own and works with it."""

    def __init__(self, program, plugins):
        self.folder = tempfile.mkdtemp(prefix="tallymere-")
        self.house = os.path.join(self.folder, "Tallymere")
        self.program, self.plugins, self.process = program, plugins, None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.folder)

    # --- the household

    def lay_down(self, routine):
        """The program beside a household that a routine of scripts/lay-down.sh lays: lay_household or lay_sample."""
        script = """set -euo pipefail
            . scripts/messages.sh
            . scripts/pay-periods.sh
            . scripts/lay-down.sh
            "$1" "$2" "$(date +%F)"
            lay_help "$2"
            lay_program "$3" "$2" """
        subprocess.run(["bash", "-c", script, "lay_down", routine, self.house, self.program], cwd=PROJECT, check=True)

    def write(self, name, *lines):
        with open(os.path.join(self.house, name), "w", encoding="utf-8", newline="") as file:
            file.writelines(line + "\r\n" for line in lines)

    def read(self, name):
        with open(os.path.join(self.house, name), encoding="utf-8", newline="") as file:
            return file.read().split("\r\n")[:-1]

    def find_in_file(self, name, *lines):
        """The file holds exactly these lines: a change is in its file at once."""
        self.until(lambda: self.read(name) == list(lines), lambda: f"{name} holds {self.read(name)}, not {list(lines)}")

    def printed(self):
        """The documents that were printed, the newest last."""
        folder = os.path.join(self.house, "printed")
        files = [os.path.join(folder, name) for name in os.listdir(folder)] if os.path.isdir(folder) else []
        return sorted(files, key=os.path.getmtime)

    # --- looking

    def start(self):
        where = os.path.join(self.folder, "locator")
        if os.path.exists(where):
            os.remove(where)  # of the start before
        environment = dict(os.environ, QT_PLUGIN_PATH=self.plugins, QT_QPA_GENERIC_PLUGINS="locator", LOCATOR_SOCKET=where)
        self.process = subprocess.Popen([os.path.join(self.house, "Tallymere")], env=environment)
        self.until(lambda: os.path.exists(where), "the program's locator does not answer")

    def pass_welcome(self):
        """The welcome window, by the answer of those who need no help."""
        self.see("frmWelcome")
        self.click("frmWelcome", "lblLevelSelection3")
        self.see("frmSplash")

    def pass_splash(self):
        """Welcome, splash and the tip of the day, which open the way to the question for the pay period."""
        self.pass_welcome()
        self.press("Return")
        self.see("frmTip")
        self.press("Return")
        self.see("frmSetCurrentPayPeriod")

    def look(self, program=""):
        """What stands on the screen, as the locator tells it. Nothing, once the program has ended. The help is ".help"."""
        answer = b""
        try:
            with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as asking:
                asking.settimeout(LONGEST_WAIT)
                asking.connect(os.path.join(self.folder, "locator" + program))
                asking.sendall(b"look\n")
                while part := asking.recv(65536):
                    answer += part
            return json.loads(answer)
        except (ConnectionError, FileNotFoundError, json.JSONDecodeError):
            return {"windows": {}, "entries": {}, "boxes": [], "focus": ""}

    def until(self, there, otherwise):
        """Looks again and again until there() gives something, and gives that back."""
        end = time.monotonic() + LONGEST_WAIT
        while not (found := there()):
            if time.monotonic() > end:
                raise Failure(f"{otherwise() if callable(otherwise) else otherwise}\n{self.describe()}")
            time.sleep(PAUSE)
        return found

    def describe(self):
        seen = self.look()
        windows = [f'{name} "{window["title"]}"{" (active)" if window["active"] else ""}'
                   for name, window in seen["windows"].items()]
        boxes = [f'box "{box["title"]}": {box["text"]}' for box in seen["boxes"]]
        ended = [] if self.process.poll() is None else [f"the program has ended with {self.process.returncode}"]
        return "on the screen: " + "; ".join(windows + boxes + ended + [f'focus on {seen["focus"] or "nothing"}'])

    def control(self, window, name):
        return self.look()["windows"].get(window, {}).get("controls", {}).get(name)

    def see(self, window, title=".*"):
        """Waits until the window stands there, active, with that title (a regular expression)."""
        def stands():
            seen = self.look()["windows"].get(window)
            return seen and seen["active"] and re.fullmatch(title, seen["title"])
        self.until(stands, f'{window} "{title}" is not the active window')

    def see_over(self, window, caller):
        """Waits until the window stands in the middle over its caller, give or take a title bar."""
        def offset():
            x, y, width, height = self.look()["windows"][window]["rect"]
            left, top, wide, high = self.look()["windows"][caller]["rect"]
            return max(abs(x + width / 2 - left - wide / 2), abs(y + height / 2 - top - high / 2))
        self.until(lambda: offset() <= 24, lambda: f"{window} is {offset()} pixels off the middle of {caller}")

    def stack(self):
        """The names of the windows as they stand one over the other, the lowest first."""
        known = {window["id"]: name for name, window in self.look()["windows"].items()}
        if self.help():
            known[self.help()["id"]] = "helpWindow"
        listed = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], check=True, capture_output=True, text=True)
        return [known.get(int(each, 16)) for each in re.findall("0x[0-9a-f]+", listed.stdout)]

    def see_stacked(self, *windows):
        """Waits until these windows stand on the screen one over the other, the lowest first."""
        self.until(lambda: [name for name in self.stack() if name in windows] == list(windows),
                   lambda: f"the windows stand one over the other as {self.stack()}, not as {windows}")

    def see_in_the_corner(self, window, frame=12):
        """Waits until the window stands in the lower right corner of the screen with a frame around it, all of it seen."""
        size = subprocess.run(["xdotool", "getdisplaygeometry"], check=True, capture_output=True, text=True).stdout
        right, bottom = map(int, size.split())

        def gaps():
            x, y, width, height = self.look()["windows"].get(window, {"rect": (0, 0, 0, 0)})["rect"]
            return right - x - width, bottom - y - height
        self.until(lambda: all(0 < gap <= frame for gap in gaps()), lambda: f"{window} is {gaps()} off the corner")

    def see_title_bar(self, window):
        """Waits until there is room for the window's title bar on the screen: its contents begin below the upper edge."""
        def top():
            return self.look()["windows"][window]["rect"][1]
        self.until(lambda: top() > 0, lambda: f"the contents of {window} begin at {top()}")

    def see_no(self, window):
        self.until(lambda: window not in self.look()["windows"], f"{window} stays")

    def see_text(self, window, name, text):
        self.until(lambda: (self.control(window, name) or {}).get("text") == text,
                   lambda: f'{window}.{name} shows {(self.control(window, name) or {}).get("text")!r}, not {text!r}')

    def rows(self, window, name):
        """The rows of a list or grid as texts, the cells of a row parted by " | "."""
        return [" | ".join(row["cells"]) for row in (self.control(window, name) or {}).get("rows", [])]

    def see_rows(self, window, name, *expected):
        """Waits until the list or grid begins with these rows."""
        self.until(lambda: self.rows(window, name)[: len(expected)] == list(expected),
                   lambda: f"{window}.{name} begins with {self.rows(window, name)[: len(expected)]}, not {list(expected)}")

    # --- the help, which is a program of its own

    def help(self):
        """The window of the help, or nothing where it is not there."""
        return self.look(".help")["windows"].get("helpWindow")

    def see_help(self, title):
        """Waits until the help stands in front with the page of that title."""
        def stands():
            seen = self.help()
            return seen and seen["active"] and seen["title"] == f"{title} - Help"
        self.until(stands, lambda: f"the help does not show {title}: {(self.help() or {}).get('title')}")

    def see_no_help(self):
        self.until(lambda: not self.help(), "the help stays")

    # --- hands

    @staticmethod
    def press(*keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    @staticmethod
    def hold(key, seconds):
        """The key repeats itself, in whatever window has come to the front meanwhile."""
        subprocess.run(["xdotool", "keydown", key, "sleep", str(seconds), "keyup", key], check=True)

    @staticmethod
    def type(text):
        subprocess.run(["xdotool", "type", "--delay", "10", "--", text], check=True)

    def hit(self, find, what, times=1):
        """Clicks what find() finds, once it lies still; covered by another window, its own is brought forward first."""
        last = None

        def still():
            nonlocal last
            before, last = last, find()
            return last if last and before and last["rect"] == before["rect"] and last.get("enabled", True) else None
        place = self.until(still, f"{what} is not there to be clicked")
        x, y, width, height = place["rect"]
        subprocess.run(["xdotool", "mousemove", str(int(x + width / 2)), str(int(y + height / 2)),
                        "click", "--repeat", str(times), "--delay", "60", "1"], check=True)

    def bring_forward(self, window):
        self.read_on()  # nobody turns to another window as fast as the window system answers the last move
        identity = self.until(lambda: self.look()["windows"].get(window), f"{window} is not there")["id"]
        subprocess.run(["xdotool", "windowactivate", str(identity)], check=True)
        self.see(window)

    def click(self, window, name, row=None, times=1):
        """A click on a control, or on the row of a list or grid that begins with the text `row`."""
        def place():
            control = self.control(window, name)
            if row is not None and control:
                control = next((each for each in control["rows"] if each["cells"][0].startswith(row)), None)
            return control
        if not self.until(place, f"{window}.{name} {row or ''} is not there")["hit"]:
            self.bring_forward(window)
        self.hit(lambda: (found := place()) and found["hit"] and found, f"{window}.{name} {row or ''}", times)

    def drag(self, window, name, row, target):
        """Presses on the row of a list that begins with the text `row`, and lets go over the control `target`."""
        def middle(place):
            x, y, width, height = place["rect"]
            return [str(int(x + width / 2)), str(int(y + height / 2))]

        def start():
            control = self.control(window, name)
            return control and next((each for each in control["rows"] if each["cells"][0].startswith(row)), None)
        if not self.until(start, f"{window}.{name} {row} is not there")["hit"]:
            self.bring_forward(window)
        x, y = middle(start())
        there = middle(self.control(window, target))
        for step in (["mousemove", x, y], ["mousedown", "1"], ["mousemove_relative", "6", "6"],
                     ["mousemove_relative", "12", "6"], ["mousemove", *there], ["mousemove_relative", "3", "3"],
                     ["mouseup", "1"]):
            subprocess.run(["xdotool", *step], check=True)
            time.sleep(2 * PAUSE)  # each move is an event of its own, as a hand's

    @staticmethod
    def read_on():
        """Lets the time of a double-click pass: a click right after another one at the same place would belong to it."""
        time.sleep(0.7)

    def enter(self, window, name, text):
        """Types into the field that has the focus, after the ring of Enter or a click led there."""
        self.until(lambda: self.look()["focus"] == f"{window}.{name}", f"{window}.{name} has not got the focus")
        self.type(text)
        self.see_text(window, name, text)

    def choose(self, *entries):
        """Clicks one menu entry after the other, the main window's first."""
        self.bring_forward("frmMain")
        for entry in entries:
            self.hit(lambda: self.look()["entries"].get(entry), f"the menu entry {entry}")

    def answer(self, title, button="OK"):
        """Waits for a message box of that title, clicks its button and gives its text back."""
        def box():
            return next((each for each in self.look()["boxes"] if each["title"] == title), None)
        text = self.until(box, f'no box "{title}"')["text"]
        self.hit(lambda: (found := box()) and found["buttons"].get(button), f'the button {button} of the box "{title}"')
        self.until(lambda: not box(), f'the box "{title}" stays')
        return text

    def wait_for_end(self):
        self.until(lambda: self.process.poll() is not None, "the program is still running")
        if self.process.returncode != 0:
            raise Failure(f"the program ended with {self.process.returncode}")


def expect(condition, otherwise):
    if not condition:
        raise Failure(otherwise)


def text_of(document):
    """What a printed document says, line by line."""
    return subprocess.run(["pdftotext", "-layout", document, "-"], check=True, capture_output=True, text=True).stdout


def expect_on_paper(text, *patterns):
    for pattern in patterns:
        expect(re.search(pattern, text), f"not on the printed pages: {pattern}\n{text}")


def run(test):
    """The main routine of a test: SCRIPT PROGRAM PLUGINS."""
    name = os.path.basename(sys.argv[0])
    try:
        with Person(*sys.argv[1:3]) as person:
            test(person)
    except Failure as failure:
        sys.exit(f"{name}: FAILED: {failure}")
    print(f"{name}: passed")


TODAY = date.today()
