#compdef cardhaven
_arguments \
  '--folder[where settings, high scores and saved games are kept]:folder:_directories' \
  '--record[write down what is played]:file:_files' \
  '--watch[play a record again before your eyes]:record:_files' \
  '--no-records[keep no records of games]' \
  '--console[take commands from standard input]' \
  '--speed[let the clock of --console run N times as fast]:factor:' \
  '--game[open that game at once]:game:(Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift)' \
  '--today[open it with the deal of the day]:game:(Sumfall Fivestack Blackrush Duopick Spirehold Handgrid Treyshift)' \
  '--deal[play that deal, from 1 to 999999999]:number:' \
  '--seed[make the cards fall the same way each time]:number:' \
  '--start[the time of day at the start]:moment:' \
  '(- *)--help[show the options]' \
  '(- *)--version[show the version]' \
  '*:saved game:_files -g "*.sfl"'
