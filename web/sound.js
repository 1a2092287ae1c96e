// Waves, from the first press on: before it browsers let nobody be heard.
import { shown } from './shown.js'
import { onView, view } from './view.js'

let context = null
let volume = null
let playing = null
const waves = new Map() // name to what is to be heard
const ending = document.createElement('audio').canPlayType('audio/ogg; codecs=opus') ? 'opus' : 'wav'

export const audio = () => context

export function wakeSound () {
  if (context || !window.AudioContext) return
  context = new AudioContext()
  volume = context.createGain()
  volume.connect(context.destination)
  follow()
}
const follow = () => { if (volume) volume.gain.value = view.waves / 100 }
onView(follow)
for (const kind of ['pointerdown', 'keydown']) addEventListener(kind, wakeSound, { capture: true })

async function waveOf (name) {
  if (!waves.has(name)) {
    waves.set(name, fetch(`sounds/${name}.${ending}`).then(answer => answer.arrayBuffer())
      .then(bytes => context.decodeAudioData(bytes)).catch(() => null))
  }
  return waves.get(name)
}

// A count that goes up is heard going up, uneven as a hand is, and never twice the same within a second.
const wavers = [0, -24, 16, -8, 28, -16, 6, -28, 20, -12, 24, -20, 10]
const levels = [100, 90, 96, 86, 94, 100, 88, 92, 97, 87, 95]
function touchOf (step) {
  if (step <= 0) return { cents: 0, level: 1 }
  const rise = 700 * (1 - Math.exp(-step / 30))
  return { cents: rise + wavers[step % wavers.length], level: levels[step % levels.length] / 100 }
}

let last = { path: '', handler: 0, at: 0, step: 0 }
let asked = 0

export async function playWave ({ path, handler }) {
  const now = performance.now()
  const goesOn = last.path === path && last.handler === handler && now - last.at <= 500
  last = { path, handler, at: now, step: goesOn ? last.step + 1 : 0 }
  const { cents, level } = touchOf(last.step)
  if (!context || view.waves === 0 || (shown && context.state !== 'running')) return
  const number = ++asked
  const wave = await waveOf(path.replace(/^.*[\\/]/, '').replace(/\.wav$/i, ''))
  if (!wave || number !== asked || performance.now() - now > 400) return
  playing?.stop() // a wave cuts the one before it
  const source = context.createBufferSource()
  source.buffer = wave
  source.detune.value = cents
  const gain = context.createGain()
  gain.gain.value = level
  source.connect(gain).connect(volume)
  source.start()
  playing = source
}
