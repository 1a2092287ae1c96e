"""The folders that scripts begin in: settings, tables and saved games in many states."""
import os

DEFAULTS = {
    "Sumfall": "Color 1|Play Music False|Time 90|DrawTimer True|Play Sounds True|CardGoal 11|State 0|Width 9540|"
               "Height 7200|Deck 1",
    "Fivestack": "Time 60|Play Sounds True|Play Music False|Deck 1|TimeBonusMax 300|TimeBonusMin 100|"
                 "BonusScore 200000|WaitPeriod 2000|CountDownScore True|Cards To Pass 1|State 0|Width 9540|Height 7305",
    "Duopick": "Play Music False|Time 45|Play Sounds True|Count Down Score True|Pairs Bonus 3000|Runs Bonus 500|"
               "Time Bonus 100|Bonus Score 80000|Completion Bonus 10000|State 0|Width 9570|Height 7200|Deck 1",
    "Handgrid": "Time 75|Play Sounds True|Play Music False|Count Down Score True|Deck 1|Time Bonus 1|"
                "Bonus Score 100000|Pair Score 50|Two Pair Score 70|Trips Score 80|Flush Score 100|"
                "Full House Score 200|Straight Score 90|Four Score 300|Straight Flush Score 400|"
                "Royal Flush Score 500|Over Writes 3|State 0|Width 9570|Height 7200",
    "Spirehold": "Play Music False|Time 45|Play Sounds True|Hi Run 0|Card Bonus 100|Bonus Score 40000|"
                 "Tower Bonus 5000|High Run Bonus 1000|Count Down Score True|Time Bonus 100|State 0|Width 9570|"
                 "Height 7200|Deck 1",
    "Blackrush": "Play Sounds True|Timer Speed 90|Play Music False|Deck 3|Cards To Pass 3|"
                 "TwentyOne Bonus Value 1000|Cards Used Bonus Value 100|5 Cards Bonus Value 750|"
                 "Deck Completion Bonus 100000|Wait Period 2000|Time Limit 90|Bonus Round Score 250000|"
                 "Count Down Score True|State 0|Width 9060|Height 7155",
    "Treyshift": "Time 120|Play Sounds True|Play Music False|Count Down Score True|Deck 1|Time Bonus 200|"
                 "Bonus Score 100000|Trips Score 6000|Runs Score 300|Flush Score 5000|State 0|Width 9540|Height 7305",
}
LIMITS = {
    "Sumfall": (30, 60, 90, 120, 150, 180),
    "Fivestack": (15, 30, 45, 60, 75),
    "Duopick": (30, 45, 60, 75, 90, 105, 120),
    "Handgrid": (30, 45, 60, 75, 90, 105, 120),
    "Spirehold": (30, 45, 60, 90),
    "Blackrush": (15, 30, 60, 90, 120),
    "Treyshift": (60, 75, 90, 105, 120, 135, 150, 180),
}
TABLES = {
    "Sumfall": "HiScores{}_11.Txt", "Fivestack": "HiScores{}.Txt", "Duopick": "DuopickHighScores{}.Txt",
    "Handgrid": "HandgridHighScores{}.Txt", "Spirehold": "SpireholdHiScores{}.Txt",
    "Blackrush": "BlackrushHiScores{}.Txt", "Treyshift": "TreyshiftHiScores{}.Txt",
}
DEFAULT_LIMIT = {"Sumfall": 90, "Fivestack": 60, "Duopick": 45, "Handgrid": 75, "Spirehold": 45, "Blackrush": 90,
                 "Treyshift": 120}
ODD = ("0", "-1", "1", "7", "32767", "32768", "100000", "2147483647", "2147483648", "abc", "", "3.5", " 12 ",
       "1e3", "-32768", "True", "False")


def settings(rng, game):
    """A settings file, from sound to hopeless."""
    entries = [each.rsplit(" ", 1) for each in DEFAULTS[game].split("|")]
    state = rng.choice(("plain", "plain", "values", "values", "odd", "high", "low goal", "damaged"))
    if state == "damaged":
        return rng.choice((b"", b"nothing at all", b"\x00\xff\x80[Time]\r\n", b"[Time]", b"\r\n\r\n", b"[Time\r\n90\r\n",
                           b"[Time]\r\n\r\n[Deck]\r\n2\r\n", b"x" * 5000))
    lines = []
    for name, value in entries:
        if name in ("Time", "Time Limit") and game != "Blackrush" or name == "Time Limit":
            value = str(rng.choice(LIMITS[game]))
        elif name == "Deck":
            value = str(rng.randint(1, 4))
        elif name == "Color":
            value = str(rng.randint(0, 5))
        elif name == "CardGoal":
            value = str(rng.choice((10, 11, 11, 12, 13, 14, 15, 15, 9, 16)))
        elif name == "State":
            value = rng.choice("0002" "1")
        elif name == "Width":
            value = str(rng.choice((int(value), 12000, 15000, 100, 30000)))
        elif name in ("Play Music", "DrawTimer"):
            value = rng.choice(("True", "False"))
        elif name.lower().replace(" ", "") in ("countdownscore", "playsounds"):
            value = rng.choice(("True", "True", "False"))
        elif state == "high" and value.isdigit() and rng.random() < .5:
            value = rng.choice(("2147483647", "1000000000", "32767", "900000"))
        elif state == "values" and value.isdigit() and rng.random() < .6:
            value = str(rng.choice((1, 2, 10, 99, int(value) // 2, int(value) * 3 + 1, 1000)))
        elif state == "odd" and rng.random() < .4:
            value = rng.choice(ODD)
        if state == "low goal" and name.lower().replace(" ", "") in ("bonusscore", "bonusroundscore"):
            value = str(rng.choice((1, 100, 2000)))
        lines += [f"[{name}]", value, ""]
    if state == "odd" and rng.random() < .5:
        rng.shuffle(lines)
    end = rng.choice(("\r\n", "\r\n", "\n"))
    return (end.join(lines) + end).encode()


def table(rng):
    """A table of high scores, low enough to be entered or too high, whole or damaged."""
    kind = rng.choice(("low", "low", "high", "mixed", "short", "long", "damaged", "empty", "odd"))
    top = {"low": 500, "high": 2_000_000_000}.get(kind, 60_000)
    scores = sorted((rng.randint(-5, top) for _ in range({"short": 4, "long": 13}.get(kind, 10))), reverse=True)
    lines = [f"{rng.choice(('Quillmark', 'Ann', 'Bob *', 'Zoë', 'A name of some length'))}, {score}" for score in scores]
    if kind == "damaged":
        lines[rng.randrange(len(lines))] = rng.choice(("no number here", ", ,", "Ann; 5", "Ann, 99999999999"))
    if kind == "empty":
        lines = []
    if kind == "odd":
        lines.insert(rng.randrange(len(lines)), rng.choice(("", "   ", ", 7", "Ann,-3", "\tTab , 12")))
    return ("\r\n".join(lines) + "\r\n\r\n").encode()


def saved_game(rng):
    """A game as Sumfall saves it, sound or not. Returns its text."""
    goal = rng.choice((10, 11, 11, 11, 12, 13, 14, 15))
    cards = [str(1) + s for s in "SHCD" for _ in range(4)] + [f"{r}{s}" for s in "SHCD" for r in range(2, 11)]
    cards += [f"{r}{s}" for r in range(11, {12: 12, 13: 13, 14: 14, 15: 14}.get(goal, 11)) for s in "SHCD"]
    lines = ["[Card Goal]", str(goal), "[Time Limit]", str(rng.choice((30, 60, 90, 100, 180, 600))), "[Score]",
             str(rng.choice((0, -300, 15000, 35000, 70000, 95000, 150000, 170000, 2147483647))), "[Custom]",
             rng.choice(("True", "False")), "[UserName]", rng.choice(("Ann", "an anonymous user", "A, B", ""))]
    for number in range(1, rng.randint(1, 3) + 1):
        deck = cards[:]
        rng.shuffle(deck)
        lines += [f"[Round {number} Deck]"] + deck
    text = "\r\n".join(lines) + "\r\n"
    fault = rng.random()
    if fault < .1:
        text = text[:rng.randrange(len(text))]
    elif fault < .18:
        lines[rng.randrange(len(lines))] = rng.choice(ODD + ("[Card Goal]", "99X", "S"))
        text = "\r\n".join(lines) + "\r\n"
    elif fault < .22:
        text = rng.choice(("", "\0\0\0", "[Card Goal]\r\n11\r\n", "[Card Goal]\r\n40\r\n"))
    return text.encode()


def prepare(rng, game):
    """The files of a script's folder, by name."""
    files = {}
    if rng.random() < .65:
        files[f"{game}.Ini"] = settings(rng, game)
    for limit in LIMITS[game]:
        if rng.random() < (.6 if limit == DEFAULT_LIMIT[game] else .25):
            files[TABLES[game].format(limit)] = table(rng)
    if game == "Sumfall":
        if rng.random() < .3:
            files["given.sfl"] = saved_game(rng)
        for name in ("one.sfl", "two.sfl", os.path.join("more", "three.sfl")):
            if rng.random() < .35:
                files[name] = saved_game(rng)
    if rng.random() < .06:
        files[f"{game}.Ini.bad"] = b"older"
    return files
