// Deals by their number: the same number deals the same cards, to everybody.
import { ask, tell } from './boxes.js'
import { make } from './controls.js'
import { send } from './events.js'
import { announce } from './speech.js'

const longest = 9 // digits

// What stands in the menu in which a player looks for Play, before its last entry.
export function dealEntries (window) {
  const { deal, day, open, result } = window.guide ?? {}
  const play = number => send(`deal ${window.id} ${number}`)
  return [
    { line: true },
    {
      name: 'dealNumber',
      text: 'Deal &Number...',
      enabled: !open && !day,
      choose: () => ask({
        title: 'Deal Number',
        text: 'The same number deals the same cards, to everybody.\nA deal that was asked for enters no table.',
        name: `Deal number, up to ${longest} digits`,
        value: deal ? String(deal) : '',
        longest,
        answer: 'Play'
      }, text => { if (/^[1-9]\d*$/.test(text)) play(text) })
    },
    { name: 'dealAgain', text: 'Same &Deal Again', enabled: !open && Boolean(deal), choose: () => play(deal) },
    { name: 'copyResult', text: '&Copy Result', enabled: Boolean(result), choose: () => copy(result) }
  ]
}

// To the clipboard; where the browser doesn't let us, the player can.
async function copy (text) {
  try {
    await navigator.clipboard.writeText(text)
  } catch {
    if (!copySelected(text)) return tell('Copy Result', text)
  }
  announce('The result has been copied.')
}

function copySelected (text) {
  const before = document.activeElement
  const field = make('textarea', 'spoken', document.body)
  field.value = text
  field.select()
  const copied = document.execCommand('copy')
  field.remove()
  before?.focus({ preventScroll: true })
  return copied
}
