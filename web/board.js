// The board of a window: what lies under the pointer, what a press means, what a voice tells of the cards, and the gold cursor.
import { isNative, kinds, make, plain, shownBy } from './controls.js'
import { sizeOf } from './pictures.js'
import { speak } from './speech.js'
import { beginDrag } from './drag.js'
import { isBusy, send, takeAsHurry } from './events.js'

const coarse = matchMedia('(pointer: coarse)')
const taken = 'button, input, textarea, select, label' // what the browser itself presses

let keysUsed = false // last, and not the mouse
export function useKeys (used) {
  if (keysUsed === used) return
  keysUsed = used
  document.documentElement.classList.toggle('keys', used)
}

const lets = control => {
  if (control.kind === kinds.image) return false
  if (control.kind === kinds.frame) return !control.panel && !control.clicks && !control.moves
  return !control.clicks && !control.moves
}

// The control at a place of the page. A place without a card shows what lies beneath it, and the player means what shows.
export function controlAt (window, x, y) {
  let empty = null
  for (const element of document.elementsFromPoint(x, y)) {
    const control = shownBy(element)
    if (!control || control.window !== window || lets(control)) continue
    if (control.kind !== kinds.image || control.picture > 0) return control.kind === kinds.frame && empty ? empty : control
    empty ??= control
  }
  return empty
}

// A finger is broader than a card's edge: the nearest place that can be played wins, but where the cloth beside it is scrolled.
function tappedAt (window, x, y) {
  const exact = controlAt(window, x, y)
  const spots = window.guide?.spots ?? []
  const playable = spots.filter(([, , flags]) => flags & 1).map(([id]) => window.controls.get(id))
  if (!coarse.matches || window.scrolls || (exact && playable.includes(exact))) return exact
  return nearest(playable, x, y) ?? exact
}

function nearest (controls, x, y) {
  const reach = 22 // pixels of the page
  let best = null
  let least = reach
  for (const control of controls) {
    const rect = control.element.getBoundingClientRect()
    const far = Math.hypot(Math.max(rect.left - x, 0, x - rect.right), Math.max(rect.top - y, 0, y - rect.bottom))
    if (far < least) [best, least] = [control, far]
  }
  return best
}

// The same among the fields and buttons of a dialog.
function tapBeside (window, event) {
  if (!coarse.matches || !window.modal || event.target.closest(taken)) return
  const controls = [...window.controls.values()].filter(each => isNative(each.kind) && each.element.checkVisibility() && !each.disabled)
  const control = nearest(controls, event.clientX, event.clientY)
  if (!control) return
  if (control.kind === kinds.button || control.field) (control.field ?? control.element).click()
  else control.element.focus()
}

export function listenOnBoard (window) {
  const { board } = window
  if (board.dataset.heard) return
  board.dataset.heard = 'yes'
  let over = null
  board.addEventListener('pointerdown', event => {
    useKeys(false)
    if (event.button !== 0 || event.target.closest(taken)) return
    const control = tappedAt(window, event.clientX, event.clientY)
    if (!control) return
    event.preventDefault()
    beginDrag(window, control, event)
    pressed(window, control, event)
  })
  board.addEventListener('pointermove', event => {
    const control = controlAt(window, event.clientX, event.clientY)
    if (control !== over) {
      over = control
      if (control?.moves && !isBusy()) send(`over ${control.id}`)
    }
    board.style.cursor = pointerOf(window, control)
  })
  // A press that came by no pointer: a screen reader's.
  board.addEventListener('click', event => {
    const control = event.detail === 0 && event.target.closest('.image[role=button]') && shownBy(event.target)
    if (control && !takeAsHurry()) send(`click ${control.id}`)
  })
  board.addEventListener('click', event => { if (event.detail > 0) tapBeside(window, event) })
  board.addEventListener('contextmenu', event => { if (coarse.matches) event.preventDefault() })
}

function pointerOf (window, control) {
  if (window.pointer === 11 || control?.pointer === 11) return 'wait'
  return control?.pointer === 99 ? 'pointer' : ''
}

let last = { control: null, at: 0 }

function pressed (window, control, event) {
  const now = event.timeStamp
  const twice = last.control === control && now - last.at < 400
  last = { control, at: twice ? 0 : now }
  send(`${twice && control.kind !== kinds.image ? 'twice' : 'click'} ${control.id}`)
}

// --- What is told of the cards -----------------------------------------------------------------------------------

export function settleBoard (window) {
  const { guide } = window
  if (!guide || !window.shown) return
  const known = new Set()
  for (const [id, text, flags] of guide.spots) {
    const control = window.controls.get(id)
    const { element } = control
    known.add(element)
    if (control.kind === kinds.button) {
      element.setAttribute('aria-label', `${plain(control.text).trim()}, ${text}`)
      continue
    }
    element.setAttribute('role', 'button')
    element.setAttribute('aria-label', text)
    element.setAttribute('aria-pressed', String(Boolean(flags & 2)))
    element.setAttribute('aria-disabled', String(!(flags & 1)))
    element.tabIndex = id === guide.cursor ? 0 : -1
  }
  for (const element of window.board.querySelectorAll('[role=button]')) {
    if (known.has(element)) continue
    for (const name of ['role', 'aria-label', 'aria-pressed', 'aria-disabled', 'tabindex']) element.removeAttribute(name)
  }
  for (const control of window.controls.values()) if (control.kind === kinds.label) sayLabel(control, guide.says[control.id])
  announce(window)
  showRing(window)
}

// What a label says to who doesn't see where it stands.
function sayLabel (control, said) {
  if (!said && !control.spoken) return
  control.spoken ??= make('span', 'spoken', control.element)
  if (control.spoken.textContent !== (said ?? '')) control.spoken.textContent = said ?? ''
  if (said) control.letters.setAttribute('aria-hidden', 'true')
  else control.letters.removeAttribute('aria-hidden')
}

// Messages are said as they come.
function announce (window) {
  const said = [...window.controls.values()].filter(({ id, kind, element, text }) => kind === kinds.label && !element.hidden && text.trim() &&
    (window.guide.messages.includes(id) || element.classList.contains('announced'))).map(each => each.text.trim()).join(' ')
  if (said && said !== window.announced) speak(said)
  window.announced = said
}

function showRing (window) {
  window.ring ??= make('div', 'ring', window.over)
  const control = window.controls.get(window.guide.cursor)
  window.ring.hidden = !control || !window.guide.open
  if (window.ring.hidden) return
  if (window.scrolls && keysUsed) control.element.scrollIntoView({ block: 'nearest', inline: 'nearest' })
  const place = placeOf(window, control)
  Object.assign(window.ring.style, { left: `${place.left}px`, top: `${place.top}px`, width: `${place.width}px`, height: `${place.height}px` })
  // The keyboard stays with the board, also while a card that had it goes.
  if (document.querySelector('dialog[open]')) return
  const active = document.activeElement
  const free = active === document.body || !active || active.closest('.board .image')
  const onBoard = window.guide.spots.some(([id]) => window.controls.get(id).element === active)
  if ((window.grabs || free || onBoard) && active !== control.element) {
    window.quiet = true
    control.element.focus({ preventScroll: true })
    window.quiet = false
  }
  window.grabs = false
}

// In pixels of the board at 100 %.
export function placeOf (window, control) {
  const place = { left: control.left, top: control.top, width: control.width, height: control.height }
  if (control.kind === kinds.image && control.picture > 0) {
    const frame = control.framed ? 2 : 0
    const size = sizeOf(control.picture)
    place.width = size.width + frame
    place.height = size.height + frame
  }
  for (let holder = window.controls.get(control.within); holder; holder = window.controls.get(holder.within)) {
    place.left += holder.left
    place.top += holder.top
  }
  return place
}

// While a handler blocks, a press anywhere may only let it run on.
addEventListener('pointerdown', event => {
  if (!takeAsHurry()) return
  event.preventDefault()
  event.stopPropagation()
  addEventListener('click', stop, { capture: true, once: true })
  setTimeout(() => removeEventListener('click', stop, { capture: true }), 500)
}, { capture: true })

function stop (event) {
  event.preventDefault()
  event.stopPropagation()
}
