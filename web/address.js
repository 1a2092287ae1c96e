// The address names the game, and the way back leads to the selector.
import { isWatching } from './boxes.js'
import { send } from './events.js'
import { shown } from './shown.js'
import { front, windows } from './windows.js'

const select = 'frmSelect'
const ofToday = 'today-'
const nameOf = window => (window.guide?.day ? ofToday : '') + window.name.slice(3).toLowerCase()
// The name of a game, in small letters, and whether its deal of the day is meant.
function meant () {
  const name = decodeURIComponent(location.hash.slice(1)).toLowerCase()
  return name.startsWith(ofToday) ? { name: name.slice(ofToday.length), today: true } : { name, today: false }
}
const shownGame = () => [...windows.values()].find(each => each.shown && !each.modal && each.name !== select)

// What the page was opened with: a game as on its button, with "today " before it for its deal of the day; or ''.
export function asked (games) {
  const { name, today } = meant()
  const game = games.find(each => each.toLowerCase() === name)
  return game ? (today ? 'today ' : '') + game : ''
}

let going = false // back, by ourselves: that comes about a moment later

export function followWindows () {
  if (going || shown || isWatching()) return
  const game = shownGame()
  const name = game ? `#${nameOf(game)}` : ''
  if (name === location.hash) return
  const url = name || location.href.split('#')[0]
  if (name && location.hash === '') history.pushState({ game: true }, '', url)
  else if (!name && history.state?.game) {
    going = true
    history.back()
  } else history.replaceState(null, '', url)
}

// Back: what stands in front is closed, a window as by its close box, which may ask; where the player stays, so does the address.
addEventListener('popstate', () => {
  if (going) {
    going = false
    return followWindows()
  }
  const game = shownGame()
  if (game && location.hash === '') {
    history.pushState({ game: true }, '', `#${nameOf(game)}`)
    const aside = document.querySelector('dialog.keys-window[open]')
    if (aside) aside.dispatchEvent(new Event('cancel'))
    else send(`close ${front().id}`)
    return
  }
  if (game) return
  const selector = [...windows.values()].find(each => each.shown && each.name === select)
  const { name, today } = meant()
  const door = selector?.doors.find(each => each[1].toLowerCase() === name)
  if (door) send(`${today ? 'today' : 'click'} ${door[0]}`)
})
