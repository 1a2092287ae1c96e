"""A console that runs, and what it has told of its windows."""
import json
import re
import subprocess

# A count that never seems to end fills the trace: nobody compares more of one command than this.
LONGEST_ANSWER = 1_500_000


class Gone(Exception):
    """The program has ended, or a command says too much to be of use."""


class Console:
    """Talks to a console line by line, and keeps up with what its windows show."""

    def __init__(self, arguments, folder):
        self.process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, cwd=folder)
        self.windows = {}   # name to its controls, "" for the window itself, to their properties
        self.shown = []     # names of the windows on the screen, the last one shown last
        self.modal = []
        self.boxes = []     # the buttons of the message boxes that stand
        self.loaded = []    # since someone looked
        self.said = 0
        self.listen()

    def tell(self, line):
        """Gives a command; returns its answer's last line."""
        try:
            self.process.stdin.write(line.encode() + b"\n")
            self.process.stdin.flush()
        except OSError:
            raise Gone from None
        answer = self.listen()
        if line.startswith("answer ") and answer.startswith("ok"):
            self.boxes.pop(self.answered)
        if line.startswith("dump ") and answer.startswith("ok "):
            self.windows[line[5:]] = json.loads(answer[3:])
        return answer

    def listen(self):
        said, self.answered = 0, len(self.boxes) - 1
        while True:
            raw = self.process.stdout.readline()
            said += len(raw)
            if not raw or said > LONGEST_ANSWER:
                raise Gone
            line = raw.decode().rstrip("\n")
            if line.startswith("* "):
                self.hear(line)
            else:
                self.said += said
                return line

    def hear(self, line):
        what, _, rest = line[2:].partition(" ")
        if what == "set":
            control, value = rest.split(" ", 1)
            window, _, path = control.partition(".")
            name, _, prop = path.rpartition(".")
            if window in self.windows:
                self.windows[window].setdefault(name, {})[prop] = json.loads(value)
        elif what == "msgbox":
            self.boxes.append(json.loads(rest)["buttons"])
        elif what == "load":
            self.loaded.append(rest)
            self.windows[rest] = {}
        elif what == "show":
            name = rest.split(" ")[0]
            self.shown = [each for each in self.shown if each != name] + [name]
            if rest.endswith(" modal"):
                self.modal.append(name)
        elif what in ("hide", "unload"):
            self.shown = [each for each in self.shown if each != rest]
            self.modal = [each for each in self.modal if each != rest]
            if what == "unload":
                self.windows.pop(rest, None)
        elif what == "end":
            raise Gone

    def get(self, window, control, prop, otherwise=None):
        return self.windows.get(window, {}).get(control, {}).get(prop, otherwise)

    def visible(self, window, control):
        return self.get(window, control, "Visible", False)

    def names(self, window, pattern):
        """The window's controls whose names begin with a match of the pattern, in order."""
        return [name for name in self.windows.get(window, {}) if re.match(pattern, name)]

    def quit(self):
        self.process.kill()
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait()
