#!/usr/bin/env python3
"""Breaks the suite at every file call, and looks whether anything was lost.

Each scenario is played once to count its file calls; then again for each call and each kind of fault. After a run every
file must be whole, what was there before or what the run has made of it; what was earned must be in the table unless the
program was killed or has said that it can't be kept; and a start without faults must be clean.

  drive.py CONSOLE SHIM [--sample SECONDS] [--jobs N] [--copies N]
"""
import argparse
import concurrent.futures
import errno
import json
import os
import random
import subprocess
import sys
import tempfile
import time

TABLE, INI, SAVED = "HiScores90_11.Txt", "Sumfall.Ini", "mine.sfl"
# A score that a copy with no time has left for the next start.
NOTE, LATE = "HiScores90_11.late-0123456789abcdef.Txt", "Late, 100\r\n\r\n"
FRESH = "Quillmark, 50000\r\n" * 10 + "\r\n"
LOW = "".join(f"P{n}, {n}\r\n" for n in range(10, 0, -1)) + "\r\n"  # any score has a place in it
# The games played before; the last line was cut off.
HISTORY = "History.csv"
PLAYED = "ended,game,limit,goal,custom,rounds,score,place,seconds,deal,end,record\r\n" + \
    "2026-11-21T12:00:00+00:00,Duopick,45,,0,2,4000,0,50,0,time,\r\n2026-11-21T12:0"
OPEN = ["click frmSelect.cmdSumfall"]
# A box, where one stands, is answered; elsewhere the line is refused.
OK = ['answer "OK"'] * 3
CLOSE = ["close frmSumfall", 'answer "Yes"'] + OK
GAME = ["click frmSumfall.cmdPlay", "click frmSumfall.cmdTakeScore", "click frmSumfall.cmdTakeScore",
        "get frmSumfall.lblCurrentScore.Caption"] + OK
SAVE = ["click frmSumfall.mnuSave", 'type frmSave.txtGameName "mine"', 'type frmSave.txtUserName "Me"',
        "click frmSave.cmdOK"] + OK + ["click frmSave.cmdCancel"]
REOPEN = ["click frmSumfall.mnuOpen", 'type frmOpen.txtGameName "mine"', "click frmOpen.cmdOK"] + OK + \
         ["click frmOpen.cmdCancel"]
ENTER = ['type frmHiScoreName.lblPlayerName "Me"', "click frmHiScoreName.cmdOK"] + OK + ["click frmHighScores.cmdDone"]

SCENARIOS = {
    "first start": ({}, OPEN + OK),
    "settings at closing": ({TABLE: LOW}, OPEN + OK + ["click frmSumfall.mnuHot"] + CLOSE),
    "table entry": ({TABLE: LOW}, OPEN + OK + GAME + ENTER + CLOSE),
    "damaged table": ({TABLE: "P10, 10\r\nrubbish\r\n"}, OPEN + OK + GAME + ENTER + CLOSE),
    "damaged settings": ({INI: "rubbish", TABLE: LOW}, OPEN + OK + CLOSE),
    "saved game": ({TABLE: LOW, SAVED: "[Card Goal]\r\n11\r\n"}, OPEN + OK + GAME + ENTER + OK + SAVE + REOPEN + CLOSE),
    "late note": ({TABLE: LOW, NOTE: LATE}, OPEN + OK + GAME + ENTER + CLOSE),
    "history": ({TABLE: LOW, HISTORY: PLAYED}, OPEN + OK + GAME + ENTER + CLOSE),
    "two copies": ({TABLE: LOW}, OPEN + OK + GAME + ENTER + CLOSE),
}
# What "saved game" writes where nothing stands against it.
new_saved = None
KINDS = {"kill": "kill", "killed after": "killed-after", "short": "short", "EINTR": str(errno.EINTR),
         "EIO": str(errno.EIO), "ENOSPC": str(errno.ENOSPC), "EACCES": str(errno.EACCES), "EMFILE": str(errno.EMFILE)}


def read(folder, name):
    try:
        with open(os.path.join(folder, name), newline="", encoding="utf-8") as file:
            return file.read()
    except FileNotFoundError:
        return None


def entries(text):
    """The entries of a whole table; None for anything else."""
    if not text or not text.endswith("\r\n\r\n"):
        return None
    found = []
    for line in text[:-4].split("\r\n"):
        name, comma, score = line.partition(", ")
        if not comma or not score.lstrip("-").isdigit():
            return None
        found.append((name, int(score)))
    return found


def play(options, folder, lines, **environment):
    # In the sanitized build the address sanitizer wants to come first in the list of libraries.
    env = dict(os.environ, LD_PRELOAD=options.shim, FAULT_FOLDER=folder, ASAN_OPTIONS="verify_asan_link_order=0",
               **environment)
    return subprocess.run([options.console, "--seed", "1", "--folder", folder], input="\n".join(lines) + "\n", text=True,
                          capture_output=True, env=env, timeout=120, check=False)


def play_beside(options, folder, scenario, **environment):
    """Plays a scenario; in that of two copies another one enters a score meanwhile, without a fault."""
    lines = SCENARIOS[scenario][1]
    if scenario != "two copies":
        return play(options, folder, lines, **environment), None
    other = subprocess.Popen([options.console, "--seed", "2", "--folder", folder], stdin=subprocess.PIPE,
                             stdout=subprocess.PIPE, text=True)
    try:
        print(*OPEN, *GAME, sep="\n", file=other.stdin, flush=True)
        while "show frmHiScoreName" not in (line := other.stdout.readline()):
            if not line:
                return play(options, folder, lines, **environment), "another copy has ended by itself"
        print(*[line.replace('"Me"', '"You"') for line in ENTER + CLOSE], sep="\n", file=other.stdin)
        other.stdin.close()  # both are at it now
        ran = play(options, folder, lines, **environment)
        other.stdout.read()
        ended = other.wait(120)
        return ran, f"the copy without faults ended with {ended}" if ended else None
    finally:
        other.kill()
        other.wait()
        other.stdout.close()


def prepare(folder, files):
    for name, text in files.items():
        with open(os.path.join(folder, name), "w", newline="", encoding="utf-8") as file:
            file.write(text)


def whole_settings(text):
    return text is not None and all(f"[{name}]\r\n" in text for name in ("Color", "Time", "Deck", "Height"))


def late_findings(folder):
    """After a start without faults."""
    times = [name for name, _ in entries(read(folder, TABLE)) or []].count("Late")
    if times != 1:
        yield f"the late score is there {times} times after the next start"
    if notes := [name for name in os.listdir(folder) if ".late-" in name]:
        yield f"notes are left: {notes}"


def stuck_notes(options):
    """Starts with a note that can't be moved, or not removed, and one without faults."""
    for stuck, expected in ((".late-", 0), (".late-0123456789abcdef-", 1)):
        with tempfile.TemporaryDirectory(prefix="cardhaven-fault-") as folder:
            prepare(folder, {TABLE: LOW, NOTE: LATE})
            for start in range(3):
                play(options, folder, OPEN + OK + GAME + ENTER + CLOSE, FAULT_STUCK=stuck)
                times = [name for name, _ in entries(read(folder, TABLE)) or []].count("Late")
                if times != expected:
                    yield f"with {stuck} stuck the late score is there {times} times after start {start + 1}"
            play(options, folder, OPEN)
            yield from late_findings(folder)


def games(folder):
    """The whole lines of Sumfall in the history."""
    lines = (read(folder, HISTORY) or "").split("\r\n")
    return [line for line in lines[:-1] if line.count(",") == 11 and ",Sumfall," in line]


def findings(options, folder, scenario, kind, ran, beside):
    files, lines = SCENARIOS[scenario]
    if beside:
        yield beside
    # How many calls two copies make depends on who comes first: a late call may not be made at all.
    killed = kind.startswith("kill") and not (scenario == "two copies" and ran.returncode == 0)
    if ran.returncode != (-9 if killed else 0):
        yield f"ended with {ran.returncode}: {ran.stderr[-300:]}"
    boxes = [line for line in ran.stdout.split("\n") if line.startswith("* msgbox")]
    def told(name):
        return any(name in box or "the folder" in box for box in boxes)
    table, settings, saved = (read(folder, name) for name in (TABLE, INI, SAVED))
    for name, text, is_whole in ((TABLE, table, entries(table) is not None), (INI, settings, whole_settings(settings)),
                                 (SAVED, saved, saved == new_saved)):
        if text is None and name in files:
            yield f"{name} is gone"
        if text is not None and text != files.get(name) and not is_whole:
            yield f"{name} is neither old nor new: {text[:60]!r}"
    names = [name for name, _ in entries(table) or []]
    if not killed:
        if "click frmHiScoreName.cmdOK" in lines and names.count("Me") != 1 and not told(TABLE):
            yield f"the score is there {names.count('Me')} times, and nobody was told"
        if "click frmSumfall.mnuHot" in lines and (settings is None or "[Deck]\r\n4" not in settings) and not told(INI):
            yield "the settings are lost, and nobody was told"
        if SAVED in files and saved != new_saved and not told("Unable to save"):
            yield "the game isn't saved, and nobody was told"
        if SAVED in files and saved == new_saved and not told("saved by Me") and not told("Unable to open"):
            yield "the saved game doesn't open, and nobody was told"
    if scenario == "two copies" and names.count("You") != 1:
        yield f"the other copy's score is there {names.count('You')} times"
    if names.count("Late") > 1:
        yield f"the late score is there {names.count('Late')} times"
    if not (read(folder, HISTORY) or "").startswith(files.get(HISTORY, "")):
        yield f"the history has lost lines: {read(folder, HISTORY)!r}"
    # A saved game that is opened is one more.
    played = len(games(folder)) - (scenario == "two copies") - (SAVED in files and len(games(folder)) == 2)
    if "click frmHiScoreName.cmdOK" in lines and not killed and played != 1 and "game's line" not in ran.stderr:
        yield f"the history has {played} lines of the game, and nobody was told"
    for name, text in files.items():
        new = read(folder, name)
        beside = [read(folder, each) for each in os.listdir(folder) if each.startswith(name + ".bad")]
        if "rubbish" in text and new != text and text not in beside:
            yield f"what stood in {name} is lost"
    if table is not None and TABLE in files and (read_table := entries(table)) is not None:
        kept = sum(name.startswith("P") for name, _ in read_table)
        if kept < min(10 - (scenario == "two copies") - (NOTE in files) - 1, files[TABLE].count(", ")):
            yield f"{TABLE} has lost entries: {table!r}"
    clean = play(options, folder, OPEN)
    if NOTE in files:
        yield from late_findings(folder)
    left = [name for name in os.listdir(folder) if ".new-" in name]
    if clean.returncode != 0 or "msgbox" in clean.stdout:
        yield f"the next start isn't clean: {clean.stdout[-200:]}"
    if left and any(name.startswith(INI) or name.startswith(TABLE) for name in left):
        # Nothing had to be written, so nothing was swept; a start that writes does it.
        play(options, folder, OPEN + CLOSE + OPEN + ["click frmSumfall.mnu30"])
        if any(".new-" in name for name in os.listdir(folder)):
            yield f"leftovers: {left}"


def point(options, scenario, kind, at):
    with tempfile.TemporaryDirectory(prefix="cardhaven-fault-") as folder:
        prepare(folder, SCENARIOS[scenario][0])
        try:
            ran, beside = play_beside(options, folder, scenario, FAULT_AT=str(at), FAULT_KIND=KINDS[kind])
            return [f"{scenario}, {kind} at call {at}: {what}"
                    for what in findings(options, folder, scenario, kind, ran, beside)]
        except subprocess.TimeoutExpired:
            return [f"{scenario}, {kind} at call {at}: hangs"]


def count(options, scenario):
    global new_saved
    with tempfile.TemporaryDirectory(prefix="cardhaven-fault-") as folder:
        prepare(folder, SCENARIOS[scenario][0])
        counter = folder + ".count"
        ran, beside = play_beside(options, folder, scenario, FAULT_COUNT=counter)
        with open(counter, encoding="utf-8") as file:
            calls = int(file.read())
        os.remove(counter)
        if scenario == "saved game" and "[Round 1 Deck]" in (read(folder, SAVED) or ""):
            new_saved = read(folder, SAVED)
        wrong = list(findings(options, folder, scenario, "none", ran, beside))
        return calls, [f"{scenario}, without a fault: {what}" for what in wrong]


def copies(options, number, each):
    """So many copies enter so many scores each, in one folder on a slow disk."""
    # The best entries stay in ten places: each copy makes room for all of them to be seen at some time.
    lines = OPEN + OK
    for _ in range(each):
        lines = lines + GAME + ENTER
    with tempfile.TemporaryDirectory(prefix="cardhaven-fault-") as folder:
        prepare(folder, {TABLE: LOW})
        def run(copy):
            mine = [line.replace('"Me"', f'"C{copy}"') for line in lines + CLOSE]
            return play(options, folder, mine, FAULT_SYNC="400")
        with concurrent.futures.ThreadPoolExecutor(number) as pool:
            ran = list(pool.map(run, range(number)))
        found = entries(read(folder, TABLE)) or []
        names = sorted(name for name, _ in found if name.startswith("C"))
        wrong = [f"copy {copy} ended with {each_ran.returncode}" for copy, each_ran in enumerate(ran) if each_ran.returncode]
        expected = min(10, number * each)
        if len(names) < expected:
            wrong.append(f"{number} copies on a slow disk kept {len(names)} of {expected} entries: {names}")
        if len(games(folder)) != number * each:
            wrong.append(f"the history has {len(games(folder))} lines of {number * each}")
        return wrong


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("console")
    parser.add_argument("shim")
    parser.add_argument("--sample", type=float, help="stop after so many seconds; points by chance, always the same")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--copies", type=int, default=0, help="so many copies at once on a slow disk")
    options = parser.parse_args()
    options.console, options.shim = os.path.abspath(options.console), os.path.abspath(options.shim)
    started = time.monotonic()
    wrong, points, calls_of = list(stuck_notes(options)), [], {}
    for scenario in SCENARIOS:
        calls, bad = count(options, scenario)
        wrong += bad
        calls_of[scenario] = calls
        points += [(scenario, kind, at) for kind in KINDS for at in range(1, calls + 1)]
        if not calls:
            wrong.append(f"{scenario}: no calls were seen")
    if options.sample:
        random.Random(1).shuffle(points)
    ran = {kind: 0 for kind in KINDS}
    def one(each):
        if options.sample and time.monotonic() - started > options.sample:
            return None
        return point(options, *each)
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for each, bad in zip(points, pool.map(one, points)):
            if bad is None:
                continue
            ran[each[1]] += 1
            wrong += bad
    if options.copies:
        wrong += copies(options, options.copies, 1)
        print(f"{options.copies} copies on a disk that takes 400 ms")
    print(f"calls: {json.dumps(calls_of)}")
    print(f"{sum(ran.values())} of {len(points)} points: {json.dumps(ran)}; {len(wrong)} findings; "
          f"{time.monotonic() - started:.0f} s")
    for what in wrong:
        print(what)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
