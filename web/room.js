// Where on a board there is room for a note.
import { placeOf } from './board.js'
import { kinds } from './controls.js'
import { kindOf, kinds as pictures } from './pictures.js'

export const over = { nothing: 0, backs: 1, cards: 2 }

// What shows on the board itself, but for those cards over which the note may lie.
export function taken (window, yields = over.nothing) {
  const board = window.surface.getBoundingClientRect()
  const areas = []
  for (const control of window.controls.values()) {
    if (control.within !== window.id || control.hidden) continue
    if (control.kind === kinds.image) {
      const yieldsTo = yields === over.cards || (yields === over.backs && kindOf(control.picture) === pictures.back)
      if (control.picture > 0 && !yieldsTo) areas.push(placeOf(window, control))
      continue
    }
    if (control.kind === kinds.label && control.text.trim() === '') continue
    const { left, top, width, height } = (control.back === undefined && control.letters ? control.letters : control.element).getBoundingClientRect()
    areas.push({ left: (left - board.left) / window.scale, top: (top - board.top) / window.scale, width: width / window.scale, height: height / window.scale })
  }
  return areas
}

export const isFree = ({ left, top, width, height }, areas, margin = 0) => areas.every(each => left - margin >= each.left + each.width ||
  each.left >= left + width + margin || top - margin >= each.top + each.height || each.top >= top + height + margin)

// The free place that is nearest to a point; null if there is none.
export function findRoom (window, { width, height }, x, y, areas) {
  const step = 4
  const end = { x: window.surface.clientWidth - width, y: window.surface.clientHeight - height }
  let best = null
  let least = Infinity
  for (let top = step; top < end.y; top += step) {
    for (let left = step; left < end.x; left += step) {
      const far = Math.abs(left + width / 2 - x) + Math.abs(top + height / 2 - y)
      if (far < least && isFree({ left, top, width, height }, areas, step)) [best, least] = [{ left, top }, far]
    }
  }
  return best
}
