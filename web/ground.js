// What letters on a board stand on, and so in which colour they are read: what is announced brings a plate, what has a colour
// a tag; plain words lie on the cloth itself.
import { baize, black, box, css, fromTold, isNeutral, lettersOn, panel, paper, strong } from './colours.js'
import { kinds, make } from './controls.js'
import { view } from './view.js'

const large = 14 // points

const colourOf = told => told === 0 || told === 0xffffff ? box : fromTold(told) // plain white and black stand for paper
const contains = (rect, x, y) => rect.left <= x && x < rect.left + rect.width && rect.top <= y && y < rect.top + rect.height

function rectOf (window, control) {
  const rect = { left: control.left, top: control.top + (control.lower ?? 0), width: control.width, height: control.height }
  for (let holder = window.controls.get(control.within); holder; holder = window.controls.get(holder.within)) {
    rect.left += holder.left
    rect.top += holder.top
  }
  return rect
}

function isShown (window, control) {
  for (let each = control; each; each = window.controls.get(each.within)) if (each.hidden) return false
  return true
}

const overlay = control => [kinds.frame, kinds.surface, kinds.progress].includes(control.kind)

const dresses = ['announced', 'tagged', 'edged', 'gapped', 'joined']

// The letters of each label are measured undressed, and all at once, as far as they are others than before.
function measure (labels) {
  const fresh = labels.filter(label => label.measured?.key !== keyOf(label))
  for (const label of fresh) label.element.classList.remove(...dresses)
  for (const label of fresh) {
    const { offsetWidth: width, offsetHeight: height } = label.letters
    label.measured = { key: width || !label.text ? keyOf(label) : '', width, height }
  }
}
const keyOf = label => JSON.stringify([label.text, label.points, label.bold, label.remark, label.auto, label.width, label.window.stretch])

// Where the letters of a label stand within it.
function lettersOf (label, rect) {
  const { width, height } = label.measured
  const left = rect.left + (label.align === 1 ? rect.width - width : label.align === 2 ? (rect.width - width) / 2 : 0)
  return { left, top: rect.top, width, height }
}

const meet = (a, b) => a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height && b.top < a.top + a.height

function groundOf (label, letters, below) {
  const x = letters.left + letters.width / 2
  const y = letters.top + letters.height / 2
  for (const { control, rect } of below) {
    if (control.kind === kinds.image && control.picture > 0) {
      if (meet(letters, rect)) return { kind: 'picture', colour: box }
      continue
    }
    if (!contains(rect, x, y)) continue
    if (control.kind === kinds.surface) return { kind: 'picture', colour: box }
    if (control.kind === kinds.frame) return { kind: 'paper', colour: control.panel ? panel : box }
    if (control.kind === kinds.label && control.back !== undefined) return { kind: 'paper', colour: colourOf(control.back) }
    if (control.kind === kinds.shape && (control.sunken || control.raised)) return { kind: 'paper', colour: box }
  }
  return label.window.isBoard ? { kind: 'cloth', colour: baize } : { kind: 'paper', colour: paper }
}

// What is announced side by side stands on one plate.
function joinPlates (window, announced) {
  for (const plate of window.plates ?? []) plate.remove()
  window.plates = []
  const together = 16
  const groups = []
  for (const [label, letters] of announced) {
    const rect = { left: letters.left - together, top: letters.top - together, width: letters.width + 2 * together, height: letters.height + 2 * together }
    const group = [[label, letters]]
    for (const other of groups.filter(each => each.some(([, letters]) => meet(letters, rect)))) {
      group.push(...other)
      groups.splice(groups.indexOf(other), 1)
    }
    groups.push(group)
  }
  for (const group of groups) {
    for (const [label] of group) label.element.classList.toggle('joined', group.length > 1)
    if (group.length < 2) continue
    const [left, top] = ['left', 'top'].map(side => Math.min(...group.map(([, letters]) => letters[side])))
    const [right, bottom] = [['left', 'width'], ['top', 'height']].map(([side, size]) => Math.max(...group.map(([, letters]) => letters[side] + letters[size])))
    const plate = make('div', 'plate joint', window.surface)
    Object.assign(plate.style, { left: `${left - 17}px`, top: `${top - 4}px`, width: `${right - left + 34}px`, height: `${bottom - top + 8}px`,
      zIndex: Math.min(...group.map(([label]) => Number(label.element.style.zIndex))) - 1 })
    window.plates.push(plate)
  }
}

// Sees to all labels of a window.
export function layGround (window) {
  const all = []
  for (const control of window.controls.values()) {
    if (control.left === undefined || !isShown(window, control)) continue
    let depth = 0
    for (let holder = window.controls.get(control.within); holder; holder = window.controls.get(holder.within)) ++depth
    all.push({ control, rect: rectOf(window, control), order: [depth, Number(overlay(control)), control.z] })
  }
  all.sort((a, b) => a.order[0] - b.order[0] || a.order[1] - b.order[1] || a.order[2] - b.order[2])
  // A group in which texts stand has paper under them; cards and buttons alone lie on the cloth.
  for (const { control } of all.filter(each => each.control.kind === kinds.frame)) {
    control.element.classList.toggle('papered', [...window.controls.values()].some(each =>
      each.within === control.id && ![kinds.button, kinds.image].includes(each.kind)))
  }
  measure(all.map(each => each.control).filter(each => each.kind === kinds.label))
  const announced = []
  all.forEach((each, place) => {
    const label = each.control
    if (label.kind !== kinds.label) return
    const below = all.slice(0, place).reverse()
    const letters = lettersOf(label, each.rect)
    const told = fromTold(label.remark ? 0 : label.colour)
    const high = view.highContrast
    const worn = new Set()
    let ground = box
    if (label.back !== undefined) {
      ground = colourOf(label.back)
      label.element.style.background = high ? css(black) : css(ground)
    } else {
      label.element.style.background = ''
      const found = groundOf(label, letters, below)
      if (label.points >= large && window.isBoard && label.within === window.id) {
        const plated = below.some(({ control, rect }) => control.kind === kinds.shape && control.raised &&
          contains(rect, letters.left + letters.width / 2, letters.top + letters.height / 2))
        if (!plated) worn.add('announced')
        if (!plated && label.text.trim() !== '') announced.push([label, letters])
      } else if (found.kind === 'paper' || (found.kind === 'cloth' && (high || isNeutral(told)))) {
        ground = found.colour
        // On the upper line of a field that is let in.
        const gapped = found.kind === 'cloth' && below.some(({ control, rect }) => control.element.classList.contains('inlay') &&
          letters.top < rect.top && letters.top + letters.height > rect.top && letters.left > rect.left && letters.left + letters.width < rect.left + rect.width)
        if (gapped) worn.add('gapped')
      } else {
        worn.add('tagged')
        if (found.kind === 'picture') worn.add('edged')
      }
    }
    for (const each of dresses) if (each !== 'joined' || !worn.has('announced')) label.element.classList.toggle(each, worn.has(each))
    label.element.style.color = css(high ? strong(told) : lettersOn(ground, told))
  })
  joinPlates(window, announced)
}
