"""How each game's board is played: well enough for its events to come, from what the window shows."""
from itertools import combinations

FIRST_FACE, LAST_FACE = 14, 65


def rank(picture):
    """1 to 13 of a face, 0 of anything else."""
    return (picture - FIRST_FACE) % 13 + 1 if picture and FIRST_FACE <= picture <= LAST_FACE else 0


def suit(picture):
    return (picture - FIRST_FACE) // 13


class Table:
    """One game's window: `control` names one of it, `sees` a picture."""

    def __init__(self, name, console, rng):
        self.game, self.window, self.console, self.rng = name, "frm" + name, console, rng

    def control(self, name, *index):
        return f"click {self.window}.{name}" + (f"({index[0]})" if index else "")

    def sees(self, name, *index):
        name = f"{name}({index[0]})" if index else name
        shown = self.console.get(self.window, name, "Visible", False)
        return self.console.get(self.window, name, "Picture", 0) if shown else 0

    def text(self, name, prop="Caption"):
        return str(self.console.get(self.window, name, prop, ""))

    def number(self, name):
        digits = "".join(letter for letter in self.text(name) if letter.isdigit() or letter == "-")
        return int(digits) if digits.lstrip("-").isdigit() else 0

    def exposed(self, name, count):
        """The cards face up that no later one lies on."""
        boxes = []
        for index in range(count):
            it = self.console.windows[self.window].get(f"{name}({index})")
            if it and it["Visible"] and it["Picture"]:
                boxes.append((index, it["Left"], it["Top"], it["Left"] + it["Width"],
                              it["Top"] + it["Height"], it["Picture"]))
        return [(a[0], rank(a[5])) for a in boxes
                if rank(a[5]) and not any(b[0] > a[0] and b[1] < a[3] and a[1] < b[3] and b[2] < a[4] and
                                          a[2] < b[4] for b in boxes)]


class Sumfall(Table):
    board = r"FieldCardPicture|PlayCardP|UpCardP"

    def move(self):
        goal = {"Te": 10, "El": 11, "Tw": 12, "Th": 13, "Fo": 14, "Fi": 15}.get(self.text("lblElevens")[:2], 11)
        missing = goal - self.number("lblCurrentTotal")
        # Tiers lie from the highest place down, so a lower card covers a higher one.
        free = [(self.control("FieldCardPicture", i), value) for i, value in self.exposed("FieldCardPicture", 22)
                if not self.console.visible(self.window, f"FieldSelectionRectangle({i})")]
        up = rank(self.sees("UpCardPicture"))
        if up and not self.console.visible(self.window, "UpCardSelectionRectangle"):
            free.append((self.control("UpCardPicture"), up))
        for many in (1, 2, 3):
            for chosen in combinations(free, many):
                if sum(value for _, value in chosen) == missing:
                    return [click for click, _ in chosen]
        if self.sees("PlayCardPicture") in (0, 13) and self.rng.random() < .6:
            return [self.control("cmdTakeScore")]
        return [self.control("PlayCardPicture")]


class Spirehold(Table):
    board = r"UpCardImage|CardStack|UpCardP"

    def move(self):
        up = rank(self.sees("UpCardPicture"))
        for i in range(28):
            value = rank(self.sees("UpCardImage", i))
            if value and up and (value - up) % 13 in (1, 12) and \
                    self.console.get(self.window, f"UpCardImage({i})", "Enabled"):
                return [self.control("UpCardImage", i)]
        if self.number("lblCards") == 0 and self.rng.random() < .7:
            return [self.control("cmdTakeScore")]
        return [self.control("CardStackPicture")]


class Duopick(Table):
    board = r"PlayCard|CardStack"

    def move(self):
        free = self.exposed("PlayCard", 24)
        for gaps in ((0,), (1, 12)):
            for (a, one), (b, other) in combinations(free, 2):
                if (one - other) % 13 in gaps:
                    return [self.control("PlayCard", a), self.control("PlayCard", b)]
        if self.number("lblCards") == 0 and self.rng.random() < .7:
            return [self.control("cmdTakeScore")]
        return [self.control("CardStackPicture")]


class Handgrid(Table):
    board = r"PlayCards|CardStack|HoleCard"

    def move(self):
        hole = self.sees("HoleCard")
        grid = [self.sees("PlayCards", i) for i in range(25)]
        empty = [i for i in range(25) if not rank(grid[i])]
        if not empty or not rank(hole):
            return [self.control("PlayCards", self.rng.randrange(25))]

        def worth(cell):
            line = [grid[i] for i in range(25) if i != cell and (i // 5 == cell // 5 or i % 5 == cell % 5)]
            return sum(3 * (rank(each) == rank(hole)) + (i // 5 == cell // 5) * (suit(each) == suit(hole))
                       for i, each in enumerate(line) if rank(each))

        return [self.control("PlayCards", max(empty, key=lambda cell: (worth(cell), -cell)))]


class Treyshift(Table):
    board = r"(Play|Temp|Up)Card\(|CardStack"

    hoards = 0  # the slots of the storage that are left alone, a bit each

    def move(self):
        fan = rank(self.sees("UpCard", 2))
        sources = [("UpCard", 2, fan)] + [("TempCard", i, rank(self.sees("TempCard", i))) for i in range(3)
                                          if not self.hoards >> i & 1]
        sources = [each for each in sources if each[2]]
        for name, index, value in sources:
            for column in range(4):
                top, middle, bottom = (rank(self.sees("PlayCard", column + 4 * row)) for row in range(3))
                if not top or bottom:
                    continue
                step = middle - top
                if (not middle and abs(value - top) < 2) or (middle and abs(step) < 2 and value - middle == step):
                    return [self.control(name, index), self.control("PlayCard", column)]
        for i in range(4):
            if fan and not rank(self.sees("PlayCard", i)):
                return [self.control("UpCard", 2), self.control("PlayCard", i)]
        for i in range(3):
            if fan and not rank(self.sees("TempCard", i)):
                return [self.control("UpCard", 2), self.control("TempCard", i)]
        return [self.control("UpCard", 2), self.control("PlayCard", self.rng.randrange(4))] \
            if fan and self.rng.random() < .8 else [self.control("cmdTakeScore")]


class Columns(Table):
    """The two games of columns that go to 21."""

    def hit(self, columns, highest):
        """The column that the card fills best, or none."""
        value = rank(self.sees("NextCardPicture"))
        worth = 11 if value == 1 else min(value, 10)
        best, most = None, -1
        for i in range(columns):
            total = self.number(f"ColumnTotal({i})")
            made = total + worth if total + worth <= highest else total + 1 if value == 1 else 99
            if made <= highest and made > most and self.console.get(self.window, f"cmdHit({i})", "Enabled"):
                best, most = i, made
        return None if best is None else self.control("cmdHit", best)


class Fivestack(Columns):
    board = r"cmdHit|cmdPass|Column\d\("

    def move(self):
        if self.number("lblCurrentTotal") >= 97 and self.rng.random() < .5:
            return [self.control("cmdGiveUp")]
        hit = self.hit(5, 21)
        if hit is None and self.console.get(self.window, "cmdPass", "Enabled"):
            return [self.control("cmdPass")]
        return [hit or self.control("cmdHit", self.rng.randrange(5))]


class Blackrush(Columns):
    board = r"cmdHit|cmdPass|Column\d\("

    def move(self):
        hit = self.hit(4, 21)
        if hit is None:
            return [self.control("cmdPass" if self.rng.random() < .6 else "cmdTakeScore")]
        return [hit]


TABLES = {table.__name__: table for table in
          (Sumfall, Fivestack, Duopick, Handgrid, Spirehold, Blackrush, Treyshift)}
