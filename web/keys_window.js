// The table of keys of a window.
import { make, plain } from './controls.js'
import { send } from './events.js'

// In a choice each key is told with what it opens.
function rowsOf (window) {
  return window.keys.flatMap(row => {
    const told = window.choice
      ? row.clicks.filter(([, id]) => window.tips?.[id])
        .map(([keys, id]) => [keys, `${plain(window.controls.get(id).text).trim()}: ${window.tips[id]}`])
      : []
    return told.length ? told : [[row.keys, row.does]]
  })
}

export function showKeys (window) {
  send(`pause ${window.id} 1`)
  const paused = window.guide?.open && !window.guide.paused
  const dialog = make('dialog', 'keys-window', document.body)
  const name = window.choice ? 'Help' : 'Keys'
  dialog.setAttribute('aria-label', name)
  make('h2', '', dialog).textContent = name
  const scroll = make('div', 'scroll', dialog)
  scroll.tabIndex = 0
  scroll.setAttribute('role', 'region')
  scroll.setAttribute('aria-label', name)
  const table = make('table', '', scroll)
  const head = make('tr', '', make('thead', '', table))
  for (const text of ['Key', 'What it does']) make('th', '', head).textContent = text
  const body = make('tbody', '', table)
  for (const cells of rowsOf(window)) {
    const row = make('tr', '', body)
    cells.forEach((text, i) => { make(i ? 'td' : 'th', '', row).textContent = text })
  }
  const ok = make('button', '', make('div', 'answers', dialog))
  ok.type = 'button'
  ok.textContent = 'OK'
  const close = () => {
    dialog.close()
    dialog.remove()
    if (paused) send(`pause ${window.id} 0`)
  }
  ok.addEventListener('click', close)
  dialog.addEventListener('cancel', event => {
    event.preventDefault()
    close()
  })
  dialog.showModal()
  ok.focus()
}
