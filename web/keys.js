// What is struck on the keyboard: menus, the keys that a window's guide names, mnemonics, Return and Escape.
import { boxStands, isWatching } from './boxes.js'
import { kinds, shownBy } from './controls.js'
import { isMenuOpen, takeMenuKey } from './menus.js'
import { showKeys } from './keys_window.js'
import { send, takeAsHurry } from './events.js'
import { speak } from './speech.js'
import { useKeys } from './board.js'
import { front } from './windows.js'

const arrows = { ArrowLeft: 'Left', ArrowRight: 'Right', ArrowUp: 'Up', ArrowDown: 'Down' }

function wordOf (event) {
  if (/^(F\d+|Escape|Backspace)$/.test(event.key)) return event.key
  return event.key.length === 1 && event.key > ' ' && event.key < '\x7f' ? event.key.toUpperCase() : ''
}

function knows (window, word) {
  const digits = /^\d$/.test(word)
  return window.keys?.some(row => row.clicks.some(([keys]) => keys === word || (digits && /^\d+$/.test(keys) && keys.includes(word))))
}

addEventListener('keydown', event => {
  useKeys(true)
  if (take(event)) {
    event.preventDefault()
    event.stopPropagation()
  }
}, { capture: true })

function take (event) {
  if (isWatching()) return false
  const { key, target } = event
  if ((key === ' ' || key === 'Escape') && !event.repeat && takeAsHurry()) return true
  const window = front()
  if (document.querySelector('dialog.keys-window, dialog.box-window')) return takeInBox(event)
  if (takeMenuKey(event, window)) return true
  if (!window || isMenuOpen() || event.metaKey) return false
  if (event.altKey) return takeMnemonic(event, window.element)
  if (key === 'F1' && event.shiftKey && window.guide) {
    speak(window.guide.state)
    return true
  }
  const writes = target.matches?.('input:not([type=checkbox], [type=radio]), textarea, select')
  if (event.ctrlKey && !(key in arrows)) return false
  if (!writes && window.guide && takeOnBoard(event, window)) return true
  if (key === 'F11') {
    document.fullscreenElement ? document.exitFullscreen() : document.documentElement.requestFullscreen()
    return true
  }
  if (key === 'F1' && window.help) {
    showKeys(window)
    return true
  }
  if (key === 'Enter' || key === 'Escape') {
    if (target.matches?.('textarea:not([readonly])') && key === 'Enter') return false
    if (key === 'Enter' && target.matches?.('button')) return false // the browser presses it
    if (!event.repeat) send(`press ${window.id} ${key === 'Enter' ? 0 : 1}`)
    return true
  }
  if (!writes && window.modal && key.length === 1 && key > ' ') return takeMnemonic(event, window.element)
  return false
}

function takeOnBoard (event, window) {
  const { key, target } = event
  const open = window.guide.open
  if (key in arrows) {
    if (!open) return window.choice && walkChoices(event, window)
    toBoard(window)
    send(`key ${window.id} ${event.ctrlKey ? 1 : 0} ${arrows[key]}`)
    return true
  }
  const onButton = target.matches?.('button')
  if (key === ' ' || key === 'Enter') {
    if (!open || onButton || !window.guide.spots.length) return false
    if (!event.repeat) send(`key ${window.id} 0 Space`)
    return true
  }
  const word = wordOf(event)
  if (!word || !knows(window, word)) return false
  if (!event.repeat) send(`key ${window.id} 0 ${word}`)
  return true
}

function toBoard (window) {
  const cursor = window.controls.get(window.guide.cursor)
  cursor?.element.focus({ preventScroll: true })
}

// The buttons of a choice stand one below the other.
function walkChoices (event, window) {
  const buttons = [...window.controls.values()].filter(each => each.kind === kinds.button && !each.element.disabled && !each.element.hidden)
  const at = buttons.findIndex(each => each.element === document.activeElement)
  const step = event.key === 'ArrowDown' || event.key === 'ArrowRight' ? 1 : -1
  buttons[(at + step + buttons.length) % buttons.length].element.focus()
  return true
}

function takeMnemonic (event, within) {
  const letter = event.code.startsWith('Key') ? event.code.slice(3) : event.key.toUpperCase()
  const button = [...within.querySelectorAll('button.control:not(:disabled)')].find(each => each.dataset.key === letter && each.offsetParent)
  button?.click()
  return Boolean(button)
}

function takeInBox (event) {
  if (!(boxStands() || event.altKey) || event.key.length !== 1) return false
  const box = [...document.querySelectorAll('dialog.keys-window, dialog.box-window')].at(-1)
  const button = [...box?.querySelectorAll('button') ?? []].find(each => each.dataset.key === event.key.toUpperCase())
  button?.click()
  return Boolean(button)
}

// The program hears where the keyboard has gone, as it does of clicks.
addEventListener('focusin', event => {
  const control = shownBy(event.target)
  if (control && control.kind !== kinds.image && !control.window.quiet) send(`focus ${control.id}`)
})
