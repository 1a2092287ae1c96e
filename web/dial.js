// The surface on which a game draws its clock: pies, lines and circles, as often as it likes.
import { css, fromTold } from './colours.js'
import { make } from './controls.js'

const twips = 15
const [pie, line] = [0, 1]

function draw (name, attributes, parent) {
  const element = document.createElementNS('http://www.w3.org/2000/svg', name)
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value)
  parent.append(element)
  return element
}

export function createDial (element) {
  const disc = make('div', 'disc', element)
  return { disc, face: draw('svg', {}, element) }
}

export function drawDial ({ disc, face, strokes }) {
  face.replaceChildren()
  const round = strokes.findLast(stroke => stroke[0] > line)
  disc.hidden = !round
  if (!round) return
  const [x, y, radius] = round.slice(2, 5).map(each => each / twips)
  Object.assign(disc.style, { left: `${x - radius}px`, top: `${y - radius}px`, width: `${2 * radius}px`, height: `${2 * radius}px` })
  for (const stroke of strokes) show(face, stroke)
}

function show (face, [kind, told, left, top, ...rest]) {
  const colour = css(fromTold(told))
  const [x, y, first] = [left, top, rest[0]].map(each => each / twips)
  if (kind === line) {
    draw('line', { x1: x, y1: y, x2: first, y2: rest[1] / twips, stroke: colour }, face)
  } else if (kind === pie) {
    const [start, end] = [rest[1], Math.min(rest[2], rest[1] + 359.99)]
    const at = degrees => { // clockwise from the top
      const angle = (degrees - 90) * Math.PI / 180
      return `${x + first * Math.cos(angle)} ${y + first * Math.sin(angle)}`
    }
    const far = end - start > 180 ? 1 : 0
    draw('path', { d: `M${x} ${y}L${at(start)}A${first} ${first} 0 ${far} 1 ${at(end)}Z`, fill: colour }, face)
  } else {
    const rim = css(fromTold(told).map(part => part * 0.62))
    draw('circle', { cx: x, cy: y, r: Math.max(0, first - 0.5), fill: 'none', stroke: rim, 'stroke-width': 1.5 }, face)
  }
}
