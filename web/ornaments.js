// The cards that turn only to please the eye, some times a second for as long as a window stands: on a canvas of their own, which the
// browser shows without looking at the rest of the page. As elements they cost three times as much.
import { pictureUrl, sizeOf } from './pictures.js'
import { make } from './controls.js'
import { view } from './view.js'

const around = 4 // pixels around a card for its frame, shadow and outline
const kept = 220 // cards at 100 %; a deck and the backs where they are drawn twice as large, which are 8 MB

const keyOf = ({ picture, framed }) => `${picture} ${framed}`

export function createOrnaments (window, holder) {
  const cards = window.ornaments.map(id => window.controls.get(id))
  for (const card of cards) card.element.remove()
  const canvas = make('canvas', 'ornaments', holder)
  const surface = canvas.transferControlToOffscreen?.() ?? canvas
  const least = side => Math.min(...cards.map(card => card[side])) - around
  const most = (side, size) => Math.max(...cards.map(card => card[side] + card[size])) + around
  const [left, top] = [least('left'), least('top')]
  const area = { left, top, width: most('left', 'width') - left, height: most('top', 'height') - top }
  window.turning = { cards, canvas, surface, pen: surface.getContext('2d'), holder: window.controls.get(cards[0].within), area, drawn: new Map() }
}

// A pixel of the canvas for each of the screen's, wherever the window stands.
export function scaleOrnaments (window, [x, y]) {
  const { turning, scale } = window
  if (!turning) return
  const { canvas, surface, area } = turning
  let at = { left: area.left, top: area.top + window.board.offsetTop }
  for (let each = turning.holder; each; each = window.controls.get(each.within)) at = { left: at.left + each.left, top: at.top + each.top }
  const fine = scale * devicePixelRatio
  const [right, down] = [x * devicePixelRatio + at.left * fine, y * devicePixelRatio + at.top * fine].map(each => Math.round(each) - each)
  const key = [fine, right, down].join()
  if (turning.key === key) return
  turning.key = key
  turning.fine = fine
  surface.width = Math.ceil(area.width * fine)
  surface.height = Math.ceil(area.height * fine)
  Object.assign(canvas.style, { left: `${area.left + right / fine}px`, top: `${area.top + down / fine}px`, width: `${surface.width / fine}px`,
    height: `${surface.height / fine}px` })
  drawAnew(window)
}

// While nobody sees them they aren't drawn, and all of them as soon as they are seen again.
export function forgetDrawn ({ turning }) {
  if (!turning) return
  turning.key = ''
  turning.drawn.clear()
}

// Larger or smaller, or in other colours.
export function drawAnew ({ turning }) {
  if (!turning?.key) return
  turning.drawn.clear()
  for (const card of turning.cards) draw(turning, card)
}

export function applyOrnament ({ turning }, card, told) {
  delete card.hidden
  Object.assign(card, told)
  if (turning.key) draw(turning, card)
}

// What was drawn once is kept, the latest first: a picture takes the browser longer than all the rest.
async function draw (turning, card) {
  const { drawn, fine } = turning
  const key = keyOf(card)
  const found = drawn.get(key) ?? paint(card, fine)
  drawn.delete(key)
  drawn.set(key, found)
  if (drawn.size > Math.max(turning.cards.length, kept / (fine * fine))) drawn.delete(drawn.keys().next().value)
  const painted = await found
  if (drawn.get(key) !== found || key !== keyOf(card)) return
  card.painted = painted
  show(turning, card)
}

async function paint (card, fine) {
  const url = pictureUrl(card.picture)
  if (!url) return null
  const image = new Image()
  image.src = url
  await image.decode()
  const frame = card.framed ? 2 : 0
  const size = sizeOf(card.picture)
  const [width, height] = [size.width + frame, size.height + frame]
  const canvas = document.createElement('canvas')
  canvas.width = Math.ceil((width + 2 * around) * fine)
  canvas.height = Math.ceil((height + 2 * around) * fine)
  const pen = canvas.getContext('2d')
  pen.scale(fine, fine)
  pen.translate(around, around)
  const fill = (inset, colour) => {
    pen.beginPath()
    pen.roundRect(inset, inset, width - 2 * inset, height - 2 * inset, 4 - inset)
    pen.fillStyle = colour
    pen.fill()
  }
  // As .framed and .image in style.css.
  const strong = view.highContrast
  const edge = card.framed ? (strong ? 2 : 1) : 0
  if (card.framed) {
    Object.assign(pen, { shadowColor: 'rgb(0 0 0 / .3)', shadowOffsetX: fine, shadowOffsetY: 2 * fine, shadowBlur: 2 * fine })
    fill(0, strong ? '#000' : '#3a3630')
    pen.shadowColor = 'transparent'
    fill(edge, '#fffdf5')
    pen.save()
    pen.clip()
  }
  pen.drawImage(image, edge, edge, width - 2 * edge, height - 2 * edge)
  if (card.framed) pen.restore()
  else if (strong) {
    pen.beginPath()
    pen.roundRect(0.25, 0.25, width - 0.5, height - 0.5, 4)
    Object.assign(pen, { strokeStyle: '#fff', lineWidth: 1.5 })
    pen.stroke()
  }
  return canvas
}

// A card in the place where it lies, with what lies above and beneath it there.
function show ({ cards, pen, area, fine }, card) {
  const at = each => [each.left - around - area.left, each.top - around - area.top].map(side => Math.round(side * fine))
  pen.save()
  pen.beginPath()
  const size = sizeOf(card.picture)
  pen.rect(...at(card), ...[size.width, size.height].map(side => Math.ceil((side + 2 + 2 * around) * fine)))
  pen.clip()
  pen.clearRect(0, 0, area.width * fine, area.height * fine)
  for (const each of [...cards].sort((a, b) => a.z - b.z)) if (each.painted && !each.hidden) pen.drawImage(each.painted, ...at(each))
  pen.restore()
}
