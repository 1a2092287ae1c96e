#!/usr/bin/env python3
"""What screen readers are told, heard on the bus on which they listen, and what they can do.

    access_test.py DESKTOP-PROGRAM [--whole] [--tree]

--whole plays a whole game of Sumfall and one of Handgrid as well, from the selector to the Hall of Fame, by actions on
the tree alone; that takes minutes. --tree prints the trees that are met.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from itertools import combinations

from access_bus import Bus, Error, Node, accessible_bus, applications, hear

SKIPPED = 77
GAMES = ["Sumfall!", "Fivestack", "Blackrush", "Duopick", "Spirehold", "Handgrid", "Treyshift"]
RANKS = ["Ace", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Jack", "Queen", "King"]
PLACE = re.compile(
    rf"(({'|'.join(RANKS)}) of (spades|hearts|clubs|diamonds)|Face down|Empty)"
    r"(, [a-z][a-z0-9 ]*)*(, exposed)?(, selected)?$"
)


def check(truth, *what):
    if not truth:
        raise SystemExit("access_test: " + " ".join(map(str, what)))


class Listener:
    """A screen reader of sorts: knows the program's windows, and keeps what is announced."""

    def __init__(self, program, tree):
        self.bus = accessible_bus(os.environ["DBUS_SESSION_BUS_ADDRESS"])
        hear(self.bus)
        self.tree, self.said, self.changed = tree, [], []
        self.home = tempfile.mkdtemp()
        self.program = subprocess.Popen(
            [program],
            env=dict(os.environ, HOME=self.home, XDG_CONFIG_HOME=self.home, XDG_DATA_HOME=self.home,
                     SDL_AUDIODRIVER="dummy", QT_QPA_PLATFORM="xcb"))

    def close(self):
        self.program.kill()
        self.program.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    def listen(self, seconds=0.0):
        for header, values in self.bus.listen(seconds):
            kind, node = header.get(3), Node(self.bus, header.get(7), header.get(1))
            try:
                if kind == "StateChanged" and values[:2] == ["showing", 1] and node.role == "notification":
                    self.said.append(node.name)
                elif kind == "Announcement":  # from Qt 6.8 on
                    self.said.append(values[3])
                elif kind == "PropertyChange" and values[0] == "accessible-name":
                    self.changed.append(node.name)
            except Error:
                pass  # gone already

    def until(self, what, happens, seconds=15):
        """Waits for an answer, and listens meanwhile. What goes away while it is asked is no answer."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            try:
                if answer := happens():
                    return answer
            except (Error, StopIteration):
                check(self.program.poll() is None, "the program has ended, waiting for", what)
            self.listen(0.05)
        shown = [(each.role, each.name, labels(each)) for each in self.windows()]
        raise SystemExit(f"access_test: {what}: nothing came in {seconds} s. Said: {self.said}. Shown: {shown}")

    def until_said(self, text, seconds=15):
        self.until(f'"{text}" said', lambda: any(text in each for each in self.said), seconds)

    def windows(self):
        return [each for app in applications(self.bus) for each in app.children if "showing" in each.states]

    def window(self, name, role="frame"):
        return self.until(
            f"{role} {name}", lambda: next(w for w in self.windows() if w.role == role and name in w.name))

    def dialog(self):
        return self.until("a dialog", lambda: next(w for w in self.windows() if w.role != "frame"))

    def press(self, window, name, role="push button"):
        def ready():
            node = window.find(role, name)
            return node if node and "enabled" in node.states else None
        node = self.until(name, ready)
        node.act()

    def answer(self, *names):
        """Presses a button of the dialog in front, and waits until it is gone."""
        dialog = self.dialog()
        button = self.until(str(names), lambda: next(b for b in dialog.walk() if b.role == "push button" and b.name in names))
        button.act()
        self.until("the dialog's end", lambda: dialog not in self.windows())

    def key(self, *codes):
        """Presses keys together, by their codes on the usual keyboard."""
        for code, kind in [(code, 0) for code in codes] + [(code, 1) for code in reversed(codes)]:
            self.bus.call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry/deviceeventcontroller",
                          "org.a11y.atspi.DeviceEventController", "GenerateKeyboardEvent", "isu", code, "", kind)


def board(window):
    return next(child for child in window.children if child.role == "panel" and child.name == "Board")


def cards(window):
    """The places on the board with their names."""
    named = [(child, child.name) for child in board(window).children if child.role in ("push button", "label")]
    return [(child, name) for child, name in named if PLACE.match(name)]


def labels(window):
    return [each.name for each in window.walk() if each.role == "label"]


def leave(listener, window):
    """Closes a game's window by its button, whatever is asked."""
    listener.press(window, next(name for name in ("Exit", "Quit", "E&xit") if window.find("push button", name)))
    def back():
        for each in listener.windows():
            if each.role == "frame" and "Quillmark" in each.name:
                return each
            if each.role != "frame" and (yes := each.find("push button", "Yes")):
                yes.act()
                time.sleep(0.2)
    return listener.until("the selector", back)


def test_boards(listener):
    for game in GAMES:
        listener.press(listener.window("Quillmark"), game)
        window = listener.window(game)
        check(not cards(window), game, "shows cards before it is played")
        if game == "Sumfall!":
            test_dialogs(listener, window)
        listener.press(window, "Play")
        places = listener.until(f"cards of {game}", lambda: cards(window))
        listener.listen(0.3)
        places = cards(window)
        if listener.tree:
            window.dump()
        check(len(places) > 3 or game in ("Fivestack", "Blackrush"), game, "shows only", places)
        left, top, width, height = board(window).extents
        for place, name in places:
            x, y, breadth, tall = place.extents
            check(breadth > 15 and tall > 15 and left <= x and top <= y and x + breadth <= left + width and
                  y + tall <= top + height, game, name, "lies at", place.extents)
            offers = ["Press", "SetFocus"] if place.role == "push button" else ["SetFocus"]
            check(place.actions == offers, game, name, "offers", place.actions)
        texts = labels(window)
        for word in ("core", "ound", "ime"):
            check(any(word in text and re.search(r"\d", text) for text in texts), game, word, texts)
        check(not [text for text in texts if re.fullmatch(r"[\d,.-]+", text)], game, "figures without a word:", texts)
        names = [each.name for each in window.walk() if each.role in ("push button", "menu item", "check box")]
        check(all(names) and not [name for name in names if "&" in name or name.startswith(" ")], game, names)
        hits = [name for name in names if name.startswith("Hit")]
        check(len(set(hits)) == len(hits), game, hits)
        if game == "Sumfall!":
            test_play(listener, window)
        kept = places[0][0]
        leave(listener, window)
        try:  # a window that is gone leaves nothing behind that would answer
            check("showing" not in kept.states, game, "still shows", kept.name)
        except Error:
            pass


def test_play(listener, window):
    # A card that lies free is selected by its action, and says so; one that is covered refuses, and says so.
    card, name = next((card, name) for card, name in cards(window) if name.endswith(", exposed"))
    card.act()
    listener.until("the selection", lambda: card.name == name + ", selected" and "selected" in card.states)
    listener.until("news of the name", lambda: name + ", selected" in listener.changed)
    covered, name = next((card, name) for card, name in cards(window) if "," not in name)
    covered.act()
    listener.until_said("Refused: " + name)
    covered.call("Component", "GrabFocus")
    listener.until("the focus", lambda: "focused" in covered.states)
    # How the game stands, asked for with Shift and F1.
    listener.key(50, 67)
    listener.until_said("Round 1. Score 0.")
    listener.press(window, "Pause")
    listener.until_said("Game Paused")
    check(not [name for _, name in cards(window) if " of " in name], "a paused game tells its cards:", cards(window))
    listener.press(window, "Resume")


def test_dialogs(listener, window):
    # Boxes, named by what stands beside them.
    listener.press(window, "Customize Scoring...", "menu item")
    dialog = listener.dialog()
    check(dialog.role == "dialog" and "User Options" in dialog.name, dialog.role, dialog.name)
    boxes = [each.name for each in dialog.walk() if "EditableText" in each.interfaces]
    check(boxes == ["Score required for Bonus Round", "Score awarded for upper completion",
                    "Score awarded for eleven combination", "Score awarded for Time Bonus (per second)"], boxes)
    listener.answer("Cancel")
    # The Hall of Fame.
    listener.press(window, "View High Scores...", "menu item")
    table = listener.until("the table", lambda: listener.dialog().find("table"))
    check(table.get("Table", "NRows") == 10 and table.get("Table", "NColumns") == 2, "the table's size")
    cell = Node(listener.bus, *table.call("Table", "GetAccessibleAt", "ii", 9, 1))
    check(cell.name == "50,000" and cell.role in ("table cell", "cell"), cell.role, cell.name)
    check(table.children[0].name == "1. Quillmark 50,000", table.children[0].name)
    listener.answer("Done")
    # A box with a question.
    listener.press(window, "Clear High Scores..." if window.find("menu item", "Clear High Scores...") else "Cear High Scores...", "menu item")
    question = listener.dialog()
    check(any("Are You Sure" in text or "sure" in text for text in labels(question)), labels(question))
    listener.answer("No")


# --- Whole games ---------------------------------------------------------------------------------


def customise(listener, window, values):
    entry = next(each.name for each in window.walk() if each.role == "menu item" and
                 each.name in ("Customize Scoring...", "User Options..."))
    listener.press(window, entry, "menu item")
    dialog = listener.dialog()
    for name, value in values.items():
        box = listener.until(name, lambda: next(b for b in dialog.walk() if b.name == name and "EditableText" in b.interfaces))
        check(box.call("EditableText", "SetTextContents", "s", str(value)), name)
    listener.answer("OK")


def whole(listener, game, values, turn):
    began = time.monotonic()
    listener.press(listener.window("Quillmark"), game)
    window = listener.window(game)
    customise(listener, window, values)
    listener.press(window, "Play")
    presses = 0
    while not (dialogs := [w for w in listener.windows() if w.role != "frame"]):
        check(time.monotonic() - began < 600, "the game doesn't end")
        try:
            presses += turn(listener, window)
        except (Error, StopIteration):
            pass
        listener.listen(0.02)
    dialog = dialogs[0]
    box = next(each for each in dialog.walk() if "EditableText" in each.interfaces)
    box.call("EditableText", "SetTextContents", "s", "Ada Reader")
    listener.answer("OK")
    table = listener.until("the Hall of Fame", lambda: listener.dialog().find("table"))
    first = table.children[0].name
    check(first.startswith("1. Ada Reader") and first.endswith("just entered"), first)
    listener.answer("Done")
    listener.until_said("Game Over", 30)
    leave(listener, window)
    print(f"{game}: {presses} presses, {time.monotonic() - began:.0f} s; {first}; said: {listener.said}")
    listener.said.clear()


def value(name):
    return min(10, 1 + RANKS.index(name.split()[0]))


def turn_sumfall(listener, window):
    """Cards that make eleven; else the next one of the stock; else the score."""
    places = cards(window)
    if any(name.endswith("selected") for _, name in places):
        return 0
    free = [(card, value(name)) for card, name in places if name.endswith(", exposed")]
    for count in (2, 3, 4):
        for chosen in combinations(free, count):
            if sum(worth for _, worth in chosen) == 11:
                for card, _ in chosen:
                    card.act()
                listener.listen(0.3)
                return count
    stock = [card for card, name in places if name == "Face down, stock"]
    if stock and any(name.startswith("Cards: ") and name != "Cards: 0" for name in labels(window)):
        stock[0].act()
        listener.listen(0.2)
        return 1
    if places:
        listener.press(window, "Take Score")
        listener.listen(1)
    return 1


def turn_handgrid(listener, window):
    """The next card goes to the first empty place."""
    empty = [card for card, name in cards(window) if name.startswith("Empty, row")]
    if not empty:
        return 0
    empty[0].act()
    listener.listen(0.25)
    return 1


def main():
    arguments = sys.argv[1:]
    for command in ("dbus-run-session", "Xvfb"):
        if not shutil.which(command):
            print(f"skipped: there is no {command} here")
            return SKIPPED
    return run(arguments) if os.environ.get("CARDHAVEN_OWN_BUS") else run_apart()


def run_apart():
    """The same on a screen, a bus and in a home of its own."""
    home = tempfile.mkdtemp()
    reading, writing = os.pipe()
    screen = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                              pass_fds=[writing], stderr=subprocess.DEVNULL)
    try:
        env = dict(os.environ, CARDHAVEN_OWN_BUS="1", DISPLAY=":" + os.read(reading, 20).decode().strip(), HOME=home,
                   XDG_CONFIG_HOME=home, XDG_CACHE_HOME=home, XDG_DATA_HOME=home, XDG_RUNTIME_DIR=home)
        env.pop("AT_SPI_BUS_ADDRESS", None)
        return subprocess.run(["dbus-run-session", "--", sys.executable, __file__, *sys.argv[1:]], env=env).returncode
    finally:
        screen.terminate()
        screen.wait()
        shutil.rmtree(home, ignore_errors=True)


def run(arguments):
    try:
        listener = Listener(arguments[0], "--tree" in arguments)
    except Error as error:
        print("skipped: there is no accessibility bus here:", error)
        return SKIPPED
    try:
        if "--whole" in arguments:
            whole(listener, "Sumfall!", {"Score awarded for eleven combination": 50000}, turn_sumfall)
            whole(listener, "Handgrid", {"Pair Score Value": 50000}, turn_handgrid)
        else:
            test_boards(listener)
        check(listener.program.poll() is None, "the program has ended")
        return 0
    finally:
        listener.close()


sys.exit(main())
