// Message boxes, and windows of the page's own.
import { make } from './controls.js'
import { send } from './events.js'

const boxes = []
const signs = { information: 'i', question: '?', exclamation: '!', critical: '\u00d7' }

// The answer's number goes to `answered`.
export function openBox ({ text, title, icon, answers, first }, answered) {
  const box = make('dialog', 'box-window', document.body)
  make('h2', '', box).textContent = title
  box.setAttribute('aria-label', title || text)
  const body = make('div', 'said', box)
  if (signs[icon]) {
    const sign = make('span', `sign ${icon}`, body)
    sign.textContent = signs[icon]
    sign.setAttribute('aria-hidden', 'true')
  }
  const words = make('p', '', body)
  words.textContent = text.replace(/\r\n?/g, '\n')
  words.id = `said${boxes.length}`
  box.setAttribute('aria-describedby', words.id)
  const row = make('div', 'answers', box)
  answers.forEach((answer, i) => {
    const button = make('button', '', row)
    button.type = 'button'
    button.textContent = answer
    button.dataset.key = answer[0].toUpperCase()
    button.addEventListener('click', () => answered(i))
  })
  box.addEventListener('cancel', event => {
    event.preventDefault()
    answered(answers.length - 1)
  })
  box.showModal()
  row.children[first]?.focus()
  return box
}

export function showBox (told) {
  boxes.push(openBox(told, answer => send(`answer ${answer}`)))
}

export function hideBox () {
  const box = boxes.pop()
  box?.close()
  box?.remove()
}

// A recording is watched above all else.
export const isWatching = () => document.querySelector('dialog.watching[open]') !== null

export const boxStands = () => boxes.length > 0

// A window of the page's own that stands before one of the program's, whose game pauses meanwhile; what closes it.
export function openAside (window, kind, name, closed = () => {}) {
  send(`pause ${window.id} 1`)
  const paused = window.guide?.open && !window.guide.paused
  const dialog = make('dialog', kind, document.body)
  dialog.setAttribute('aria-label', name)
  make('h2', '', dialog).textContent = name
  const close = () => {
    dialog.close()
    dialog.remove()
    closed()
    if (paused) send(`pause ${window.id} 0`)
  }
  dialog.addEventListener('cancel', event => {
    event.preventDefault()
    close()
  })
  return { dialog, close }
}

// Asks for a line of text; what is written goes to `written`, unless the player thinks better of it.
export function ask ({ title, text, name, value, longest, answer }, written) {
  const close = () => {
    box.close()
    box.remove()
  }
  const finish = number => {
    close()
    if (number === 0) written(field.value.trim())
  }
  const box = openBox({ title, text, answers: [answer, 'Cancel'], first: 0 }, finish)
  const field = make('input', 'asked')
  field.setAttribute('aria-label', name)
  field.inputMode = 'numeric'
  field.autocomplete = 'off'
  field.maxLength = longest
  field.value = value
  field.addEventListener('keydown', event => { if (event.key === 'Enter') finish(0) })
  box.querySelector('.answers').before(field)
  field.select()
  field.focus()
}

// Of the page itself, where the program isn't asked.
export function tell (title, text) {
  const box = openBox({ title, text, icon: 'information', answers: ['OK'], first: 0 }, () => {
    box.close()
    box.remove()
  })
}
