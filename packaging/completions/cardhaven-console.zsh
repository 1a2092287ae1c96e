#compdef cardhaven-console
_arguments \
  '--folder[where settings, high scores and saved games are kept]:folder:_directories' \
  '--seed[make the cards fall the same way each time]:number:' \
  '--start[the time of day at the start]:moment:' \
  '--screen[the size of the screen in pixels, as 1024x768]:size:' \
  '(- *)--help[show the options]' \
  '(- *)--version[show the version]' \
  '*:saved game:_files -g "*.sfl"'
