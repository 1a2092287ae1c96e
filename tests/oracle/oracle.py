#!/usr/bin/env python3
"""Gives generated scripts to two consoles and compares all that they say and leave behind."""
import argparse
import difflib
import gzip
import hashlib
import json
import multiprocessing
import os
import shutil
import signal
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.dont_write_bytecode = True
sys.path.insert(0, HERE)
from player import GAMES, Player  # noqa: E402

LONGEST_RUN = 120  # seconds


def sources_digest():
    digest = hashlib.sha256()
    for name in sorted(os.listdir(HERE)):
        if name.endswith(".py") and name != "oracle.py":
            with open(os.path.join(HERE, name), "rb") as file:
                digest.update(file.read())
    return digest.hexdigest()[:12]


def file_digest(path):
    with open(path, "rb") as file:
        return hashlib.sha256(file.read()).hexdigest()[:16]


def work_folder():
    """Each worker's own; all of the same length, since the suite shows its path."""
    number = multiprocessing.current_process()._identity
    folder = os.path.join(settings.base, f"{number[0] if number else 0:03}"[-3:], "suite")
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    return folder


def make(game, number):
    """Plays a script on the old console, and keeps it."""
    path = script_path(game, number)
    if os.path.exists(path):
        return
    player = Player(settings.old, work_folder(), game, number)
    signal.alarm(LONGEST_RUN)  # rather than wait for ever for an answer
    lines = player.play()
    signal.alarm(0)
    if player.traces == "now and then":
        lines = [line.lstrip("#") for line in lines]
    script = {"options": player.options, "lines": lines,
              "files": {name: content.decode("latin-1") for name, content in player.files.items()}}
    partial = f"{path}.{os.getpid()}"
    with gzip.open(partial, "wt") as file:
        json.dump(script, file)
    os.replace(partial, path)


def script_path(game, number):
    return os.path.join(settings.cache, settings.sources, f"{game}-{number:03}.gz")


def run(program, script):
    """What a console says to a script, its exit status, and what it leaves: name to mode and content."""
    folder = work_folder()
    for name, content in script["files"].items():
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(content.encode("latin-1"))
    arguments = [program, "--folder", folder] + script["options"]
    try:
        done = subprocess.run(arguments, input="\n".join(script["lines"] + [""]).encode(), cwd=folder,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=LONGEST_RUN)
        said, status = done.stdout, done.returncode
    except subprocess.TimeoutExpired as error:
        said, status = error.stdout or b"", "no end"
    left = {}
    for where, folders, names in os.walk(folder):
        for name in folders + names:
            path = os.path.join(where, name)
            if name in settings.ignore:
                continue
            mode = oct(os.lstat(path).st_mode)
            content = b""
            if os.path.isfile(path):
                with open(path, "rb") as file:
                    content = file.read()
            left[os.path.relpath(path, folder)] = mode, nameless(content, folder)
    return nameless(said, folder), status, left


def nameless(text, folder):
    """A text without the path of the worker's folder."""
    return text.replace(folder.encode(), b"<folder>").replace(os.path.dirname(folder).encode(), b"<above>")


def digest_of(outcome):
    return hashlib.sha256(repr((outcome[0], outcome[1], sorted(outcome[2].items()))).encode()).hexdigest()


def steps_of(script, said):
    """The lines of an answer, step by step: the first answers the start."""
    steps, lines = [("(start)", [])], iter(said.decode("utf-8", "replace").split("\n"))
    commands = iter(each for each in script["lines"] if each.strip() and not each.startswith("#"))
    for line in lines:
        steps[-1][1].append(line)
        if not line.startswith("* "):
            steps.append((next(commands, "(end)"), []))
    return steps


def difference(script, old, new):
    """In words: where the two part."""
    told = []
    if old[0] != new[0]:
        before, after = steps_of(script, old[0]), steps_of(script, new[0])
        for number, (one, other) in enumerate(zip(before, after)):
            if one != other:
                lines = list(difflib.unified_diff(one[1], other[1], "old", "new", lineterm="", n=2))
                told.append(f"step {number}: {one[0]}")
                for line in lines[:40]:
                    told.append("    " + (line if len(line) < 600 else shorten(line, one[1], other[1])))
                break
        else:
            told.append(f"one says more: {len(before)} answers, {len(after)} answers")
    if old[1] != new[1]:
        told.append(f"exit status: {old[1]}, {new[1]}")
    for name in sorted(set(old[2]) | set(new[2])):
        one, other = old[2].get(name), new[2].get(name)
        if one == other:
            continue
        told.append(f"file {name}:")
        if one is None or other is None:
            told.append("    is there only " + ("in the new folder" if one is None else "in the old folder"))
        elif one[0] != other[0]:
            told.append(f"    mode {one[0]}, {other[0]}")
        else:
            told += ["    " + line for line in difflib.unified_diff(
                *(each[1].decode("latin-1").split("\n") for each in (one, other)), "old", "new", lineterm="", n=1)][:20]
    return told


def shorten(line, one, other):
    """A dump's difference: the properties that differ."""
    try:
        dumps = [json.loads(each[-1][3:]) for each in (one, other)]
        told = []
        for name in sorted(set(dumps[0]) | set(dumps[1])):
            a, b = (each.get(name, {}) for each in dumps)
            for prop in sorted(set(a) | set(b)):
                if a.get(prop) != b.get(prop):
                    told.append(f"{name}.{prop}: {a.get(prop)!r} -> {b.get(prop)!r}")
        return "; ".join(told[:30]) if line.startswith("-") else ""
    except (ValueError, AttributeError, IndexError):
        return line[:600] + " ..."


def check(task):
    """Returns the script's name and the difference, empty if there is none."""
    game, number = task
    signal.signal(signal.SIGINT, signal.SIG_DFL)
    make(game, number)
    with gzip.open(script_path(game, number), "rt") as file:
        script = json.load(file)
    new = run(settings.new, script)
    kept = script_path(game, number)[:-3] + "." + settings.old_digest
    if os.path.exists(kept):
        with open(kept) as file:
            if file.read() == digest_of(new):
                return task, []
    old = run(settings.old, script)
    with open(f"{kept}.{os.getpid()}", "w") as file:
        file.write(digest_of(old))
    os.replace(file.name, kept)
    return task, difference(script, old, new)


def main():
    global settings
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("old", help="the console that is right")
    parser.add_argument("new", help="the console to be compared with it")
    parser.add_argument("--game", choices=GAMES, action="append", help="only this game's scripts")
    parser.add_argument("--only", type=int, help="only the script of that number, from 0")
    parser.add_argument("--sample", type=int, help="that many scripts a game, spread over all")
    parser.add_argument("--scripts", type=int, default=200, help="scripts a game (200)")
    parser.add_argument("--ignore", action="append", default=[], help="a file that one of them leaves and isn't compared")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--show", type=int, default=10, help="differences to print (10)")
    parser.add_argument("--print", action="store_true", help="print the script's options and commands, and stop")
    parser.add_argument("--cache", default=os.environ.get("CARDHAVEN_ORACLE", os.path.join(ROOT, "build", "oracle")),
                        help="where scripts are kept once they are made")
    settings = parser.parse_args()
    settings.old, settings.new = os.path.abspath(settings.old), os.path.abspath(settings.new)
    settings.sources, settings.old_digest = sources_digest(), file_digest(settings.old)
    os.makedirs(os.path.join(settings.cache, settings.sources), exist_ok=True)
    numbers = range(settings.scripts)
    if settings.sample:
        numbers = numbers[::max(1, settings.scripts // settings.sample)][:settings.sample]
    if settings.only is not None:
        numbers = [settings.only]
    tasks = [(game, number) for number in numbers for game in settings.game or GAMES]
    settings.base = tempfile.mkdtemp(prefix="cardhaven-oracle-")
    os.nice(5)
    os.umask(0o022)
    try:
        if settings.print:
            for game, number in tasks:
                make(game, number)
                with gzip.open(script_path(game, number), "rt") as file:
                    script = json.load(file)
                print(f"# {game} {number}: {' '.join(script['options'])}; {', '.join(script['files'])}")
                print("\n".join(script["lines"]))
            return 0
        differing = 0
        with multiprocessing.Pool(settings.jobs) as pool:
            for (game, number), told in pool.imap_unordered(check, tasks, chunksize=4):
                if not told:
                    continue
                differing += 1
                if differing <= settings.show:
                    print(f"{game} {number} (--game {game} --only {number}):")
                    print("\n".join("  " + line for line in told), flush=True)
        print(f"{len(tasks)} scripts, {differing} differ")
        return 1 if differing else 0
    finally:
        shutil.rmtree(settings.base, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
