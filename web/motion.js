// Cards that glide to where they lie by now, points that float up, a mark on what is refused. It finds out by itself what to move,
// from what the board showed before a turn of the program and shows behind it.
import { kinds, make } from './controls.js'
import { kindOf, kinds as pictures, pictureUrl } from './pictures.js'
import { placeOf } from './board.js'
import { calm, view } from './view.js'

const glide = 120
const turn = 100
const fade = 120
const most = 8 // more cards at once are a deal: they lie there at once

const faceOf = (window, image) => {
  let shown = image.picture > 0
  for (let each = image; each; each = window.controls.get(each.within)) shown &&= !each.hidden
  return { picture: shown ? image.picture : 0, framed: shown && Boolean(image.framed), place: placeOf(window, image) }
}
const isCard = face => face.picture > 0 && (face.framed || kindOf(face.picture) === pictures.back)
const alike = (a, b) => a.picture === b.picture && a.framed === b.framed
const same = (a, b) => alike(a, b) && a.place.left === b.place.left && a.place.top === b.place.top

// The boards as they are before a batch.
export function remember (windows, batch) {
  const boards = new Map()
  for (const window of windows.values()) {
    if (!window.shown || calm()) continue
    const images = [...window.controls.values()].filter(each => each.kind === kinds.image && each.within === window.id)
    boards.set(window, { faces: new Map(images.map(each => [each, faceOf(window, each)])), score: window.guide?.score })
  }
  return { boards, clicked: batch.findLast(each => each.do === 'clicked')?.id }
}

export function move (windows, { boards, clicked }) {
  for (const [window, before] of boards) if (window.shown && !calm()) moveOn(window, before, clicked)
}

function moveOn (window, { faces, score }, clicked) {
  const changes = []
  for (const [image, was] of faces) {
    const now = faceOf(window, image)
    if (!same(was, now)) changes.push({ image, before: was, after: now })
  }
  if (!changes.length) return
  const isPlace = face => face.picture > 0 && !face.framed && kindOf(face.picture) === pictures.place
  const laidOut = changes.some(each => (isPlace(each.before) && !each.after.picture) || (!each.before.picture && isPlace(each.after)))
  if (laidOut || changes.length > most) return
  const pile = pileOf(faces)
  for (const to of changes) {
    if (!isCard(to.after)) continue
    if (alike(to.before, to.after)) {
      carry(to.image, to.before.place, to.after.place)
      to.left = to.covered = true
      continue
    }
    const from = changes.find(each => each !== to && !each.left && alike(each.before, to.after) && !alike(each.after, to.after))
    if (!from) continue
    from.left = to.covered = true
    carry(to.image, from.before.place, to.after.place)
  }
  const cleared = []
  for (const each of changes) {
    const wasBack = kindOf(each.before.picture) === pictures.back
    if (isCard(each.after) && wasBack && !each.covered) {
      flip(each.image)
      each.left = each.covered = true
    } else if (isCard(each.after) && !each.covered && pile && pile !== each.image) {
      // Where a card was taken off another one, that one lay there all the time.
      const beneath = isCard(each.before) && !each.left && clicked !== pile.id
      if (!beneath) carry(each.image, faces.get(pile).place, each.after.place)
      each.covered = true
    }
    if (isCard(each.before) && !alike(each.before, each.after)) {
      cleared.push(each.before.place)
      if (!each.left && !each.covered) vanish(window, each.before)
    }
  }
  if (cleared.length && window.guide?.score > score) floatSum(window, window.guide.score - score, cleared)
}

// The pile from which new cards come, if there is just one.
function pileOf (faces) {
  const found = kind => [...faces].filter(([, face]) => kindOf(face.picture) === kind && face.picture > 0).map(([image]) => image)
  const piles = found(pictures.pile)
  const all = piles.length ? piles : found(pictures.back)
  return all.length === 1 ? all[0] : null
}

const eased = { duration: glide, easing: 'cubic-bezier(.2, .8, .3, 1)' }

function carry ({ element }, from, to) {
  const { zIndex } = element.style
  element.style.zIndex = 15000 + Number(zIndex)
  const going = element.animate([
    { transform: `translate(${from.left - to.left}px, ${from.top - to.top}px)` }, { transform: 'none' }
  ], eased)
  going.onfinish = going.oncancel = () => { if (Number(element.style.zIndex) >= 15000) element.style.zIndex = zIndex }
}

function flip ({ element }) {
  element.animate([{ transform: 'scaleX(.04)' }, { transform: 'none' }], { duration: turn })
}

function vanish (window, face) {
  const image = make('img', face.framed ? 'ghost framed' : 'ghost', window.over)
  image.src = pictureUrl(face.picture)
  image.alt = ''
  image.style.left = `${face.place.left}px`
  image.style.top = `${face.place.top}px`
  image.animate([{ opacity: 1 }, { opacity: 0 }], { duration: fade }).onfinish = () => image.remove()
}

function floatSum (window, sum, places) {
  const element = make('div', 'sum', window.over)
  element.textContent = `+${sum.toLocaleString('en')}`
  element.setAttribute('aria-hidden', 'true')
  const middle = (side, size) => places.reduce((all, place) => all + place[side] + place[size] / 2, 0) / places.length
  element.style.left = `${middle('left', 'width')}px`
  element.style.top = `${Math.max(50, middle('top', 'height'))}px`
  element.animate([{ opacity: 1, transform: 'translate(-50%, -50%)' }, { opacity: 1, offset: 0.6 },
    { opacity: 0, transform: 'translate(-50%, calc(-50% - 34px))' }], { duration: 900 }).onfinish = () => element.remove()
}

export function flash (control) {
  const { window } = control
  const place = placeOf(window, control)
  const element = make('div', 'flash', window.over)
  for (const side of ['left', 'top', 'width', 'height']) element.style[side] = `${place[side]}px`
  const pales = element.animate([{ opacity: 1 }, { opacity: 0 }], { duration: 260 })
  pales.onfinish = () => element.remove()
}

// Small sheets of paper that turn as they fall.
export function celebrate (control) {
  if (!control || calm()) return
  const { window } = control
  const place = placeOf(window, control)
  const colours = view.highContrast ? ['#ffe000', '#fff'] : ['#d9b45b', '#fffbee', '#c8102e', '#2f6fc4']
  for (let i = 0; i < 60; ++i) {
    const sheet = make('div', 'sheet-of-paper', window.over)
    const between = (least, largest) => least + Math.random() * (largest - least)
    const angle = between(-0.85, -0.15) * Math.PI
    const speed = between(110, 400)
    sheet.style.left = `${place.left + Math.random() * place.width}px`
    sheet.style.top = `${place.top + place.height / 2}px`
    sheet.style.background = colours[i % colours.length]
    const frames = [0, 0.25, 0.5, 0.75, 1].map(at => ({
      transform: `translate(${Math.cos(angle) * speed * at}px, ${Math.sin(angle) * speed * at + 260 * at * at}px) rotate(${at * 700}deg)`,
      opacity: Math.min(1, 3 * (1 - at))
    }))
    sheet.animate(frames, { duration: 1000 }).onfinish = () => sheet.remove()
  }
}
