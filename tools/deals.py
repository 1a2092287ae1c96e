#!/usr/bin/env python3
"""Prints the examples in docs/deals.md, reckoned by that page alone and by nothing of the suite's code."""
M = (1 << 64) - 1
GAMES = "Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift".split()
KEEP = {"Sumfall", "Blackrush", "Handgrid"}  # they shuffle the last round's deck again


def fnv(text):
    value = 0xCBF29CE484222325
    for byte in text.encode():
        value = (value ^ byte) * 0x100000001B3 & M
    return value


def numbers(state):
    while True:
        state = state + 0x9E3779B97F4A7C15 & M
        value = (state ^ state >> 30) * 0xBF58476D1CE4E5B9 & M
        value = (value ^ value >> 27) * 0x94D049BB133111EB & M
        yield ((value ^ value >> 31) >> 11) / 2**53


def fresh_deck(game):
    if game != "Sumfall":
        return [f"{rank}{suit}" for suit in "SHCD" for rank in range(1, 14)]
    return [f"1{suit}" for suit in "SHCD" for _ in range(4)] + [f"{rank}{suit}" for suit in "SHCD" for rank in range(2, 11)]


def decks(number, game, rounds):
    drawn = numbers(fnv(f"{number} {game}"))
    for round_ in range(1, rounds + 1):
        if round_ == 1 or game not in KEEP:
            deck = fresh_deck(game)
        for i in range(len(deck)):
            j = int(next(drawn) * len(deck) + 1) - 1
            deck[i], deck[j] = deck[j], deck[i]
        yield round_, deck


def main():
    for number in (1, 999999999):
        for game in GAMES:
            for round_, deck in decks(number, game, 2):
                print("deal", number, game, round_, *deck)
    for day in ("2026-11-21", "2026-12-31", "2028-02-29"):
        for game in GAMES:
            print("day", day, game, 1 + fnv(f"{day} {game}") % 999999999)


main()
