// Texts that stand on a board beside what the game itself says.
import { make, plain } from './controls.js'
import { placeOf } from './board.js'
import { findRoom, isFree, over, taken } from './room.js'
import { alter, view } from './view.js'

const looks = ['plain', 'markband', 'sheet', 'call']

export function showNotes (window) {
  window.notes ??= make('div', 'notes')
  window.beneath ??= make('div', 'notes beneath')
  if (!window.notes.isConnected) {
    window.over.append(window.notes)
    window.surface.prepend(window.beneath)
  }
  const { guide } = window
  if (!guide) return
  const notes = guide.notes.map(note => ({ ...note }))
  addFirstSteps(window, notes)
  addRemark(window, notes)
  addWayOut(window, notes)
  const key = JSON.stringify(notes.map(note => ({ ...note, button: note.button?.id }))) + window.stretch
  if (window.notes.dataset.key === key) return
  window.notes.dataset.key = key
  window.notes.replaceChildren()
  window.beneath.replaceChildren()
  for (const note of notes) show(window, note)
}

function show (window, note) {
  const element = make('div', `note ${looks[note.look]} ${['', 'right', 'middle'][note.align]}`, looks[note.look] === 'markband' ? window.beneath : window.notes)
  const within = window.controls.get(note.within)
  const holder = within ? placeOf(window, within) : { left: 0, top: 0 }
  element.textContent = note.text
  element.style.left = `${holder.left + note.left}px`
  const stretch = window.stretch ?? 1
  element.style.top = `${holder.top + note.top * stretch}px`
  element.style.width = `${note.width}px`
  // In a row of a window that is stretched for fingers, where what is noted stands.
  const row = stretch > 1 && note.look === 0 && [...window.controls.values()].find(each => each.within === note.within && each.top === note.top)
  if (note.look < 2) element.style.height = `${(row || note).height * stretch}px`
  if (note.panel) placeSheet(window, element, note)
  if (note.button) placeCall(window, element, note.button)
}

const settle = (element, { left, top }) => Object.assign(element.style, { left: `${left}px`, top: `${top}px`, width: 'max-content' })

// The same words in two lines that are equally long, or nearly so.
function inTwoLines (text) {
  const words = text.replaceAll('\n', ' ')
  const blanks = [...words.matchAll(/ /g)].map(each => each.index)
  const aside = blank => Math.max(blank, words.length - blank)
  const best = blanks.reduce((a, b) => aside(b) < aside(a) ? b : a)
  return `${words.slice(0, best)}\n${words.slice(best + 1)}`
}

// Below the place that was told, or above it; where there is less room, in two lines, or anywhere near.
function placeSheet (window, element, note) {
  const others = [...window.notes.querySelectorAll('.sheet')].filter(each => each !== element)
  const areas = [...taken(window), ...others.map(each => ({ left: each.offsetLeft, top: each.offsetTop, width: each.offsetWidth, height: each.offsetHeight }))]
  const sizeOf = () => ({ width: element.offsetWidth, height: element.offsetHeight })
  for (const text of [note.text, inTwoLines(note.text)]) {
    element.textContent = text
    const { width, height } = sizeOf()
    const left = Math.max(0, Math.round(note.left + (note.width - width) / 2))
    for (const gap of [12, 3]) {
      for (const top of [note.top + note.height + gap, note.top - gap - height]) {
        const here = { left, top, width, height }
        if (top >= 0 && top + height <= window.surface.clientHeight && isFree(here, areas)) return settle(element, here)
      }
    }
  }
  const { width, height } = sizeOf()
  const x = note.left + note.width / 2
  settle(element, findRoom(window, { width, height }, x, note.top + note.height / 2, areas) ??
    { left: Math.round(x - width / 2), top: note.top + note.height - height })
}

// Where there is room nearest to the button; where there is none, over cards that can't be played any more.
function placeCall (window, element, button) {
  const place = placeOf(window, button)
  const size = { width: element.offsetWidth, height: element.offsetHeight }
  for (const yields of Object.values(over)) {
    const room = findRoom(window, size, place.left + place.width / 2, place.top + place.height / 2, taken(window, yields))
    if (room) return settle(element, room)
  }
}

// Read once a game has been played behind them.
function addFirstSteps (window, notes) {
  if (view.seen.includes(window.name)) return
  const { steps } = window.guide
  if (steps) {
    const [place, ...lines] = steps
    notes.push({ ...place, text: lines.join('\n'), look: 2, align: 2, panel: true })
    window.showsSteps = true
  } else if (window.showsSteps) {
    window.showsSteps = false
    alter({ seen: [...view.seen, window.name] })
  }
}

// How the last game compares, and which deal it was, by the splash panel.
function addRemark (window, notes) {
  const { steps, remark } = window.guide
  if (steps && remark) notes.push({ ...steps[0], text: remark, look: 2, align: 2, panel: true })
}

function addWayOut (window, notes) {
  const button = window.controls.get(window.guide.wayOut)
  for (const element of window.board.querySelectorAll('.wayout')) element.classList.remove('wayout')
  if (!button) return
  button.element.classList.add('wayout')
  notes.push({ within: 0, left: 0, top: 0, width: 170, height: 44, text: `No more moves.\n${plain(button.text).trim()}?`, look: 3, align: 2, button })
}
