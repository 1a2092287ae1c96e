#!/usr/bin/env python3
"""What screen readers are told, over the bus on which they listen."""
import os
import shutil
import subprocess
import sys
import tempfile
import time

from access_bus import Error, applications, hear, open_accessibility


def main():
    program = sys.argv[1]
    bus = open_accessibility(os.environ["DBUS_SESSION_BUS_ADDRESS"])
    hear(bus)
    folder = tempfile.mkdtemp()
    env = dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder, XDG_DATA_HOME=folder, SDL_AUDIODRIVER="dummy", QT_QPA_PLATFORM="xcb")
    game = subprocess.Popen([program], env=env)
    time.sleep(3)
    app = [a for a in applications(bus)]
    print([(a.name, a.owner) for a in app])
    app = app[0]
    app.dump()
    win = app.children[0]
    win.find("push button", "Sumfall!").act()
    time.sleep(2)
    win = [w for w in app.children if 'showing' in w.states][0]
    win.dump()
    win.find("push button", "Play").act()
    time.sleep(3)
    win.dump()
    for s in bus.listen(1):
        print(s[0][3], s[0][1], s[1][:4])
    game.kill()


main()
