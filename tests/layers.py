#!/usr/bin/env python3
"""Holds the code to its layers: an arrow never points up.

  layers.py SOURCE-FOLDER

Each folder includes only what the table below allows it, a game no other game. Only the desktop knows a toolkit, and only
window/system/posix an operating system. Within the desktop no two
files include each other, however far around.
"""
import pathlib
import re
import sys

SYSTEM = "window/system"
MODEL = "window " + SYSTEM
DESKTOP = "window/desktop"
MAY = {
    "window": MODEL,
    SYSTEM: "",
    SYSTEM + "/posix": SYSTEM,
    SYSTEM + "/web": SYSTEM,
    "window/results": MODEL + " history",
    "window/script": MODEL,
    "window/console": MODEL + " window/script",
    "window/web": MODEL + " history window/results window/system/web",
    "history": "",
    "suite": MODEL + " history",
    "games": MODEL + " suite history",
    "record": MODEL + " suite history",
    # The desktop, from the ground up.
    "window/desktop/painting": MODEL,
    "window/desktop/sound": MODEL,
    "window/desktop/input": MODEL + " window/desktop/painting",
    "window/desktop/speech": MODEL + " window/desktop/painting window/desktop/input",
    "window/desktop/results": MODEL + " history window/results window/desktop/painting",
    "window/desktop/view": MODEL + " history window/results window/desktop/painting window/desktop/input window/desktop/speech"
                                   " window/desktop/results",
    "window/desktop": MODEL + " history window/script window/desktop/painting window/desktop/sound window/desktop/input"
                              " window/desktop/speech window/desktop/view",
}
TOOLKIT = re.compile(r"#include <(Q[A-Z]|Qt|SDL)")
ONLY_POSIX = re.compile(r"#include <(sys/|linux/|(unistd|fcntl|poll|dirent|signal|pwd)\.h|csignal)|/proc/self/exe")
INCLUDE = re.compile(r'^#include "(.+)"', re.M)


def layer(path):
    return "games" if path.parts[0] == "games" else path.parent.as_posix()


def circle(arrows):
    """A circle of arrows, or None."""
    open_, done = [], set()

    def walk(module):
        if module in open_:
            return open_[open_.index(module):] + [module]
        if module in done:
            return None
        open_.append(module)
        found = next((found for to in sorted(arrows.get(module, ())) if (found := walk(to))), None)
        open_.pop()
        done.add(module)
        return found
    return next((found for module in sorted(arrows) if (found := walk(module))), None)


def main(root):
    wrong, desktop = [], {}
    files = [path for folder in ("app", "games", "history", "record", "suite", "window") for path in root.glob(folder + "/**/*.*")]
    for path in (path.relative_to(root) for path in files if path.suffix in (".cpp", ".h")):
        text, own = (root / path).read_text(), layer(path)
        if ONLY_POSIX.search(text) and own != SYSTEM + "/posix":
            wrong.append(f"{path} knows an operating system")
        if own == "app":
            continue
        if own not in MAY:
            wrong.append(f"{path} lies in no layer")
            continue
        if TOOLKIT.search(text) and not own.startswith(DESKTOP):
            wrong.append(f"{path} knows a toolkit")
        for to in map(pathlib.Path, INCLUDE.findall(text)):
            other_game = own == layer(to) == "games" and len(to.parts) > 2 and len(path.parts) > 2 and path.parts[1] != to.parts[1]
            if layer(to) not in [own, *MAY[own].split()] or other_game:
                wrong.append(f"{path} includes {to}")
            elif own.startswith(DESKTOP) and to.with_suffix("") != path.with_suffix(""):
                desktop.setdefault(path.with_suffix("").as_posix(), set()).add(to.with_suffix("").as_posix())
    if found := circle(desktop):
        wrong.append("a circle: " + " > ".join(found))
    print("\n".join(wrong))
    return 1 if wrong or not files else 0


sys.exit(main(pathlib.Path(sys.argv[1])))
