// Starts the program, and carries out what it tells.
import { followWindows, asked } from './address.js'
import { hideBox, isWatching, showBox, openBox } from './boxes.js'
import { imports, leaveLetters, leaveWords, use } from './host.js'
import { program } from './program.js'
import { load, setCatalogue, setFourColours } from './pictures.js'
import { applyForm, applyGuide, applyTold, controlOf, createWindow, firstOf, forgetWindow, front, hideWindow, holdsFocus, isOrnament,
  pauseGame, scaleWindows, settle, showWindow, windowOf, windows } from './windows.js'
import { onOffer, send } from './events.js'
import { make, applyControl, kinds } from './controls.js'
import { celebrate, flash, remember, move } from './motion.js'
import { drawAnew } from './ornaments.js'
import { shown, tellBar } from './shown.js'
import { speak } from './speech.js'
import { playWave } from './sound.js'
import { run } from './suspend.js'
import { commandTune } from './tune.js'
import { alter, onView, show, view } from './view.js'
import './keys.js'

const games = ['Sumfall', 'Treyshift', 'Spirehold', 'Fivestack', 'Handgrid', 'Duopick', 'Blackrush']

const deeds = {
  pictures: ({ files }) => setCatalogue(files),
  window: ({ window }) => createWindow(window),
  form: applyForm,
  set: ({ control }) => applyTold(control),
  show: told => {
    showWindow(told)
    const shown = windowOf(told.id)
    if (shown?.choice) firstOf(shown)?.element.focus() // of which the program hears
    else focus(controlOf(told.focus))
  },
  hide: ({ id }) => hideWindow(id),
  gone: ({ id }) => forgetWindow(id),
  guide: ({ guide }) => applyGuide(guide),
  focus: ({ id }) => focus(controlOf(id)),
  selectText: ({ id }) => controlOf(id)?.element.select(),
  box: showBox,
  unbox: hideBox,
  wave: playWave,
  tune: ({ command }) => commandTune(command),
  clicked: ({ id }) => {
    const control = controlOf(id)
    if (control?.window.choice && control.window.tips?.[id] && view.lastGame !== control.name) alter({ lastGame: control.name })
  },
  refused: ({ id }) => {
    const control = controlOf(id)
    const spot = windowOf(id)?.guide?.spots.find(each => each[0] === id)
    speak(spot ? `Refused: ${spot[1]}` : 'Refused')
    if (control?.kind === kinds.image) flash(control)
  },
  mark: async told => (await import('./marks.js')).mark(told),
  unmark: ({ id }) => windowOf(id)?.surface.querySelectorAll('.proof').forEach(each => each.remove()),
  triumph: ({ id }) => celebrate(controlOf(id)),
  open: ({ url }) => window.open(url, '_blank', 'noopener'),
  end: ({ failure }) => end(failure)
}

// One turn of the program: all that it has changed, then what follows of it. Nothing follows of ornaments, which change all the time.
function tell (batch) {
  if (batch.every(each => each.do === 'set' && isOrnament(each.control))) return batch.forEach(each => applyTold(each.control))
  const occasion = remember(windows, batch)
  for (const each of batch) deeds[each.do](each)
  settle()
  if (!batch.some(each => each.do === 'still')) move(windows, occasion)
  if (shown && batch.some(each => each.do === 'show' || each.do === 'box')) tellBar({ do: 'stole' })
  followWindows()
}

// A window that holds the keyboard for its board goes on doing so.
function focus (control) {
  if (!control || holdsFocus(control.window) || !control.window.shown) return
  const field = control.field ?? control.element
  if (document.activeElement === field) return
  control.window.quiet = true
  field.focus({ preventScroll: true })
  control.window.quiet = false
}

function end (failure) {
  document.getElementById('strip').hidden = true
  const word = make('p', '', document.getElementById('desk'))
  word.id = 'word'
  word.textContent = failure ? `Card Haven had to stop: ${failure}` : 'Thank you for playing.'
  const again = make('button', 'again', word)
  again.type = 'button'
  again.textContent = 'Play again'
  again.addEventListener('click', () => location.reload())
  again.focus()
}

onOffer.show = () => {
  const board = front()?.element
  if (board) make('div', 'skip', board).textContent = 'Click to skip'
}
onOffer.hide = () => document.querySelectorAll('.skip').forEach(each => each.remove())

onView(() => {
  setFourColours(view.fourColours)
  for (const window of windows.values()) {
    window.changed = true
    for (const control of window.controls.values()) if (control.kind === kinds.image && !isOrnament(control)) applyControl(control, { ...control })
    drawAnew(window)
  }
  settle()
  scaleWindows()
})

// A file that is dropped never takes the place of the page.
addEventListener('dragover', event => { if (event.dataTransfer.types.includes('Files')) event.preventDefault() })
addEventListener('drop', async event => {
  const [file] = event.dataTransfer.files
  if (!file) return
  event.preventDefault()
  if (front()?.choice && !isWatching()) (await import('./offer.js')).offer(file)
})

async function watchAsked () {
  if (!location.hash.startsWith('#watch=')) return
  const { asked, watch } = await import('./watch.js')
  if (asked()) await watch(asked())
}
addEventListener('popstate', watchAsked)

async function start () {
  show()
  const showing = shown && await import('./showing.js')
  if (showing) Object.assign(deeds, showing.deeds)
  else await watchAsked()
  const fonts = Promise.all([400, 600].map(weight => document.fonts.load(`${weight} 12px "Card Haven"`))).catch(() => {})
  const [module] = await Promise.all([program, load(), fonts])
  const instance = await WebAssembly.instantiate(module, imports(module, tell))
  use(instance.exports)
  instance.exports._initialize()
  if (showing) return run(instance.exports, 'watch', leaveLetters(await showing.record))
  addEventListener('pagehide', () => instance.exports.leaving())
  addEventListener('pageshow', event => { if (event.persisted) location.reload() }) // its program has left
  document.addEventListener('visibilitychange', () => {
    if (document.visibilityState !== 'hidden') return
    pauseGame()
    instance.exports.hidden()
  })
  const playing = run(instance.exports, 'play', leaveWords(asked(games)))
  navigator.serviceWorker?.register('worker.js').catch(() => {})
  await playing
}

start().catch(error => {
  console.error(error)
  openBox({ title: 'Card Haven', text: `Card Haven can't go on: ${error.message}`, icon: 'critical', answers: ['Begin again'], first: 0 },
    () => location.reload())
})
