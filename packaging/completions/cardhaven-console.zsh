#compdef cardhaven-console
_arguments \
  '--folder[where settings, high scores and saved games are kept]:folder:_directories' \
  '--game[open that game at once]:game:(Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift)' \
  '--today[open it with the deal of the day]:game:(Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift)' \
  '--deal[play that deal, from 1 to 999999999]:number:' \
  '--history[print the games played so far]' \
  '--statistics[print what they amount to]::game:(Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift)' \
  '--record[write down what is played]:file:_files' \
  '--verify[play records again and tell which ones hold]:*:record:_files' \
  '--verify-tables[do so for all entries of the tables]' \
  '--seed[make the cards fall the same way each time]:number:' \
  '--start[the time of day at the start]:moment:' \
  '--screen[the size of the screen in pixels, as 1024x768]:size:' \
  '(- *)--help[show the options]' \
  '(- *)--version[show the version]' \
  '*:saved game:_files -g "*.sfl"'
