#!/bin/sh
# Whether data/ holds what the tools make, and nothing else.
#
#   compare-data.sh DATA-FOLDER TOOLS-FOLDER     where the tools are built
#
# Drawings and tune are the same byte for byte. Images of icons may differ by a shade, and waves by one in a sample, see
# make-sounds/wave.h.
set -eu
data=$1
tools=$2
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
mkdir "$made/music"

"$tools/draw-pictures/draw-pictures" "$made/pictures" "$made/icons"
"$tools/make-sounds/make-sounds" "$made/sounds"
"$tools/make-tune/make-tune" "$data/music/quillmark.score" "$made/music/Quillmark.MID"
"$tools/make-tune/make-tune" --check "$data/music/quillmark.score"
cp "$data/music/quillmark.score" "$made/music"

diff -rq "$made" "$data" -x '*.wav' -x '[0-9]*x[0-9]*' -x demonstrations
"$tools/render-icons/render-icons" --check "$data/icons"
[ "$(ls "$made/sounds")" = "$(ls "$data/sounds")" ] || {
  echo "There are other waves in $data/sounds than those made" >&2
  exit 1
}
"$tools/make-sounds/make-sounds" --check "$data/sounds"
