// What the player does, in order, until the program asks for it; and the program's waiting.
import { shown } from './shown.js'

const queue = []
let wake = null // ends the wait under way

// A line as window/web/web.cpp reads it.
export function send (line) {
  if (shown && !line.startsWith('watch ')) return
  queue.push(line)
  wake?.()
}

// --- A player in a hurry -----------------------------------------------------------------------------------------
// A handler that has blocked for a second offers to go on: a press, Space or Escape lets everything pass at once that it
// still wants to wait for. What else comes meanwhile waits for its turn.
const patience = 1000
const hurry = { blocked: 0, hurried: false, offers: false, skip: null }
export const onOffer = { show: () => {}, hide: () => {} }

function offer () {
  if (hurry.offers) return
  hurry.offers = true
  onOffer.show()
}

function anew () {
  hurry.blocked = 0
  hurry.hurried = false
  if (hurry.offers) onOffer.hide()
  hurry.offers = false
}

// True if the press was meant for that.
export function takeAsHurry () {
  if (!hurry.offers || hurry.hurried) return false
  hurry.hurried = true
  hurry.skip?.()
  onOffer.hide()
  return true
}
export const isBusy = () => wake === null

async function sleep (milliseconds) {
  if (hurry.hurried) return
  const begun = performance.now()
  const offering = setTimeout(offer, Math.max(0, patience - hurry.blocked))
  await new Promise(resolve => {
    hurry.skip = resolve
    setTimeout(resolve, milliseconds)
  })
  hurry.skip = null
  if (!hurry.offers) clearTimeout(offering)
  hurry.blocked += performance.now() - begun
}

// A turn of the page, in which input comes in and what has changed is drawn.
function turn () {
  return new Promise(resolve => {
    const channel = new MessageChannel()
    channel.port1.onmessage = () => {
      channel.port1.close()
      resolve()
    }
    channel.port2.postMessage(null)
  })
}

const nothing = 0
const input = 1
const longest = 0x7fffffff // milliseconds that a browser's timer can wait

// The next event, "" if none has come.
export async function wait (milliseconds, serving) {
  if (serving === nothing) {
    await sleep(milliseconds)
    return ''
  }
  if (serving === input) {
    if (queue.length === 0) await turn()
    return queue.shift() ?? ''
  }
  anew()
  if (queue.length === 0) {
    await new Promise(resolve => {
      wake = resolve
      if (milliseconds >= 0) setTimeout(resolve, Math.min(milliseconds, longest))
    })
    wake = null
  }
  return queue.shift() ?? ''
}

