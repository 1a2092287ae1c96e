// The table of keys of a window.
import { make, plain } from './controls.js'
import { openAside } from './boxes.js'

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
  const name = window.choice ? 'Help' : 'Keys'
  const { dialog, close } = openAside(window, 'keys-window', name)
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
  ok.addEventListener('click', close)
  dialog.showModal()
  ok.focus()
}
