#!/usr/bin/env python3
"""A monkey at the real windows: clicks, keys, sizes, minimising, close boxes and boxes at random, in each game.

  monkey.py DESKTOP-PROGRAM [SECONDS [SEED]]

The seconds are for all games together. Fails when the program crashes, hangs or ends on a failure, or when the record of
the game that ended last doesn't hold by the console beside.
"""
import json
import os
import random
import select
import subprocess
import sys
import tempfile
import time

KINDS = ("cmd", "mnu", "img", "Field", "Card", "Up", "Play", "opt", "chk", "txt", "lbl", "Deck", "Pile", "Column", "Hand", "Stack")


class Gone(Exception):
    pass


class Program:
    def __init__(self, path, folder):
        env = dict(os.environ, QT_QPA_PLATFORM="offscreen", SDL_AUDIODRIVER="dummy",
                   ASAN_OPTIONS="detect_leaks=0")  # the font library keeps a block till the end
        self.process = subprocess.Popen([path, "--console", "--seed", "1", "--speed", "100000", "--folder", folder,
                                         "--record", os.path.join(folder, "record")],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=env)
        self.rest = b""
        self.box = None
        self.ended = None
        self.answer()

    def line(self):
        while b"\n" not in self.rest:
            if not select.select([self.process.stdout], [], [], 60)[0]:
                raise Gone("hangs")
            chunk = os.read(self.process.stdout.fileno(), 65536)
            if not chunk:
                raise Gone(f"ended with {self.process.wait()}")
            self.rest += chunk
        line, self.rest = self.rest.split(b"\n", 1)
        return line.decode("utf-8", "replace")

    def answer(self):
        while True:
            line = self.line()
            if line.startswith("* msgbox "):
                self.box = json.loads(line[9:])
            elif line.startswith("* end"):
                self.ended = line
                raise Gone(line)
            elif not line.startswith("* "):
                return line

    def do(self, command):
        self.process.stdin.write((command + "\n").encode())
        self.process.stdin.flush()
        return self.answer()

    def ask(self, command):
        answer = self.do(command)
        return json.loads(answer[3:]) if answer.startswith("ok ") else None


def deed(chance, windows, controls):
    front = windows[0]["name"]
    kind = chance.random()
    if kind < 0.70 and controls:
        name = chance.choice(controls)
        verb = "dblclick" if chance.random() < 0.1 else "click"
        if name.startswith("txt") or name == "lblPlayerName":
            return f'type {front}.{name} {json.dumps(chance.choice(["", "7", "-1", "99999", "Me, too", "x" * 300]))}'
        return f"{verb} {front}.{name}"
    if kind < 0.82:
        return f"advance {chance.choice([0, 50, 1000, 1000, 5000, 70000])}"
    if kind < 0.88:
        return f'key {front} "{chance.choice(["Return", "Escape"])}"'
    if kind < 0.93:
        return f"resize {front} {chance.randint(1, 30000)} {chance.randint(1, 20000)}"
    if kind < 0.96:
        return f"state {front} {chance.randint(0, 2)}"
    return f"close {front}"


def play(path, button, seconds, chance, folder):
    deeds = done = 0
    until = time.monotonic() + seconds
    while time.monotonic() < until:
        program = Program(path, folder)
        try:
            program.do(f"click frmSelect.{button}")
            controls, shown = [], None
            while time.monotonic() < until:
                if program.box:
                    answer = chance.choice(program.box["buttons"])
                    if program.do(f'answer "{answer}"').startswith("error"):
                        program.box = None  # it was gone already
                    elif program.box and answer in program.box["buttons"]:
                        program.box = None
                    deeds += 1
                    done += 1
                    continue
                windows = program.ask("windows")
                windows = [each for each in windows if each["visible"]] or windows
                if windows[0]["name"] == "frmSelect" and chance.random() < 0.8:
                    program.do(f"click frmSelect.{button}")
                if windows[0]["name"] != shown or deeds % 40 == 0:
                    shown = windows[0]["name"]
                    controls = [name for name in program.ask(f"dump {shown}") or {}
                                if name.startswith(KINDS) and name not in ("cmdClose", "cmdLaunchBrowser")]
                deeds += 1
                done += not program.do(deed(chance, windows, controls)).startswith("error")
            program.process.stdin.close()
        except Gone as gone:
            if str(gone) != "* end":
                program.process.kill()
                raise Gone(f"{button}: {gone}\n{program.process.stderr.read().decode()[-4000:]}") from None
        # The end of the input leaves everything as it stands; what the sanitizers have to say comes now.
        try:
            status = program.process.wait(30)
        except subprocess.TimeoutExpired:
            program.process.kill()
            raise Gone(f"{button}: doesn't end") from None
        if status:
            raise Gone(f"{button}: ended with {status}\n{program.process.stderr.read().decode()[-4000:]}")
        record = os.path.join(folder, "record")
        if os.path.exists(record):
            console = os.path.join(os.path.dirname(path), "cardhaven-console")
            said = subprocess.run([console, "--verify", record], capture_output=True, text=True).stdout
            if not said.startswith("holds "):
                raise Gone(f"{button}: {said}")
            os.remove(record)
    return deeds, done


def main():
    path = os.path.abspath(sys.argv[1])
    seconds = float(sys.argv[2]) if len(sys.argv) > 2 else 20
    chance = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
    with tempfile.TemporaryDirectory(prefix="cardhaven-monkey-") as folder:
        program = Program(path, folder)
        buttons = [name for name in program.ask("dump frmSelect") if name.startswith("cmd")
                   and name not in ("cmdClose", "cmdLaunchBrowser")]
        program.process.kill()
        program.process.wait()
        for button in buttons:
            try:
                deeds, done = play(path, button, seconds / len(buttons), chance, folder)
            except Gone as gone:
                print(gone)
                return 1
            print(f"{button}: {deeds} deeds, {done} of them allowed")
            if not done:
                print(f"{button}: nothing could be done")
                return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
