#compdef cardhaven
_arguments \
  '--folder[where settings, high scores and saved games are kept]:folder:_directories' \
  '--console[take commands from standard input]' \
  '--speed[let the clock of --console run N times as fast]:factor:' \
  '--seed[make the cards fall the same way each time]:number:' \
  '--start[the time of day at the start]:moment:' \
  '(- *)--help[show the options]' \
  '(- *)--version[show the version]' \
  '*:saved game:_files -g "*.sfl"'
