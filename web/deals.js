// Deals by their number: the same number deals the same cards, to everybody.
import { ask } from './boxes.js'
import { send } from './events.js'

const longest = 9 // digits

// What stands in the menu in which a player looks for Play, before its last entry.
export function dealEntries (window) {
  const { deal, open } = window.guide ?? {}
  const play = number => send(`deal ${window.id} ${number}`)
  return [
    { line: true },
    {
      name: 'dealNumber',
      text: 'Deal &Number...',
      enabled: !open,
      choose: () => ask({
        title: 'Deal Number',
        text: 'The same number deals the same cards, to everybody.\nA deal that was asked for enters no table.',
        name: `Deal number, up to ${longest} digits`,
        value: deal ? String(deal) : '',
        longest,
        answer: 'Play'
      }, text => { if (/^[1-9]\d*$/.test(text)) play(text) })
    },
    { name: 'dealAgain', text: 'Same &Deal Again', enabled: !open && Boolean(deal), choose: () => play(deal) }
  ]
}
