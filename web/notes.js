// Texts that stand on a board beside what the game itself says.
import { make, plain } from './controls.js'
import { placeOf } from './board.js'
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
  addWayOut(window, notes)
  const key = JSON.stringify(notes)
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
  element.style.top = `${holder.top + note.top}px`
  element.style.width = `${note.width}px`
  if (note.look < 2) element.style.height = `${note.height}px`
  if (note.panel) placeSheet(window, element, note)
}

// Below the place that was told, or above it; where nothing else has room, over the place itself.
function placeSheet (window, element, note) {
  const [width, height] = [element.offsetWidth, element.offsetHeight]
  const left = Math.max(0, Math.round(note.left + (note.width - width) / 2))
  const taken = [...window.controls.values()].filter(each => each.within === window.id && !each.hidden && each.width > 0 &&
    each.left < left + width && left < each.left + each.width && each.text !== '').map(each => [each.top, each.top + each.height])
  const end = note.top + note.height
  const fits = top => top >= 0 && taken.every(([from, to]) => to <= top || from >= top + height)
  const top = [end + 12, end + 3, note.top - 12 - height, note.top - 3 - height].find(fits) ?? end - height - 4
  element.style.left = `${left}px`
  element.style.top = `${top}px`
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

function addWayOut (window, notes) {
  const button = window.controls.get(window.guide.wayOut)
  for (const element of window.board.querySelectorAll('.wayout')) element.classList.remove('wayout')
  if (!button) return
  button.element.classList.add('wayout')
  const place = placeOf(window, button)
  const width = 170
  const left = Math.max(4, Math.min(place.left + place.width / 2 - width / 2, window.width - width - 4))
  const top = place.top > 70 ? place.top - 56 : place.top + place.height + 12
  notes.push({ within: 0, left, top, width, height: 44, text: `No more moves.\n${plain(button.text).trim()}?`, look: 3, align: 2 })
}
