// What stands in lines and columns is a table to a screen reader: three or more labels of one name in a window without a board.
import { kinds, make } from './controls.js'

function rowsOf (window) {
  const arrays = Map.groupBy([...window.controls.values()].filter(each => each.kind === kinds.label && each.index !== undefined), each => each.name)
  const [labels] = [...arrays.values()].filter(each => each.length > 2)
  const lines = [...Map.groupBy(labels ?? [], each => each.top)].sort(([a], [b]) => a - b)
  return lines.map(([, line]) => line.sort((a, b) => a.left - b.left)).filter(line => line.some(each => each.text.trim() !== ''))
}

export function tellTable (window) {
  if (window.isBoard) return
  const rows = rowsOf(window)
  const key = JSON.stringify(rows.map(row => row.map(each => each.text)))
  if (window.tabled === key) return
  window.tabled = key
  window.table?.remove()
  if (!rows.length) return
  window.table = make('table', 'spoken', window.surface)
  window.table.setAttribute('aria-label', window.text)
  rows.forEach((row, i) => {
    const line = make('tr', '', window.table)
    const place = make('th', '', line)
    place.scope = 'row'
    place.textContent = i + 1
    for (const label of row) {
      make('td', '', line).textContent = label.text
      label.element.setAttribute('aria-hidden', 'true')
    }
  })
}
