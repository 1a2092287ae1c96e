// An element for each control, and how it shows what the program tells of it.
import { css, fromTold } from './colours.js'
import { pictureUrl, sizeOf, urlOf } from './pictures.js'
import { createDial, drawDial } from './dial.js'
import { send } from './events.js'

// As window/control.h counts them.
export const kinds = {
  form: 0, label: 1, image: 2, shape: 3, button: 4, text: 5, check: 6, option: 7, frame: 8, surface: 9, timer: 10, menu: 11,
  status: 12, panel: 13, progress: 14, drives: 15, folders: 16, files: 17
}
const overlays = new Set([kinds.frame, kinds.surface, kinds.progress])
const natives = new Set([kinds.button, kinds.text, kinds.check, kinds.option, kinds.drives, kinds.folders, kinds.files])
export const isNative = kind => natives.has(kind)

export function make (tag, className, parent) {
  const element = document.createElement(tag)
  if (className) element.className = className
  parent?.append(element)
  return element
}

// "&File" as its letters, the marked one underlined.
export function showCaption (element, caption) {
  const parts = caption.split(/(&.)/s)
  element.replaceChildren()
  for (const part of parts) {
    if (!part.startsWith('&') || part === '&') element.append(part)
    else if (part === '&&') element.append('&')
    else make('u', '', element).textContent = part[1]
  }
}
export const plain = caption => caption.replace(/&(.)/gs, '$1')
export const accessKey = caption => /&([^&])/s.exec(caption)?.[1].toUpperCase()

// In the letters of one of four sizes.
export const pixelsOf = points => points <= 10 ? 12 : points <= 14 ? 16 : points <= 20 ? 24 : 34

const owners = new WeakMap() // by its element, or one of its parts
export const shownBy = element => owners.get(element?.closest?.('.control'))

export function createControl (window, told) {
  const control = { ...told, window, element: null }
  const creators = {
    [kinds.label]: createLabel,
    [kinds.image]: createImage,
    [kinds.button]: createButton,
    [kinds.text]: createText,
    [kinds.check]: createTick,
    [kinds.option]: createTick,
    [kinds.surface]: createSurface,
    [kinds.frame]: createFrame,
    [kinds.progress]: createProgress,
    [kinds.drives]: createList,
    [kinds.folders]: createList,
    [kinds.files]: createList
  }
  control.element = creators[told.kind]?.(control) ?? make('div')
  control.element.classList.add('control', Object.keys(kinds)[told.kind])
  control.element.dataset.name = told.index === undefined ? told.name : `${told.name}(${told.index})`
  owners.set(control.element, control)
  return control
}

export function applyControl (control, told) {
  for (const key of ['hidden', 'disabled', 'tip', 'pointer', 'back', 'clicks', 'moves']) delete control[key]
  Object.assign(control, told)
  const { element } = control
  place(control)
  element.hidden = Boolean(control.hidden)
  if (isNative(control.kind)) {
    const field = control.field ?? element
    field.disabled = Boolean(control.disabled)
  }
  const tip = control.tip ?? control.window.tips?.[control.id]
  if (tip) element.title = tip
  else element.removeAttribute('title')
  appliers[control.kind]?.(control)
}

// Where a window is stretched for fingers, what holds something grows; the rest stands in the middle of its row, as tall as a finger.
const grows = new Set([kinds.label, kinds.frame, kinds.shape, kinds.drives, kinds.folders, kinds.files])

export function place (control) {
  const { style } = control.element
  const { stretch = 1, finger = Infinity } = control.window
  let { top, height } = control
  if (stretch > 1) {
    const row = height * stretch
    const tall = grows.has(control.kind) || control.lines ? row : natives.has(control.kind) ? Math.max(height, Math.min(row - 4, finger)) : height
    top = top * stretch + (row - tall) / 2
    height = tall
  }
  style.left = `${control.left}px`
  style.top = `${top + (control.lower ?? 0)}px`
  style.zIndex = control.z + (natives.has(control.kind) ? 20000 : overlays.has(control.kind) ? 10000 : 0) + 5000
  if (control.kind === kinds.image) return
  style.width = `${control.width}px`
  style.height = `${height}px`
}

const appliers = {
  [kinds.label]: applyLabel,
  [kinds.image]: applyImage,
  [kinds.shape]: applyShape,
  [kinds.button]: applyButton,
  [kinds.text]: applyText,
  [kinds.check]: applyTick,
  [kinds.option]: applyTick,
  [kinds.surface]: drawDial,
  [kinds.frame]: applyFrame,
  [kinds.progress]: applyProgress,
  [kinds.drives]: applyList,
  [kinds.folders]: applyList,
  [kinds.files]: applyList
}

// --- Drawn on the board ------------------------------------------------------------------------------------------

function createLabel (control) {
  const element = make('div')
  control.letters = make('span', 'letters', element)
  return element
}

function applyLabel (control) {
  const { element, letters } = control
  const text = control.text.replace(/\r\n?/g, '\n')
  if (letters.textContent !== text) letters.textContent = text
  const size = pixelsOf(control.points)
  element.style.fontSize = `${size}px`
  element.classList.toggle('bold', Boolean(control.bold || control.remark))
  element.classList.toggle('whole', Boolean(control.auto))
  element.classList.toggle('line', !control.auto && control.height < 2 * 1.17 * size)
  element.classList.toggle('opaque', control.back !== undefined)
  element.classList.toggle('right', control.align === 1)
  element.classList.toggle('middle', control.align === 2)
  element.classList.toggle('empty', text.trim() === '')
}

function createImage (control) {
  const element = make('div')
  control.picture = -1
  control.drawn = make('img', '', element)
  control.drawn.alt = ''
  control.drawn.draggable = false
  return element
}

function applyImage (control) {
  const { element, drawn } = control
  const url = pictureUrl(control.picture)
  const frame = control.framed ? 2 : 0
  const size = url ? sizeOf(control.picture) : control
  element.style.width = `${size.width + (url ? frame : 0)}px`
  element.style.height = `${size.height + (url ? frame : 0)}px`
  element.classList.toggle('framed', Boolean(control.framed && url))
  element.classList.toggle('bare', !url)
  if (drawn.dataset.url === url) return
  drawn.dataset.url = url ?? ''
  if (url) drawn.src = url
  else drawn.removeAttribute('src')
}

function applyShape (control) {
  const { element } = control
  const line = control.width === 0 || control.height === 0
  element.className = 'control shape'
  if (control.sunken) element.classList.add('box')
  else if (control.raised) element.classList.add('plate')
  else if (line) element.classList.add('rule')
  else element.classList.add(control.breadth > 1 ? 'mark' : 'inlay')
  const colour = css(fromTold(control.border))
  const { style } = element
  style.borderWidth = ''
  if (line) {
    style.width = `${Math.max(control.width, control.breadth)}px`
    style.height = `${Math.max(control.height, control.breadth)}px`
    style.background = colour
  } else if (control.breadth > 1 && !control.sunken && !control.raised) {
    style.borderColor = colour
    style.borderWidth = `${control.breadth}px`
  }
}

function createFrame (control) {
  const element = make('div')
  control.title = make('span', 'title', element)
  control.inner = make('div', 'inner', element)
  return element
}

function applyFrame (control) {
  control.title.textContent = plain(control.text)
  control.title.hidden = control.text === ''
  control.element.classList.toggle('panel', Boolean(control.panel))
}

function createSurface (control) {
  const element = make('div')
  Object.assign(control, createDial(element))
  return element
}

function createProgress (control) {
  const element = make('div', 'box')
  control.filling = make('div', 'filling', element)
  return element
}

function applyProgress (control) {
  const range = Math.max(1, control.max - control.min)
  const part = Math.min(1, Math.max(0, (control.value - control.min) / range))
  control.filling.style.width = `${part * 100}%`
}

// --- What the browser has of its own -----------------------------------------------------------------------------

function createButton (control) {
  const element = make('button')
  element.type = 'button'
  const file = control.window.pictures?.[control.id]
  if (file) {
    const picture = make('img', 'icon', element)
    picture.src = urlOf(file)
    picture.alt = ''
  }
  control.caption = make('span', 'caption', element)
  element.addEventListener('click', event => pressButton(control, event))
  return element
}

const twice = 400 // milliseconds

// A game that the first press of a double click has begun isn't ended by the second one.
export function pressButton (control, event) {
  const open = Boolean(control.window.guide?.open)
  const { wasOpen, pressed } = control
  if (open && wasOpen === false && event.timeStamp - pressed < twice) return
  Object.assign(control, { wasOpen: open, pressed: event.timeStamp })
  send(`click ${control.id}`)
}

function applyButton (control) {
  if (control.shown === control.text) return
  control.shown = control.text
  showCaption(control.caption, control.text)
  control.element.dataset.key = accessKey(control.text) ?? ''
  fit(control)
}

// Letters small enough for the caption to fit: the places were laid out for narrower ones.
export function fit (control) {
  const { caption, element } = control
  caption.style.fontSize = ''
  if (!element.clientWidth) return
  for (let size = 12; size > 8 && caption.scrollWidth > caption.clientWidth + 1; --size) {
    caption.style.fontSize = `${size - 0.5}px`
  }
}

function createText (control) {
  const element = make(control.lines ? 'textarea' : 'input')
  element.readOnly = Boolean(control.locked)
  element.spellcheck = false
  element.autocomplete = 'off'
  control.sent = []
  element.addEventListener('input', () => {
    control.sent.push(element.value)
    send(`type ${control.id} ${element.value}`)
  })
  element.addEventListener('click', () => send(`click ${control.id}`))
  return element
}

function applyText (control) {
  const { element, sent } = control
  const text = control.text.replace(/\r\n?/g, '\n')
  element.style.setProperty('--told', css(fromTold(control.colour)))
  // The program has come as far as this by now; the player may have written on.
  const known = sent.indexOf(control.text)
  if (known >= 0) {
    sent.splice(0, known + 1)
    if (sent.length > 0 || element.value === text) return
  }
  if (element.value !== text) element.value = text
}

function createTick (control) {
  const element = make('label')
  control.field = make('input', '', element)
  control.field.type = control.kind === kinds.check ? 'checkbox' : 'radio'
  control.caption = make('span', 'caption', element)
  control.field.addEventListener('click', event => {
    event.preventDefault() // the program ticks it
    send(`click ${control.id}`)
  })
  return element
}

function applyTick (control) {
  showCaption(control.caption, control.text)
  // Behind the browser's own handling of the click.
  setTimeout(() => { control.field.checked = control.checked }, 0)
  control.field.checked = control.checked
}

function createList (control) {
  const element = make('select')
  element.size = control.kind === kinds.drives ? 1 : 2
  element.setAttribute('aria-label', { [kinds.drives]: 'Places', [kinds.folders]: 'Folders', [kinds.files]: 'Files' }[control.kind])
  element.addEventListener('change', () => send(`select ${control.id} ${element.selectedIndex}`))
  element.addEventListener('dblclick', () => send(`twice ${control.id}`))
  return element
}

function applyList (control) {
  const { element } = control
  const now = [...element.options].map(option => option.text)
  if (now.length !== control.list.length || now.some((text, i) => text !== control.list[i])) {
    element.replaceChildren(...control.list.map(text => new Option(text)))
  }
  element.selectedIndex = control.entry
}
