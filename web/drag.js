// A card in the hand: what a press has selected goes along, and lies where it is let go, as by a click there.
import { controlAt, placeOf } from './board.js'
import { isBusy, send } from './events.js'

const least = 10 // pixels that a hand may shake
const patience = 120 // milliseconds; a fast player's hand moves on while the button is still down
const [playable, selected, draws] = [1, 2, 4]

let drag = null // { window, pressed, from, since, before, held }

const spotsOf = window => window.guide?.spots ?? []

export function beginDrag (window, control, event) {
  putBack()
  const before = new Set(spotsOf(window).filter(([, , flags]) => flags & selected).map(([id]) => id))
  drag = { window, pressed: control.id, from: [event.clientX, event.clientY], since: event.timeStamp, before, held: null }
}

addEventListener('pointermove', event => {
  if (!drag || isBusy()) return
  if (!drag.window.shown || event.buttons === 0) return putBack()
  const [x, y] = [event.clientX - drag.from[0], event.clientY - drag.from[1]]
  if (!drag.held) {
    if (Math.abs(x) + Math.abs(y) < least || event.timeStamp < drag.since + patience) return
    hold()
  }
  if (!drag?.held) return
  const { scale } = drag.window
  const { style } = drag.held.element
  style.transform = `translate(${x / scale}px, ${y / scale}px)`
  style.pointerEvents = 'none'
  drag.held.element.classList.add('held')
  aimAt(targetAt(event.clientX, event.clientY, x / scale, y / scale))
})

// The card that the press has selected. A selected one that it has let go of is selected again: it was meant to be dragged.
function hold () {
  const { window, pressed, before } = drag
  const own = spotsOf(window).find(([id]) => id === pressed)
  if (before.has(pressed) && own && !(own[2] & selected)) {
    if (!own[3] || drag.again) drag = null
    else {
      drag.again = true
      send(`softly ${pressed}`)
    }
    return
  }
  const found = spotsOf(window).find(([id, , flags, rank]) => flags & selected && rank && (id === pressed || !before.has(id)))
  if (!found) drag = null
  else drag.held = window.controls.get(found[0])
}

const covered = (a, b) => Math.max(0, Math.min(a.left + a.width, b.left + b.width) - Math.max(a.left, b.left)) *
  Math.max(0, Math.min(a.top + a.height, b.top + b.height) - Math.max(a.top, b.top))

// What the pointer stands on; beside all places the one that the card covers most of, if that is a good part.
function targetAt (clientX, clientY, x, y) {
  const { window, held } = drag
  const card = placeOf(window, held)
  const shown = { ...card, left: card.left + x, top: card.top + y }
  const at = controlAt(window, clientX, clientY)
  let best = null
  let most = card.width * card.height / 4
  for (const [id, , flags] of spotsOf(window)) {
    const control = window.controls.get(id)
    const takes = flags & playable && !(flags & (selected | draws))
    if (control === at) return takes ? control : null
    const area = covered(placeOf(window, control), shown)
    if (takes && area > most) [best, most] = [control, area]
  }
  return best
}

function aimAt (control) {
  for (const element of document.querySelectorAll('.aim')) element.classList.remove('aim')
  control?.element.classList.add('aim')
}

function putBack () {
  if (drag?.held) {
    const { element } = drag.held
    element.style.transform = ''
    element.style.pointerEvents = ''
    element.classList.remove('held')
    aimAt(null)
  }
  drag = null
}

addEventListener('pointerup', event => {
  if (!drag?.held) {
    drag = null
    return
  }
  const { window, held, from } = drag
  const { scale } = window
  const target = targetAt(event.clientX, event.clientY, (event.clientX - from[0]) / scale, (event.clientY - from[1]) / scale)
  putBack()
  const rect = held.element.getBoundingClientRect()
  // A hand that shook a little has clicked.
  const stayed = event.clientX >= rect.left && event.clientX < rect.right && event.clientY >= rect.top && event.clientY < rect.bottom
  if (target) send(`click ${target.id}`)
  else if (!stayed) send(`softly ${window.guide.letsGo ?? held.id}`)
})
addEventListener('pointercancel', putBack)
addEventListener('blur', putBack)
