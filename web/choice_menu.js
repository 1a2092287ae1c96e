// The menu of a window from which games are opened: what it has no buttons for.
import { ask } from './host.js'
import { send } from './events.js'
import { viewEntries } from './view_menu.js'

// A game that was played today has its score beside it.
export function choiceEntries (window) {
  const scores = ask('days')
  const days = window.doors.map(([id, name]) => ({ name: `today${name}`, text: name, keys: scores[name], choose: () => send(`today ${id}`) }))
  return [{ text: 'Deal of the &Day', entries: days }, { line: true }, ...viewEntries(window)]
}
