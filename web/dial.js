// The surface on which a game draws its clock: pies, lines and circles, as often as it likes.
import { css, fromTold } from './colours.js'

const twips = 15
const [pie, line] = [0, 1]

export function drawDial (control) {
  const { canvas, width, height } = control
  const scale = Math.max(1, (control.window.scale ?? 1) * devicePixelRatio)
  canvas.width = Math.round(width * scale)
  canvas.height = Math.round(height * scale)
  const pen = canvas.getContext('2d')
  pen.setTransform(scale, 0, 0, scale, 0, 0)
  if (!control.strokes.length) return
  const round = control.strokes.findLast(stroke => stroke[0] > line)
  const [x, y, radius] = round
    ? [round[2] / twips, round[3] / twips, round[4] / twips]
    : [width / 2, height / 2, Math.min(width, height) / 2 - 1]
  const disc = pen.createRadialGradient(x - radius * 0.3, y - radius * 0.3, 0, x - radius * 0.3, y - radius * 0.3, radius * 1.5)
  disc.addColorStop(0, '#fffffb')
  disc.addColorStop(1, '#d9d2be')
  pen.fillStyle = disc
  circle(pen, x, y, radius)
  pen.fill()
  for (const stroke of control.strokes) draw(pen, stroke)
}

function circle (pen, x, y, radius) {
  pen.beginPath()
  pen.arc(x, y, Math.max(0, radius), 0, 2 * Math.PI)
}

function draw (pen, [kind, told, x, y, ...rest]) {
  const colour = css(fromTold(told))
  const place = [x / twips, y / twips]
  if (kind === line) {
    pen.strokeStyle = colour
    pen.lineWidth = 1
    pen.beginPath()
    pen.moveTo(...place)
    pen.lineTo(rest[0] / twips, rest[1] / twips)
    pen.stroke()
    return
  }
  const radius = rest[0] / twips
  if (kind === pie) {
    const angle = degrees => (degrees - 90) * Math.PI / 180 // clockwise from the top
    pen.fillStyle = colour
    pen.beginPath()
    pen.moveTo(...place)
    pen.arc(...place, radius, angle(rest[1]), angle(rest[2]))
    pen.fill()
    return
  }
  pen.strokeStyle = css(fromTold(told).map(part => part * 0.62))
  pen.lineWidth = 1.5
  circle(pen, ...place, radius - 0.5)
  pen.stroke()
}
