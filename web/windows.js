// The windows of the suite: an element for each, as large as its form says at 100 %, and drawn larger or smaller as a whole.
import { accessKey, applyControl, createControl, fit, isNative, kinds, make, place, plain, pressButton, showCaption } from './controls.js'
import { listenOnBoard, settleBoard } from './board.js'
import { layGround } from './ground.js'
import { choiceEntries } from './choice_menu.js'
import { layMenus, makeMenus, toggleMenu } from './menus.js'
import { showKeys } from './keys_window.js'
import { showNotes } from './notes.js'
import { applyOrnament, createOrnaments, forgetDrawn, scaleOrnaments } from './ornaments.js'
import { tellTable } from './table.js'
import { send } from './events.js'
import { shown } from './shown.js'
import { alter, calm, view } from './view.js'

const perForm = 4096 // numbers of a window's controls
const menuHeight = 26
const statusHeight = 24
const coarse = matchMedia('(pointer: coarse)')
const titleHeight = scale => coarse.matches ? Math.max(32, 48 / scale) : 32

export const windows = new Map()
const desk = document.getElementById('desk')
const strip = document.getElementById('strip')

export const windowOf = id => windows.get(id - id % perForm)
export const controlOf = id => windowOf(id)?.controls.get(id)

export const isOrnament = told => Boolean(windowOf(told.id)?.ornaments?.includes(told.id))

// The window in front, of those that show.
export function front () {
  return [...windows.values()].filter(each => each.shown).sort((a, b) => a.order - b.order).at(-1)
}

// A round that is being played waits.
export function pauseGame () {
  const window = front()
  if (window?.guide?.open && !window.guide.paused) send(`pause ${window.id} 1`)
}

export function createWindow (told) {
  const window = { ...told, controls: new Map(), shown: false, order: 0, scale: 1, menus: [], panels: [] }
  window.pictured = told.controls.some(each => each.kind === kinds.image)
  window.isBoard = told.controls.some(each => each.kind === kinds.image || each.kind === kinds.menu)
  window.element = make('section', 'window')
  window.element.dataset.name = told.name
  window.board = make('div', 'board')
  window.surface = make('div', 'surface', window.board) // what notes and rings lie above
  window.over = make('div', 'over', window.board)
  for (const each of told.controls) {
    if (each.kind === kinds.menu) window.menus.push({ ...each })
    else if (each.kind === kinds.panel) window.panels.push({ ...each })
    else if (each.kind === kinds.status) window.status = { ...each }
    else window.controls.set(each.id, createControl(window, each))
  }
  // Whoever reads or tabs through meets the buttons that digits stand for before the others.
  for (const control of window.controls.values()) holderOf(window, control).append(control.element)
  for (const each of told.controls) if (window.controls.has(each.id) && !window.ornaments?.includes(each.id)) applyControl(window.controls.get(each.id), each)
  if (window.ornaments?.length) createOrnaments(window, holderOf(window, window.controls.get(window.ornaments[0])))
  offerHelp(window)
  nameFields(window)
  windows.set(told.id, window)
}

// A window without menus has buttons for them.
function offerHelp (window) {
  if (!window.help) return
  const { left, top, width, height, text } = window.help
  const gap = 8
  const breadth = window.doors.length ? (width - gap) / 2 : width
  const offer = (name, caption, x, deed) => {
    const button = make('button', `control button ${name}`, window.surface)
    button.type = 'button'
    button.dataset.name = name
    showCaption(make('span', 'caption', button), caption)
    button.dataset.key = accessKey(caption) ?? ''
    Object.assign(button.style, { left: `${x}px`, top: `${top}px`, width: `${breadth}px`, height: `${height}px`, zIndex: 25000 })
    button.addEventListener('click', () => deed(button))
    return button
  }
  if (window.doors.length) offerMenu(offer('choicemenu', '&Menu', left, button => showChoiceMenu(window, button)))
  offer('help', text, left + width - breadth, () => showKeys(window))
}

function offerMenu (button) {
  button.setAttribute('aria-haspopup', 'menu')
  button.setAttribute('aria-expanded', 'false')
}

const showChoiceMenu = (window, button) => toggleMenu(window, button, { name: 'choice', text: 'Menu', entries: choiceEntries(window) })

function holderOf (window, control) {
  const holder = window.controls.get(control.within)
  return holder ? holder.inner ?? holder.element : window.surface
}

// A field is called what stands to the left of it or above.
function nameFields (window) {
  for (const control of window.controls.values()) {
    if (control.kind !== kinds.text) continue
    let best = null
    let least = Infinity
    for (const label of window.controls.values()) {
      if (label.kind !== kinds.label || label.within !== control.within || !/\p{L}/u.test(label.text)) continue
      const sameLine = Math.abs(label.top + label.height / 2 - control.top - control.height / 2) <= Math.max(label.height, control.height) / 2
      const left = sameLine && label.left < control.left ? Math.max(0, control.left - label.left - label.width) : Infinity
      const above = label.top < control.top && label.left < control.left + control.width && control.left < label.left + label.width
        ? 1000 + Math.max(0, control.top - label.top - label.height)
        : Infinity
      const far = Math.min(left, above)
      if (far < least) [best, least] = [label, far]
    }
    control.element.setAttribute('aria-label', plain(best?.text ?? window.text).trim().replace(/:$/, '') || window.text)
  }
}

export function applyForm (told) {
  const window = windows.get(told.id)
  if (!window) return
  Object.assign(window, told)
  dress(window)
  scaleWindows()
}

export function applyTold (told) {
  const window = windowOf(told.id)
  if (!window) return
  if (told.kind === kinds.menu) {
    Object.assign(window.menus.find(each => each.id === told.id), told)
    window.menusChanged = true
  } else if (told.kind === kinds.panel) {
    Object.assign(window.panels.find(each => each.id === told.id), told)
    showPanels(window)
  } else if (told.kind === kinds.status) {
    window.status = told
    showPanels(window)
  } else {
    const control = window.controls.get(told.id)
    if (isOrnament(told)) return calm() || applyOrnament(window, control, told) // what only pleases the eye may stand still
    applyControl(control, told)
    window.changed = true
  }
}

function dress (window) {
  window.element.classList.toggle('waiting', window.pointer === 11)
  if (window.title) window.title.textContent = window.text
  window.element.setAttribute('aria-label', shown ? `${window.text} (recording)` : window.text)
  if (!window.modal && window.shown) document.title = window.text
}

const hasBar = window => window.menus.length > 0
const hasStatus = window => window.status && !window.status.hidden
const boardHeight = window => window.height - (hasBar(window) ? menuHeight : 0) - (hasStatus(window) ? statusHeight : 0)

export function showWindow (told) {
  const window = windows.get(told.id)
  if (!window) return
  window.order = Math.max(0, ...[...windows.values()].map(each => each.order)) + 1
  if (window.shown) return
  window.shown = true
  window.modal = told.modal
  const body = window.element
  body.classList.toggle('dialog', window.modal)
  body.classList.toggle('baize', window.isBoard)
  body.replaceChildren()
  if (window.modal) {
    const bar = make('header', 'titlebar', body)
    window.title = make('h2', '', bar)
    const close = make('button', 'closebox', bar)
    close.type = 'button'
    close.textContent = '\u00d7'
    close.setAttribute('aria-label', 'Close')
    close.addEventListener('click', () => send(`close ${window.id}`))
    window.dialog = make('dialog', 'modal', document.body)
    window.dialog.setAttribute('aria-label', window.text)
    window.dialog.append(body)
    window.dialog.addEventListener('cancel', event => event.preventDefault())
    window.dialog.showModal()
  } else {
    desk.querySelector('#name')?.remove()
    desk.append(body)
  }
  window.bar = hasBar(window) ? makeMenus(window, body) : null
  body.append(window.board)
  if (window.status) {
    window.statusbar = make('footer', 'statusbar', body)
    showPanels(window)
  }
  listenOnBoard(window)
  dress(window)
  if (told.offer) offer(window.controls.get(told.offer))
  window.changed = true
  scaleWindows()
  for (const control of window.controls.values()) if (control.kind === kinds.button) fit(control)
}

// What the box held last is in it, selected: a player who is somebody else just writes.
function offer (control) {
  control.window.offered = control
  if (control.text !== '' || view.lastName === '') return
  control.element.value = view.lastName
  send(`type ${control.id} ${view.lastName}`)
  setTimeout(() => control.element.select(), 0)
}

export function hideWindow (id) {
  const window = windows.get(id)
  if (!window?.shown) return
  window.shown = false
  window.dialog?.close()
  window.dialog?.remove()
  window.dialog = null
  window.element.remove()
  forgetDrawn(window)
  scaleWindows()
}

export function forgetWindow (id) {
  const name = windows.get(id)?.offered?.element.value.trim()
  if (name && name !== view.lastName) alter({ lastName: name })
  hideWindow(id)
  windows.delete(id)
}

// The last panel takes what the others leave.
export function showPanels (window) {
  if (!window.statusbar) return
  window.statusbar.hidden = !hasStatus(window)
  window.statusbar.replaceChildren(...window.panels.map((panel, i) => {
    const element = make('span', 'panel')
    element.textContent = panel.text === '' ? '' : window.guide?.panels[i] || panel.text
    if (i < 2 && panel.width > 0) element.style.width = `${panel.width}px`
    element.classList.toggle('rest', i === 2 || panel.width === 0)
    return element
  }))
}

// --- Size --------------------------------------------------------------------------------------------------------

const tapped = 44 // pixels of what is tapped
const lowest = 32 // of a field in a row of that height

// A window in the page is as large as fits; where it would get too small to tap, its commands stand in a strip beside it.
export function scaleWindows () {
  const room = { width: innerWidth, height: innerHeight } // may be next to nothing, before the page has its place
  const window = front()
  const main = [...windows.values()].filter(each => each.shown && !each.modal).sort((a, b) => a.order - b.order).at(-1)
  for (const each of windows.values()) if (!each.modal && each.shown) each.element.hidden = each !== main
  if (main) {
    const natural = Math.min(room.width / main.width, room.height / main.height)
    const small = !shown && (hasBar(main) || main.choice) && ((natural < 1.5 && coarse.matches) || natural < 0.9)
    layStrip(main, small, room)
    const bar = small && hasBar(main) ? menuHeight : 0
    const free = { width: Math.max(1, room.width - (small && strip.classList.contains('side') ? strip.offsetWidth : 0)),
      height: Math.max(1, room.height - (small && !strip.classList.contains('side') ? strip.offsetHeight : 0)) }
    const fits = Math.min(free.width / main.width, free.height / (main.height - bar))
    const most = main.sizable ? 4 : Math.max(1.6, fits * 0.75)
    const zoom = shown ? Math.min(view.zoom, 100) : view.zoom // nobody scrolls in a recording
    setScale(main, Math.min(fits * Math.min(zoom, 100) / 100, most) * Math.max(1, zoom / 100), free)
  } else {
    strip.hidden = true
  }
  for (const each of windows.values()) if (each.shown && each.modal) scaleDialog(each, main, room)
  if (window) settleBoard(window)
}

// Before fingers a dialog is as broad as fits, and as tall as its fields and buttons need to be tapped; what is too tall then
// scrolls.
function scaleDialog (window, main, room) {
  const broad = room.width / (window.width + 4)
  const fits = Math.min(broad, room.height / (window.height + (coarse.matches ? 52 : 32) + 4))
  const fingers = coarse.matches && !window.pictured
  let scale = Math.min(fits, fingers ? 1.5 : Math.max(1, Math.min(main?.scale ?? 1, 2)))
  let stretch = 1
  if (fingers) {
    stretch = Math.min(Math.max(1, (room.height / scale - titleHeight(scale) - 4) / window.height), Math.max(1, 2 / scale))
    if (stretch < stretchToTap(window, scale)) {
      scale = Math.min(broad, 1.5)
      stretch = stretchToTap(window, scale)
    }
  }
  const before = window.stretch
  window.finger = tapped / scale
  window.stretch = stretch
  if (before !== stretch) for (const control of window.controls.values()) place(control)
  window.element.classList.toggle('stretched', stretch > 1)
  setScale(window, scale, room)
}

// How much taller the rows have to be for fields of 32 pixels, and for a finger's breadth from one to the next. What is only read
// is seen as a whole, or scrolls by itself.
function stretchToTap (window, scale) {
  const fields = [...window.controls.values()].filter(each => isNative(each.kind) && !each.element.hidden)
  let least = 1
  if (fields.every(each => each.kind === kinds.button || each.lines)) return least // taps beside buttons are taken for them
  for (const one of fields) {
    if (!one.field) least = Math.max(least, (lowest / scale + 4) / one.height)
    for (const other of fields) {
      const beside = one.left < other.left + other.width && other.left < one.left + one.width
      if (beside && one.within === other.within && other.top > one.top) least = Math.max(least, tapped / scale / (other.top - one.top))
    }
  }
  return least
}

// What is larger than the room that it has is scrolled within its window.
function setScale (window, scale, room) {
  const whole = { width: window.width, height: boardHeight(window) * (window.stretch ?? 1) }
  const bars = (window.modal ? titleHeight(scale) : 0) + (hasBar(window) && !window.element.classList.contains('barless') ? menuHeight : 0) +
    (hasStatus(window) ? statusHeight : 0)
  const seen = { width: Math.min(whole.width, room.width / scale), height: Math.min(whole.height, room.height / scale - bars - (window.modal ? 4 : 0)) }
  const tooHigh = seen.height < whole.height - 1
  if (tooHigh && !coarse.matches) seen.width = Math.min(whole.width + 16, room.width / scale) // a bar to scroll it by
  window.scrolls = tooHigh || seen.width < whole.width - 1
  window.board.classList.toggle('scrolls', window.scrolls)
  for (const side of ['width', 'height']) {
    window.board.style[side] = `${seen[side]}px`
    for (const each of [window.surface, window.over]) each.style[side] = `${whole[side]}px`
  }
  window.scale = scale
  if (window.modal) {
    window.element.style.setProperty('--title', `${titleHeight(scale)}px`)
    window.element.style.setProperty('--letters', `${Math.max(14, 13 / scale)}px`)
  }
  const at = [room.width - seen.width * scale, room.height - (seen.height + bars) * scale].map(rest => Math.max(0, Math.round(rest / 2)))
  Object.assign(window.element.style, { width: `${seen.width}px`, height: `${seen.height + bars}px`,
    transform: `translate(${at[0]}px, ${at[1]}px) scale(${scale})` })
  scaleOrnaments(window, at)
}

// Menus and commands as large as a finger, in the room that the board leaves.
function layStrip (window, small, room) {
  window.element.classList.toggle('barless', small && hasBar(window))
  strip.hidden = !small
  if (!small) {
    strip.dataset.key = ''
    return strip.replaceChildren()
  }
  strip.classList.toggle('side', room.width > room.height)
  const buttons = [...window.controls.values()].filter(control =>
    control.kind === kinds.button && (window.choice || control.within === window.id) && !control.element.hidden)
  // What is played with stands before what is done with the game.
  const rank = each => each.index !== undefined ? 0 : window.tips?.[each.id] ? 1 : 2
  buttons.sort((a, b) => rank(a) - rank(b))
  const key = [window.id, ...buttons.map(each => `${each.id}${each.text}${each.disabled}`), window.menus.map(each => each.text)].join()
  if (strip.dataset.key === key) return sayCommands(window, buttons)
  strip.dataset.key = key
  strip.replaceChildren()
  if (hasBar(window)) layMenus(window, make('div', 'menubar', strip))
  const commands = make('div', 'commands', strip)
  for (const each of buttons) addCommand(commands, captionOf(each, buttons), each.disabled, event => pressButton(each, event))
  sayCommands(window, buttons)
  if (window.doors?.length) offerMenu(addCommand(commands, 'Menu', false, (event, button) => showChoiceMenu(window, button)))
  if (window.help) addCommand(commands, window.help.text, false, () => showKeys(window))
}

// Of several buttons with one caption each says which it is: on the board that is told by where they stand.
function captionOf (button, buttons) {
  const caption = plain(button.text).trim()
  return buttons.some(each => each !== button && each.text === button.text) ? `${caption} ${button.index + 1}` : caption
}

function sayCommands ({ guide }, buttons) {
  const commands = strip.querySelectorAll('.commands button')
  buttons.forEach((button, i) => {
    const spot = guide?.spots.find(([id]) => id === button.id)
    if (spot) commands[i].setAttribute('aria-label', `${captionOf(button, buttons)}, ${spot[1]}`)
  })
}

function addCommand (commands, text, disabled, deed) {
  const button = make('button', '', commands)
  button.type = 'button'
  button.textContent = text
  button.disabled = Boolean(disabled)
  button.style.minHeight = `${tapped}px`
  button.addEventListener('click', event => deed(event, button))
  return button
}

// --- When a batch has been applied -------------------------------------------------------------------------------

export function settle () {
  for (const window of windows.values()) {
    if (!window.shown) continue
    if (window.menusChanged && window.bar) window.bar.refresh()
    window.menusChanged = false
    if (!window.changed) continue
    window.changed = false
    layGround(window)
    showNotes(window)
    tellTable(window)
    settleBoard(window)
    if (!strip.hidden) scaleWindows()
  }
}

export function applyGuide (guide) {
  const window = windowOf(guide.form)
  if (!window) return
  window.grabs = guide.open && !window.guide?.open // the board takes the keyboard when a game begins
  window.guide = guide
  window.changed = true
  showPanels(window)
}

// A choice begins with what was chosen last.
export function firstOf (window) {
  const choices = [...window.controls.values()].filter(each => window.tips?.[each.id] && each.kind === kinds.button)
  return choices.find(each => each.name === view.lastGame) ?? choices[0]
}

export const holdsFocus = window => Boolean(window.guide?.open)

addEventListener('resize', scaleWindows)
