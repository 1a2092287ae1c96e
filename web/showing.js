// In a frame: the windows of a game that is played again, and a ring where its player is about to click. The page around it has the
// bar, gives the record, and hears how the watching stands.
import { controlAt } from './board.js'
import { make } from './controls.js'
import { send } from './events.js'
import { tellBar } from './shown.js'
import { wakeSound } from './sound.js'
import { controlOf } from './windows.js'

let given = null
export const record = new Promise(resolve => { given = resolve })

// WebKit doesn't always tell who sent it.
addEventListener('message', ({ origin, data }) => {
  if (origin !== location.origin) return
  if (data.record !== undefined) given(data.record)
  else send(`watch ${data.watch}`)
})
if (parent.navigator.userActivation?.hasBeenActive) wakeSound()
tellBar({ do: 'ready' })

// The middle of a control, or another place where it shows.
function spotOf (element, control) {
  const { left, top, width, height } = element.getBoundingClientRect()
  const spots = [[0.5, 0.5], [0.1, 0.9], [0.5, 0.95], [0.9, 0.9], [0.1, 0.5], [0.9, 0.1], [0.1, 0.1], [0.5, 0.1]].map(([x, y]) => [left + x * width, top + y * height])
  return spots.find(([x, y]) => controlAt(control?.window, x, y) === control) ?? spots[0]
}

let hand = null
function point ({ id, answer }) {
  hand?.remove()
  hand = null
  const control = controlOf(id)
  const element = answer === undefined ? control?.element : [...document.querySelectorAll('.box-window')].at(-1)?.querySelectorAll('.answers button')[answer]
  if (!element?.checkVisibility()) return
  hand = make('div', 'hand', element.closest('dialog') ?? document.body)
  const [x, y] = spotOf(element, control)
  hand.style.left = `${x}px`
  hand.style.top = `${y}px`
}

const toldOn = Object.fromEntries(['recording', 'bar', 'left', 'unfit'].map(each => [each, tellBar]))
export const deeds = { ...toldOn, point, still: () => {} }
