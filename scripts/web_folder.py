#!/usr/bin/python3
"""Lays out the folder that a host serves: web_folder.py FOLDER STATISTICS.wasm PROGRAM.wasm [SECOND-BUILD.wasm]"""
import gzip
import hashlib
import json
import pathlib
import re
import shutil
import subprocess
import sys

import brotli

ROOT = pathlib.Path(__file__).resolve().parent.parent
FONTS = pathlib.Path("/usr/share/fonts/truetype/open-sans")
# Letters of the suite's own texts and of most names; others come from the player's system.
LETTERS = "U+0020-007E,U+00A0-017F,U+2010-2027,U+20AC,U+2122,U+2190-2193,U+2212,U+2660-2666,U+2713"
LICENCE = pathlib.Path("/usr/share/doc/fonts-open-sans/copyright")
PACKED = {".wasm", ".json", ".js", ".css", ".html", ".svg", ".webmanifest", ".record"}


def pictures():
    """All pictures in one file: a request each would take longer than they are large."""
    folder = ROOT / "data/pictures"
    found = {path.relative_to(folder).as_posix(): path.read_text() for path in sorted(folder.glob("**/*.svg"))}
    return json.dumps(found, separators=(",", ":"), ensure_ascii=False)


def make_fonts(site):
    (site / "fonts").mkdir()
    for name, file in (("regular", "OpenSans-Regular.ttf"), ("semibold", "OpenSans-Semibold.ttf")):
        subprocess.run([sys.executable, "-m", "fontTools.subset", FONTS / file, "--unicodes=" + LETTERS, "--flavor=woff2", "--layout-features=kern,tnum",
                        "--no-hinting", "--output-file=" + str(site / "fonts" / (name + ".woff2"))], check=True)
    shutil.copy(LICENCE, site / "fonts/copyright.txt")


def make_sounds(site):
    (site / "sounds").mkdir()
    for wave in sorted((ROOT / "data/sounds").glob("*.wav")):
        shutil.copy(wave, site / "sounds")  # for browsers that don't know the other form
        subprocess.run(["opusenc", "--quiet", "--bitrate", "32", "--discard-comments", "--serial", "1", wave,
                        site / "sounds" / (wave.stem + ".opus")], check=True)
    shutil.copy(ROOT / "data/music/Quillmark.MID", site / "sounds/quillmark.mid")


def name_modules(page):
    """The page asks at once for all modules that it begins with, rather than for each as another one names it."""
    names, waiting = set(), ["main.js"]
    while waiting:
        name = waiting.pop()
        if name not in names:
            names.add(name)
            waiting += re.findall(r"^import (?:.*? from )?'\./(.+?)'", (ROOT / "web" / name).read_text(), re.M | re.S)
    links = [f'<link rel="modulepreload" href="{name}">' for name in sorted(names)]
    page.write_text(page.read_text().replace("<!-- modules -->", "\n".join(links)))


def main(site, *programs):
    shutil.rmtree(site, ignore_errors=True)
    site.mkdir(parents=True)
    for path in sorted((ROOT / "web").iterdir()):
        shutil.copy(path, site)
    name_modules(site / "index.html")
    for program, name in zip(programs, ("statistics.wasm", "card-haven.wasm", "card-haven-asyncify.wasm")):
        subprocess.run(["llvm-strip", "--strip-all", program, "-o", site / name], check=True)
    (site / "pictures.json").write_text(pictures())
    (site / "icons").mkdir()
    shutil.copy(ROOT / "data/icons/card-haven.svg", site / "icons")
    for size in (128, 256):
        shutil.copy(ROOT / f"data/icons/{size}x{size}/card-haven.png", site / f"icons/{size}.png")
    shutil.copytree(ROOT / "data/demonstrations", site / "demonstrations")
    make_fonts(site)
    make_sounds(site)
    shutil.copy(ROOT / "LICENSE", site / "LICENSE.txt")
    # What the page needs without a network, under a name of its own for each content.
    kept = [path for path in sorted(site.rglob("*")) if path.is_file() and path.suffix not in (".wav", ".txt")
            and path.name != "worker.js"]
    names = ["./"] + [path.relative_to(site).as_posix() for path in kept if path.name != "index.html"]
    version = hashlib.sha256(b"".join(hashlib.sha256(path.read_bytes()).digest() for path in kept)).hexdigest()[:16]
    worker = (site / "worker.js").read_text()
    worker = worker.replace("'VERSION'", f"'{version}'").replace("const files = []", "const files = " + json.dumps(names))
    (site / "worker.js").write_text(worker)
    for path in sorted(site.rglob("*")):
        if path.suffix in PACKED and path.stat().st_size > 1000:
            text = path.read_bytes()
            path.with_name(path.name + ".gz").write_bytes(gzip.compress(text, 9, mtime=0))
            path.with_name(path.name + ".br").write_bytes(brotli.compress(text))


main(*map(pathlib.Path, sys.argv[1:]))
