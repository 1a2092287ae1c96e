#!/usr/bin/env python3
"""Plays a whole game of each kind by real key presses alone, from the selector to the Hall of Fame.

  keyboard_games.py DESKTOP-PROGRAM [PICTURES-FOLDER [NUMBER...]]

Needs Xvfb and xdotool, for the pictures ImageMagick. The player is blind and not clever: the high score tables are prepared
so that any score gets in, and rounds are ended by their keys after some time. Fails when a game doesn't come to its end,
when the name that was typed isn't in its table, or when a record doesn't hold by the console beside. All seven take some four minutes.
"""
import os
import random
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 240  # seconds a game

RANKS = ["9 2", "8 3", "7 4", "6 5", "0 a", "t 1", "4 4 3", "5 5 a"]


def sumfall(chance):
    pairs = [pair + " BackSpace BackSpace BackSpace" for pair in chance.sample(RANKS, 4)]
    return [*pairs, "Right space BackSpace", "d"]


def spirehold(chance):
    return [" ".join(chance.sample(list("a234567890jqk"), 13)) + " Left space", "d"]


def duopick(chance):
    ranks = chance.sample(list("a23456789tjqk"), 6)
    return [f"{rank} {rank} BackSpace" for rank in ranks] + ["d", "Down space Right space BackSpace"]


def fivestack(chance):
    return [" ".join(chance.choices("12345", k=4)), "minus", "Right space"]


def blackrush(chance):
    return [" ".join(chance.choices("1234", k=3)), "minus", "Left space"]


def handgrid(chance):
    cells = [f"{row} {column}" for row in range(1, 6) for column in range(1, 6)]
    chance.shuffle(cells)
    return [*cells[:20], *["Right space Down space" for _ in range(3)], *cells]


def treyshift(chance):
    lays = [f"d {chance.choice('1234qwe')} Escape" for _ in range(6)]
    lays = [lay.replace(" Escape", " BackSpace") for lay in lays]
    return [*lays, f"{chance.choice('1234')} {chance.choice('1234')} BackSpace"]


# Key in the selector, title, table, how it is played, seconds a round, the key that ends a round.
GAMES = [
    ("1", "Sumfall!", "HiScores90_11.Txt", sumfall, 8, "alt+t"),
    ("2", "Fivestack!", "HiScores60.Txt", fivestack, 4, "alt+g alt+t"),
    ("3", "Blackrush!", "BlackrushHiScores90.Txt", blackrush, 6, "alt+t"),
    ("4", "Duopick!", "DuopickHighScores45.Txt", duopick, 6, "alt+t"),
    ("5", "Spirehold!", "SpireholdHiScores45.Txt", spirehold, 6, "alt+t"),
    ("6", "Handgrid!", "HandgridHighScores75.Txt", handgrid, 80, ""),
    ("7", "Treyshift!", "TreyshiftHiScores120.Txt", treyshift, 8, "alt+t"),
]


class Player:
    def __init__(self, program, folder, pictures):
        self.pictures = pictures
        self.folder = folder
        read, write = os.pipe()
        self.screen = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1024x768x24"],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        display = os.fdopen(read).readline().strip()
        self.env = dict(os.environ, DISPLAY=":" + display, HOME=folder, XDG_CONFIG_HOME=folder + "/config",
                        XDG_DATA_HOME=folder + "/data", SDL_AUDIODRIVER="dummy", QT_QPA_PLATFORM="xcb")
        self.program = subprocess.Popen([program, "--folder", folder], env=self.env)
        self.await_selector()

    def close(self):
        for process in (self.program, self.screen):
            process.terminate()
            process.wait()

    def run(self, *command):
        return subprocess.run(command, env=self.env, capture_output=True, text=True).stdout

    def press(self, keys, delay=30):
        if self.program.poll() is not None:
            raise SystemExit(f"the program ended with {self.program.returncode}")
        self.run("xdotool", "key", "--delay", str(delay), *keys.split())

    def focus(self):
        """Title and size of the window that has the keyboard."""
        window = self.run("xdotool", "getwindowfocus").strip()
        lines = dict(line.split("=") for line in
                     self.run("xdotool", "getwindowgeometry", "--shell", window).splitlines() if "=" in line)
        size = int(lines.get("WIDTH", 0)), int(lines.get("HEIGHT", 0))
        return self.run("xdotool", "getwindowname", window).strip(), size

    def await_window(self, what, fits, seconds=20):
        """Waits for a window with the keyboard whose title and size fit."""
        end = time.monotonic() + seconds
        while not fits(*self.focus()):
            if time.monotonic() > end:
                self.picture("stuck")
                raise SystemExit(f"waited in vain for {what}; {self.focus()} is there")
            time.sleep(0.1)
        time.sleep(0.4)

    def await_selector(self):
        self.await_window("the selector", lambda title, size: size == (449, 366))

    def await_game(self, name):
        self.await_window(name, lambda title, size: title.startswith(name) and size[0] > 590)

    def picture(self, name):
        if self.pictures:
            self.run("import", "-window", "root", os.path.join(self.pictures, name + ".png"))


NAME_DIALOG = (360, 144)


def play(player, key, title, table, moves, seconds, ends):
    chance = random.Random(1)
    path = os.path.join(player.folder, table)
    with open(path, "w", newline="") as file:
        file.write("Nobody, -9999999\r\n" * 10)
    start = time.monotonic()
    player.press(key)
    player.await_game(title)
    player.press("F2")
    rounds = 0
    shown = False
    while player.focus()[1] != NAME_DIALOG:
        round_start = time.monotonic()
        while time.monotonic() - round_start < seconds and player.focus()[1] != NAME_DIALOG:
            for keys in moves(chance):
                player.press(keys, 20)
                time.sleep(0.1)  # a bust takes its time
            if not shown and time.monotonic() - start > 3:
                player.press("Right")
                time.sleep(0.2)
                player.picture(f"{key}-board")
                shown = True
            if time.monotonic() - start > PATIENCE:
                player.picture(f"{key}-stuck")
                raise SystemExit(f"{title} doesn't end")
        rounds += 1
        if player.focus()[1] == NAME_DIALOG:
            break
        player.press(ends or "Escape p")
        time.sleep(1)
    name = f"Kay {key}"
    player.run("xdotool", "key", "ctrl+a")
    player.run("xdotool", "type", "--delay", "40", name)
    player.picture(f"{key}-name")
    player.press("Return")
    time.sleep(4)  # "Game Over" stands for a while
    player.press("alt+o v", 300)
    player.await_window("the Hall of Fame", lambda name, size: "Hall of Fame" in name)
    time.sleep(0.5)
    player.picture(f"{key}-fame")
    player.press("Escape")
    player.await_game(title)
    with open(path) as file:
        entered = [line.strip() for line in file if line.startswith(name)]
    if len(entered) != 1:
        raise SystemExit(f"{title}: {name} isn't in {table}")
    for _ in range(8):  # the game may be saying that it is over
        player.press("alt+x")
        time.sleep(1.5)
        if player.focus()[1][0] < 300:  # "Giving up so soon?"
            break
    player.press("alt+y")
    player.await_selector()
    print(f"{title} {entered[0]} after {time.monotonic() - start:.0f} s", flush=True)


def verify(player, console, games):
    records = [os.path.join(player.folder, "records", name) for name in os.listdir(player.folder + "/records")]
    said = player.run(console, "--verify", *[name for name in records if name.endswith(".record")]).splitlines()
    proved = [line for line in player.run(console, "--folder", player.folder, "--verify-tables").splitlines()
              if ": holds " in line]
    print(f"{sum(line.startswith('holds ') for line in said)} of {len(said)} records hold, {len(proved)} entries", flush=True)
    if len(said) < games or len(proved) != games or not all(line.startswith("holds ") for line in said):
        raise SystemExit("\n".join(said + proved))


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("told to end"))
    program, pictures, wanted = sys.argv[1], (sys.argv + [""])[2], sys.argv[3:]
    if pictures:
        os.makedirs(pictures, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        player = Player(os.path.abspath(program), folder, pictures)
        try:
            games = [game for game in GAMES if not wanted or game[0] in wanted]
            for game in games:
                play(player, *game)
            verify(player, os.path.join(os.path.dirname(os.path.abspath(program)), "cardhaven-console"), len(games))
        finally:
            player.close()


if __name__ == "__main__":
    main()
