// Marks in the Hall of Fame at the entries whose record holds: they show their games.
import { make } from './controls.js'
import { watch } from './watch.js'
import { controlOf } from './windows.js'

// Left of the scores, where few names end.
const width = 70
const height = 20

const marks = new Map()

function layMark (score, button) {
  if (!button.isConnected) return marks.delete(button)
  const stretch = score.window.stretch ?? 1
  const middle = stretch > 1 ? score.height / 2 : score.height / 3 // in stretched rows all stands in the middle
  const top = (score.top + middle - height / 2) * stretch
  Object.assign(button.style, { left: `${score.left + 30 - width}px`, top: `${top}px`, width: `${width}px`, height: `${height * stretch}px`, zIndex: 25000 })
}
addEventListener('resize', () => marks.forEach(layMark)) // a phone has been turned

export function mark ({ id, place, record }) {
  const score = controlOf(id)
  if (!score?.window.shown) return
  const button = make('button', 'control button proof', score.window.surface)
  button.type = 'button'
  button.textContent = '\u2713 Watch'
  button.dataset.name = `proof${place}`
  button.title = 'The record of this game holds: that score came of it. Watch the game.'
  button.setAttribute('aria-label', `Watch the game of place ${place}, whose record holds`)
  marks.set(button, score)
  layMark(score, button)
  button.addEventListener('click', () => watch(`records/${record}`))
}
