// The statistics: a table of what was played, and below it pictures of the row that is chosen. All figures and shapes are the
// program's.
import { openAside } from './boxes.js'
import { make, showCaption, accessKey } from './controls.js'
import { download } from './download.js'
import { ask as askSuite, load } from './host.js'
import { paint } from './shapes.js'
import { view } from './view.js'

let ask = null // what asks their program, once it is there

function loadStyle () {
  return new Promise((resolve, reject) => {
    const sheet = make('link', '', document.head)
    sheet.rel = 'stylesheet'
    sheet.onload = resolve
    sheet.onerror = () => {
      sheet.remove()
      reject(new Error('a file is missing.'))
    }
    sheet.href = 'statistics.css'
  })
}

const usual = { width: 960, height: 760 } // what the window fills at its natural size

const contrast = () => Number(view.highContrast)

export async function show (window) {
  if (!ask) [ask] = await Promise.all([load('statistics.wasm'), loadStyle()])
  if (!window.shown) return // it has closed meanwhile
  const told = ask(`open ${window.choice ? '-' : window.name.slice(3)} ${askSuite('games').flat().join(' ')}`)
  const { dialog, close } = openAside(window, 'keys-window statistics', 'Statistics', () => watcher.disconnect())
  const scale = Math.max(1, Math.min(innerWidth / usual.width, innerHeight / usual.height, 2))
  dialog.style.fontSize = `${14 * scale}px`
  const body = make('div', 'body', dialog)
  const page = {}
  let chosen = told.chosen
  let drawn = ''

  // In all the room below the lines.
  function draw () {
    const { charts } = page
    const width = Math.floor(charts.clientWidth / scale)
    const height = Math.floor((body.clientHeight + body.offsetTop - charts.offsetTop) / scale) - 6
    const question = `charts ${chosen} ${width} ${height} ${contrast()}`
    if (question === drawn) return
    drawn = question
    charts.replaceChildren(paint(ask(question), view.highContrast, scale))
  }

  function choose (row) {
    chosen = row
    const { title, figures, latest } = told.rows[row]
    page.title.textContent = title
    page.figures.textContent = figures
    page.latest.textContent = latest
    page.charts.setAttribute('aria-label', `${title}: scores, how often they came, and the days`)
    draw()
  }

  let pick = null
  if (told.rows.length) {
    pick = makeTable(body, told, choose)
    for (const line of ['title', 'figures', 'latest']) page[line] = make('p', line, body)
    page.charts = make('div', 'charts', body)
    page.charts.setAttribute('role', 'img')
  } else {
    const word = make('div', 'nothing', body)
    make('p', 'title', word).textContent = told.nothing
    make('p', '', word).textContent = told.todo
  }

  const answers = make('div', 'answers', dialog)
  const word = make('p', 'told', answers)
  word.setAttribute('role', 'status')
  if (told.why) word.textContent = `The history can't be read: ${told.why}`
  const offer = (name, caption, deed) => {
    const button = make('button', '', answers)
    button.type = 'button'
    button.dataset.name = name
    button.dataset.key = accessKey(caption)
    showCaption(button, caption)
    button.disabled = !told.rows.length
    button.addEventListener('click', deed)
    return button
  }
  const save = (name, type, content) => async () => {
    try {
      download(name, type, await content())
      word.textContent = `Saved: ${name}`
    } catch (error) {
      word.textContent = `It can't be saved: ${error.message}`
    }
  }
  const drawing = () => paint(ask(`picture ${chosen} ${contrast()}`), view.highContrast, 1, told.rows[chosen].title)
  offer('savePicture', 'Save &Picture', save('statistics.png', 'image/png', () => points(drawing())))
  offer('saveDrawing', 'Save &Drawing', save('statistics.svg', 'image/svg+xml', () => textOf(drawing())))
  offer('saveTable', 'Save &Table', save('statistics.csv', 'text/csv', () => ask('table')))
  const done = offer('close', '&Close', close)
  done.disabled = false

  const watcher = new ResizeObserver(draw)
  dialog.showModal()
  if (!pick) return done.focus()
  pick(chosen)
  watcher.observe(body)
}

// A table whose rows are chosen, by clicks or by the arrows; what chooses one.
function makeTable (body, told, choose) {
  const holder = make('div', 'table', body)
  const table = make('table', '', holder)
  table.setAttribute('role', 'grid')
  table.setAttribute('aria-label', 'Statistics')
  const cell = (line, kind, text, i) => {
    const element = make(i ? kind : 'th', i < told.numbers ? '' : 'number', line)
    element.textContent = text
    if (element.tagName === 'TH') element.scope = kind === 'th' ? 'col' : 'row'
  }
  const head = make('tr', '', make('thead', '', table))
  told.columns.forEach((text, i) => cell(head, 'th', text, i))
  const lines = make('tbody', '', table)
  const pick = row => {
    const line = lines.children[Math.max(0, Math.min(row, lines.children.length - 1))]
    for (const each of lines.children) {
      each.setAttribute('aria-selected', String(each === line))
      each.tabIndex = each === line ? 0 : -1
    }
    choose([...lines.children].indexOf(line))
    line.focus({ preventScroll: true })
    line.scrollIntoView({ block: 'nearest', inline: 'nearest' })
  }
  told.rows.forEach(({ cells }, row) => {
    const line = make('tr', '', lines)
    cells.forEach((text, i) => cell(line, 'td', text, i))
    line.addEventListener('click', () => pick(row))
  })
  const steps = { ArrowDown: 1, ArrowUp: -1, PageDown: 5, PageUp: -5, Home: -Infinity, End: Infinity }
  lines.addEventListener('keydown', event => {
    if (!(event.key in steps)) return
    event.preventDefault()
    pick([...lines.children].indexOf(document.activeElement) + steps[event.key])
  })
  return pick
}

const textOf = drawing => new XMLSerializer().serializeToString(drawing)

// The same in points, two for each of its pixels.
async function points (drawing) {
  const image = new Image()
  image.src = `data:image/svg+xml,${encodeURIComponent(textOf(drawing))}`
  await image.decode()
  const canvas = document.createElement('canvas')
  canvas.width = 2 * drawing.getAttribute('width')
  canvas.height = 2 * drawing.getAttribute('height')
  canvas.getContext('2d').drawImage(image, 0, 0, canvas.width, canvas.height)
  return await new Promise((resolve, reject) =>
    canvas.toBlob(blob => blob ? resolve(blob) : reject(new Error('the browser has no room for it.')), 'image/png'))
}
