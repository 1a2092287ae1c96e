// Starts the program, and carries out what it tells.
import { followWindows, asked } from './address.js'
import { hideBox, showBox, openBox } from './boxes.js'
import { imports, leaveWords, use } from './host.js'
import { program } from './program.js'
import { load, setCatalogue, setFourColours } from './pictures.js'
import { applyForm, applyGuide, applyTold, controlOf, createWindow, firstOf, forgetWindow, front, hideWindow, holdsFocus, isOrnament,
  scaleWindows, settle, showWindow, windowOf, windows } from './windows.js'
import { onOffer, send } from './events.js'
import { make, applyControl, kinds } from './controls.js'
import { celebrate, flash, remember, move } from './motion.js'
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
  move(windows, occasion)
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
    for (const control of window.controls.values()) if (control.kind === kinds.image) applyControl(control, { ...control })
  }
  settle()
  scaleWindows()
})

async function start () {
  document.getElementById('word').textContent = ''
  show()
  const fonts = Promise.all([400, 600].map(weight => document.fonts.load(`${weight} 12px "Card Haven"`))).catch(() => {})
  const [module] = await Promise.all([program, load(), fonts])
  const instance = await WebAssembly.instantiate(module, imports(module, tell))
  use(instance)
  instance.exports._initialize()
  addEventListener('pagehide', () => instance.exports.leaving())
  addEventListener('pageshow', event => { if (event.persisted) location.reload() }) // its program has left
  document.addEventListener('visibilitychange', () => {
    if (document.visibilityState !== 'hidden') return
    const window = front()
    if (window?.guide?.open && !window.guide.paused) send(`pause ${window.id} 1`)
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
