"""Plays one script live on a console, and keeps what it did."""
import json
import os
import random
import re

from console import Console, Gone
from folders import prepare
from tables import TABLES

GAMES = tuple(TABLES)
TYPED = ("0", "1", "2", "7", "100", "999", "1000", "1001", "5000", "32767", "32768", "50000", "900000", "900001",
         "1000000", "2147483647", "-3", "abc", "12abc", "", "0.5", "2.5", "1e9", "99999999999999999999", "20000",
         "26", "30", "45", "-20001", "20001", " 5", "--5", "10")
NAMES = ("Ann", "Bob, or so", "", "  ", "Zoë \"the\" Fox", "x" * 120, "Ann *", "A\nB")
FILES = ("one.sfl", "two.sfl", "given.sfl", "new", "new.sfl", "*.sfl", "nothing.sfl", ".sfl", "a/b.sfl",
         "more/three.sfl", "..", "Sumfall.Ini", "*.*", "x" * 300)


def draws(deck, wanted):
    """What the shuffle must draw so that the deck begins with the wanted cards."""
    deck, results = deck[:], []
    for i in range(len(deck)):
        at = deck.index(wanted[i], i) if i < len(wanted) else i
        results.append(at + 1)
        deck[i], deck[at] = deck[at], deck[i]
    return f"random 1..{len(deck)} " + " ".join(map(str, results))


def standard_deck():
    return [f"{rank}{suit}" for suit in "SHCD" for rank in range(1, 14)]


def lucky_deck(game, rng):
    """An order of the cards in which the game's rare events come."""
    deck = standard_deck()
    rng.shuffle(deck)
    ranks = [f"{rank}{suit}" for rank in range(1, 14) for suit in "SHCD"]
    if game == "Spirehold":  # one run takes the whole table
        stairs = [f"{n % 13 + 1}{'SHC'[n // 13]}" for n in range(28)][::-1]
        rest = [card for card in deck if card not in stairs and card != "13D"]
        return stairs + rest + ["13D"]
    if game == "Duopick":  # pairs, from the open cards up
        order = (18, 19, 20, 21, 22, 23, 14, 15, 16, 17, 9, 10, 11, 12, 13, 5, 6, 7, 8, 0, 1, 2, 3, 4)
        laid = [""] * 24
        pairs = [card for card in ranks if card[-1] in "SH"][:24]
        for index, card in zip(order, pairs):
            laid[index] = card
        return laid
    if game == "Handgrid":
        rich = "1S 10S 11S 12S 13S 2H 3H 4H 5H 6H 7C 7H 7D 7S 8C 9C 9D 9H 4C 4D 2D 5D 8D 11D 13D".split()
        rest = [card for card in deck if card not in rich]
        return rich + rest
    if game == "Treyshift":
        if rng.random() < .5:  # the king that is left over comes first, for the storage
            return ["1H", "1S", "13D", "1C"] + [f"{rank}{suit}" for rank in range(2, 14) for suit in "SHC"] + \
                [f"{rank}D" for rank in range(1, 13)]
        return [f"{rank}{suit}" for rank in range(1, 14) for suit in "SHC"] + [f"{r}D" for r in range(1, 14)]
    if game in ("Fivestack", "Blackrush"):  # a ten and an ace again and again, then small cards
        tens = [card for card in deck if int(card[:-1]) >= 10]
        small = [card for card in deck if int(card[:-1]) in (1, 5, 6)]
        mixed = [card for pair in zip(tens, small) for card in pair]
        return mixed + [card for card in deck if card not in mixed]
    return None


class Player:
    def __init__(self, program, folder, game, number):
        self.rng = rng = random.Random(f"{game}/{number}")
        self.game, self.window, self.folder = game, "frm" + game, folder
        self.files = prepare(rng, game)
        self.options = ["--seed", str(rng.randrange(1, 1 << 30)), "--start",
                        f"20{rng.randrange(100):02}-{rng.randint(1, 12):02}-{rng.randint(1, 28):02}T"
                        f"{rng.randrange(24):02}:{rng.randrange(60):02}:{rng.randrange(60):02}",
                        "--screen", rng.choice(("1024x768", "1024x768", "640x480", "1920x1080"))]
        if game == "Sumfall" and ("given.sfl" in self.files or rng.random() < .03):
            self.options.append("given.sfl")
        self.lines = []
        self.length = rng.randint(90, 330)
        # What kind of player this is.
        self.skill = rng.choice((.97, .93, .85, .6, .2))
        self.restless = rng.choice((.02, .05, .12, .3))      # menus, dialogs, pauses, closing
        self.slow = rng.choice((.02, .05, .15))              # lets time pass
        self.pace = rng.choice((300, 1500, 6000, 30000))
        self.looks = rng.choice((.02, .05, .1))              # dumps
        self.luck = rng.random() < .5
        self.traces = rng.choice(("on", "on", "on", "on", "on", "on", "now and then", "off"))
        for name, content in self.files.items():
            path = os.path.join(folder, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as file:
                file.write(content)
        self.plan, self.errand = [], []
        self.errands = rng.choice((0, .02, .06))
        self.lost, self.lucky = 0, False
        self.ended = False
        self.console = Console([program, "--folder", folder] + self.options, folder)
        self.table = TABLES[game](game, self.console, rng)

    def play(self):
        """Returns the commands of the script."""
        try:
            self.console.tell("trace on")  # for the player, who reads on; the script has its own
            if self.traces == "on":
                self.lines.append("trace on")
            self.tell("dump frmSelect")
            while len(self.lines) < self.length and self.console.said < 2_500_000:
                self.tell(self.next())
            self.finish()
        except Gone:
            # The command that says too much or ends the program: only the latter belongs to the script.
            if self.console.process.poll() is None and not self.ended:
                self.lines.pop()
        self.console.quit()
        return self.lines

    def tell(self, line):
        self.lines.append(line)
        if line.startswith("#"):
            return
        answer = self.console.tell(line)
        console = self.console
        if "stands before" in answer or "message box" in answer:
            self.plan = []
            self.lost += 1
            if self.lost > 12:  # it sees less than there is
                console.boxes, console.modal, self.lost = [], [], 0
                told = console.tell("windows")
                self.lines.append("windows")
                console.modal = [each["name"] for each in reversed(json.loads(told[3:])) if each["modal"]]
        else:
            self.lost = 0
        while console.loaded:
            name = console.loaded.pop(0)
            if name in console.windows:
                self.lines.append("dump " + name)
                console.tell("dump " + name)

    def finish(self):
        rng, console = self.rng, self.console
        for name in list(console.windows):
            self.tell("dump " + name)
        self.tell("windows")
        self.tell("time")
        if rng.random() < .3:  # how long the window was open decides what is asked
            self.tell(f"advance {rng.choice((290000, 330000, 390000))}")
        way = rng.random()
        if way < .15:
            self.lines.append("quit")
        elif way < .3:
            return  # the input ends
        for _ in range(30):  # leaves properly, as far as that goes
            if console.boxes:
                self.tell("answer " + json.dumps("Yes" if "Yes" in console.boxes[-1] else console.boxes[-1][0]))
            elif console.modal:
                self.tell("close " + console.modal[-1])
            elif self.window in console.shown or any("frm" + game in console.shown for game in GAMES):
                window = next(each for each in console.shown if each[3:] in GAMES)
                if "Resume" in console.get(window, "mnuPause", "Caption", ""):
                    self.tell(f"click {window}.mnuPause")
                self.tell("close " + window)
                self.tell("advance 250")
            else:
                self.tell("click frmSelect.cmdClose")

    # --- Choosing -----------------------------------------------------------------------------------

    def next(self):
        rng, console = self.rng, self.console
        if rng.random() < self.looks:
            return self.look()
        if self.errand:
            return self.errand.pop(0)
        if self.traces == "now and then" and rng.random() < .05:
            # The player always listens; what the script says is put in its place when it is kept.
            return rng.choice(("#trace on", "#trace off"))
        if rng.random() < .004:
            return self.rubbish()
        if console.boxes:
            if rng.random() < .12:
                return rng.choice(("advance 700", "advance 4000", "windows", f"click {self.window}.cmdPlay",
                                   f"close {self.window}", "answer \"Cancel\"", "advance 0"))
            buttons = console.boxes[-1]
            return "answer " + json.dumps(rng.choice(buttons))
        if console.modal:
            return self.in_dialog(console.modal[-1])
        window = next((each for each in reversed(console.shown) if each[3:] in GAMES), None)
        if window is None:
            return self.in_selector()
        if window != self.table.window:
            self.table = TABLES[window[3:]](window[3:], console, rng)
        return self.in_game(window)

    def look(self):
        rng, console = self.rng, self.console
        name = rng.choice(list(console.windows))
        if rng.random() < .6:
            return "dump " + name
        control = rng.choice(list(console.windows[name]) or [""])
        prop = rng.choice(("Caption", "Visible", "Enabled", "Checked", "Picture", "Text", "ToolTipText", "Left"))
        return rng.choice((f"get {name}.{control}.{prop}" if control else f"get {name}.Caption", "windows", "time",
                           "random", "random 1..52"))

    def rubbish(self):
        return self.rng.choice((
            "click frmNothing.cmdOK", "jump", "answer \"Yes\"", "dump frmNothing", f"click {self.window}",
            f"select {self.window}.cmdPlay 3", f"type {self.window}.cmdPlay \"x\"", "random 3..1", "random 1..52 99",
            "advance -1", f"key {self.window} \"F1\"", f"state {self.window} 7", f"resize {self.window} 0 0",
            f"click {self.window}.Timer1", f"get {self.window}.cmdPlay.Colour"))

    def in_selector(self):
        rng = self.rng
        chance = rng.random()
        if chance < .02:
            return f"click frmSelect.cmd{rng.choice(GAMES)}"
        if chance < .04:
            return "click frmSelect.cmdLaunchBrowser"
        if chance < .05 and len(self.lines) > 150:
            return rng.choice(("click frmSelect.cmdClose", "close frmSelect"))
        if chance < .12:
            return f"advance {rng.choice((100, 250, 1000, 5000))}"
        if chance < .15:
            return rng.choice(("key frmSelect \"Return\"", "key frmSelect \"Escape\"", "state frmSelect 1",
                               "state frmSelect 0", "click frmSelect.imgSplashImage(2)",
                               "move frmSelect.cmdSumfall", "resize frmSelect 8000 8000"))
        return f"click frmSelect.cmd{self.game}"

    def in_dialog(self, name):
        rng, console = self.rng, self.console
        controls = console.windows.get(name, {})
        chance = rng.random()
        if chance < .03:
            return "close " + name
        if chance < .07:
            return f"key {name} " + rng.choice(('"Return"', '"Escape"', '"Return"'))
        if chance < .11:
            return rng.choice((f"advance {rng.choice((0, 300, 2000))}", f"click {self.window}.cmdPlay", "windows",
                               f"move {name}.cmdOK", f"dump {name}"))
        if name == "frmHiScoreName":
            if rng.random() < .55:
                return f"type {name}.lblPlayerName {json.dumps(rng.choice(NAMES))}"
            return f"click {name}.cmdOK"
        ways = []
        for control in controls:
            full = f"{name}.{control}"
            if control == "cmdOK":
                ways += [f"click {full}"] * 3
            elif re.match("cmd", control):
                ways.append(f"click {full}")
            elif re.match("chk|opt", control):
                ways.append(f"click {full}")
            elif control == "txtGameName":
                ways += [f"type {full} {json.dumps(rng.choice(FILES))}", f"click {full}"]
            elif control == "txtUserName":
                ways.append(f"type {full} {json.dumps(rng.choice(NAMES))}")
            elif re.match("txt", control):
                typed = rng.choice(TYPED)
                if rng.random() < .7:
                    typed = str(rng.randint(1, 20) * rng.choice((1, 1, 50, 100, 1000)))
                ways += [f"type {full} {json.dumps(typed)}"] * 2
            elif control in ("File1", "Dir1"):
                # Not above the folder that holds ours: what is there differs from run to run.
                above = control == "Dir1" and not console.get(name, "Dir1", "Path", "").startswith(self.folder)
                entries = console.get(name, control, "List", [])
                chosen = console.get(name, control, "ListIndex", -1)
                ways += [f"select {full} {at}" for at, entry in enumerate(entries) if entry != ".." or not above]
                if not (above and 0 <= chosen < len(entries) and entries[chosen] == ".."):
                    ways.append(f"dblclick {full}")
        return rng.choice(ways) if ways else "close " + name

    def in_game(self, window):
        rng, console = self.rng, self.console
        self.plan = [each for each in self.plan if each.startswith("click " + window)]
        splash = console.visible(window, "frmSplash")
        if window == self.window and rng.random() < self.errands:
            self.errand = self.an_errand(splash)
            return self.errand.pop(0)
        paused = "Resume" in console.get(window, "mnuPause", "Caption", "")
        if not console.windows[window]:
            return "dump " + window
        chance = rng.random()
        if chance < self.restless * .5:
            return self.restlessly(window)
        if splash:
            return self.between_games(window, paused)
        if paused:
            if rng.random() < .6:
                return f"click {window}." + rng.choice(("cmdPause", "mnuPause"))
            return rng.choice((self.on_board(window), self.restlessly(window), f"advance {rng.randrange(self.pace)}",
                               "dump " + window))
        if self.plan:
            return self.plan.pop(0)
        chance = rng.random()
        if chance < self.slow:
            return f"advance {rng.choice((0, 250, 1000, rng.randrange(self.pace)))}"
        if chance < self.slow + .003:
            return "advance 200000"
        if chance < self.slow + .003 + self.restless * .15:
            return f"click {window}." + rng.choice(("cmdPlay", "mnuPlay", "mnuTakeScore", "cmdTakeScore", "cmdGiveUp"))
        if rng.random() < self.skill:
            self.plan = self.table.move()
            return self.plan.pop(0)
        return self.on_board(window)

    def an_errand(self, splash):
        """Several commands in a row, whatever comes of each: what hardly comes by chance."""
        rng, window = self.rng, self.window
        click = f"click {window}."
        if rng.random() < .2:  # music in a pause
            return [click + "cmdPause", click + "mnuMusic", click + "cmdPause", "advance 0"]
        if self.game == "Sumfall" and (splash or rng.random() < .5):  # opened, left, saved with another goal
            name = rng.choice(("one.sfl", "two.sfl", "mine"))
            lines = [click + "cmdPlay", 'answer "Yes"'] if not splash else []
            if rng.random() < .8:
                lines += [click + "mnuOpen", f'type frmOpen.txtGameName "{rng.choice(("one.sfl", "two.sfl"))}"',
                          "click frmOpen.cmdOK", 'answer "OK"', f'answer "{rng.choice(("Yes", "No"))}"',
                          "close frmOpen", click + "PlayCardPicture", click + "cmdPlay", 'answer "Yes"']
            lines += [click + f"mnu{rng.randint(10, 15)}"] * rng.randint(0, 1)
            lines += [click + "mnuSave", f'type frmSave.txtGameName "{name}"', "click frmSave.cmdOK", 'answer "OK"',
                      "close frmSave"]
            if rng.random() < .5:
                lines += [click + "mnuOpen", f'type frmOpen.txtGameName "{name}"', "key frmOpen \"Return\"",
                          'answer "OK"', 'answer "No"', "close frmOpen"]
            return lines
        if splash:
            return [click + "cmdPlay"]
        if self.game == "Treyshift":  # keeps some cards to the end of the deck
            self.table.hoards = rng.randint(0, 7)
            return [line for i in range(3) if self.table.hoards >> i & 1
                    for line in (click + "UpCard(2)", click + f"TempCard({i})")] or [click + "cmdTakeScore"]
        if self.game == "Handgrid":  # one card over another until that is refused
            cells = [rng.randrange(25) for _ in range(3)]
            return [click + f"PlayCards({rng.choice(cells)})" for _ in range(rng.randint(5, 32))]
        if self.game in ("Fivestack", "Blackrush"):
            return [click + rng.choice(("cmdPass", f"cmdHit({rng.randrange(4)})"))
                    for _ in range(rng.randint(3, 30))]
        pile = "PlayCardPicture" if self.game == "Sumfall" else "CardStackPicture"
        return [click + pile] * rng.randint(4, 40)  # to the end of the stack and beyond

    def between_games(self, window, paused):
        rng = self.rng
        if paused:
            return f"click {window}.mnuPause"
        chance = rng.random()
        if chance < .3:
            return self.entry(window)
        if chance < .38:
            return f"advance {rng.choice((100, 250, 400, 1000, 3000))}"
        if chance < .42:
            return self.restlessly(window)
        deck = lucky_deck(self.game, rng) if self.luck else None
        if deck and not self.lucky and chance < .9:
            self.lucky = True
            if deck[2] == "13D":
                slot = rng.randrange(3)
                self.table.hoards = 1 << slot
                self.errand = [f"click {window}.{each}" for each in ("cmdPlay", "UpCard(2)", f"TempCard({slot})")]
            return draws(standard_deck(), deck)
        if self.luck and self.game == "Sumfall" and not self.lucky and chance < .9:
            self.lucky = True
            return self.lucky_sums(window)
        self.lucky = False
        return f"click {window}." + rng.choice(("cmdPlay", "cmdPlay", "cmdPlay", "mnuPlay"))

    def lucky_sums(self, window):
        """Draws for Sumfall that lay pairs which make the goal, from the open cards up."""
        word = self.console.get(window, "lblElevens", "Caption", "")[:2]
        goal = {"Te": 10, "El": 11, "Tw": 12, "Th": 13, "Fo": 14, "Fi": 15}.get(word, 11)
        deck = [f"1{suit}" for suit in "SHCD" for _ in range(4)] + \
            [f"{rank}{suit}" for suit in "SHCD" for rank in range(2, 11)] + \
            [f"{rank}{suit}" for rank in range(11, {12: 12, 13: 13, 14: 14, 15: 14}.get(goal, 11)) for suit in "SHCD"]
        left, pairs = deck[:], []
        self.rng.shuffle(left)
        for card in list(left):
            partner = next((each for each in left if each != card and int(each[:-1]) + int(card[:-1]) == goal), None)
            if card in left and partner and len(pairs) < 22:
                left.remove(card)
                left.remove(partner)
                pairs += [card, partner]
        return draws(deck, pairs)

    def on_board(self, window):
        rng, console = self.rng, self.console
        controls = console.names(window, self.table.board)
        if rng.random() < .9:
            controls = [each for each in controls if console.visible(window, each)] or controls
        if not controls:
            return "dump " + window
        verb = rng.choice(("click",) * 8 + ("dblclick", "move"))
        return f"{verb} {window}.{rng.choice(controls)}"

    def entry(self, window):
        entries = self.console.names(window, "mnu(?!File$|Options$|Time$|Color$|Goal$|Deck$|Help$|.*Line)")
        weighty = [each for each in entries if re.match("mnu(Custom|UserOptions|Scoring|Scoring|Open|Save|View|Magic|Music)", each)]
        return f"click {window}." + self.rng.choice(self.rng.choice((entries, weighty or entries)))

    def restlessly(self, window):
        rng, console = self.rng, self.console
        chance = rng.random()
        if chance < .3:
            return f"click {window}." + rng.choice(("cmdPause", "mnuPause"))
        if chance < .55:
            return self.entry(window)
        if chance < .63:
            return rng.choice((f"resize {window} {rng.randint(6000, 15000)} {rng.randint(5000, 11000)}",
                               f"state {window} {rng.randrange(3)}", f"state {window} 0"))
        if chance < .7:
            return "close " + window
        if chance < .76:
            return f"key {window} " + rng.choice(('"Return"', '"Escape"'))
        if chance < .82:
            return f"click {window}." + rng.choice(("cmdExit", "cmdQuit", "cmdPlay", "mnuExit"))
        if chance < .88:
            low, high = rng.choice(((1, 52), (1, 52), (1, 4), (0, 3), (1, 60), (1, 64)))
            return f"random {low}..{high} " + " ".join(str(rng.randint(low, high)) for _ in range(rng.randrange(60)))
        if chance < .9:
            return "random"
        verb = rng.choice(("click", "click", "dblclick", "move"))
        return f"{verb} {window}.{rng.choice([each for each in console.windows[window] if each] or ['cmdPlay'])}"
