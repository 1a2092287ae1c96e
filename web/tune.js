// The tune, played from its notes: a few plain voices for the piano, the clarinet, the bass and the brushes.
import { audio } from './sound.js'
import { onView, view } from './view.js'

// --- Reading ------------------------------------------------------------------------------------------------------

// All notes of a standard file, in seconds: { at, length, channel, key, velocity }.
export function readTune (bytes) {
  const data = new DataView(bytes.buffer, bytes.byteOffset, bytes.length)
  const division = data.getUint16(12)
  const events = []
  let at = 14
  while (at + 8 <= bytes.length) {
    const length = data.getUint32(at + 4)
    readTrack(bytes.subarray(at + 8, at + 8 + length), events)
    at += 8 + length
  }
  events.sort((a, b) => a.tick - b.tick)
  const notes = []
  const sounding = new Map()
  let beat = 0.5
  let seconds = 0
  let tick = 0
  for (const event of events) {
    seconds += (event.tick - tick) / division * beat
    tick = event.tick
    if (event.beat) beat = event.beat
    if (event.key === undefined) continue
    const name = event.channel * 128 + event.key
    const open = sounding.get(name)
    if (open) {
      open.length = seconds - open.at
      sounding.delete(name)
    }
    if (event.velocity === 0) continue
    const note = { at: seconds, length: 0.1, channel: event.channel, key: event.key, velocity: event.velocity }
    sounding.set(name, note)
    notes.push(note)
  }
  return { notes, length: seconds }
}

function readTrack (bytes, events) {
  let at = 0
  let tick = 0
  let status = 0
  const number = () => {
    let value = 0
    let byte
    do {
      byte = bytes[at++]
      value = value << 7 | (byte & 0x7f)
    } while (byte & 0x80 && at < bytes.length)
    return value
  }
  while (at < bytes.length) {
    tick += number()
    if (bytes[at] & 0x80) status = bytes[at++]
    const kind = status >> 4
    const channel = status & 15
    if (status === 0xff) {
      const what = bytes[at++]
      const length = number()
      if (what === 0x51) events.push({ tick, beat: (bytes[at] << 16 | bytes[at + 1] << 8 | bytes[at + 2]) / 1e6 })
      at += length
    } else if (status === 0xf0 || status === 0xf7) {
      at += number()
    } else if (kind === 9 || kind === 8) {
      events.push({ tick, channel, key: bytes[at], velocity: kind === 9 ? bytes[at + 1] : 0 })
      at += 2
    } else {
      at += kind === 12 || kind === 13 ? 1 : 2
    }
  }
}

// --- Playing ------------------------------------------------------------------------------------------------------

const drums = 9
const voices = { 0: 'piano', 1: 'reed', 2: 'piano', 3: 'bass' }
const waves = { piano: ['triangle', 0.5, 0.9], reed: ['square', 0.16, 0.35], bass: ['sine', 0.8, 1.1] } // wave, level, decay

let volume = null
let tune = null // what is heard: { notes, length, begun, next, timer }
let noise = null
let waiting = false

const follow = () => { if (volume) volume.gain.value = view.music / 100 * 0.5 }
onView(follow)

let read = null
const load = () => read ??= fetch('sounds/quillmark.mid').then(answer => answer.arrayBuffer())
  .then(bytes => readTune(new Uint8Array(bytes)))

export async function commandTune (command) {
  if (command.startsWith('play ')) {
    waiting = true
    const { notes, length } = await load()
    if (!waiting || tune) return
    tune = { notes, length, next: 0, begun: null }
    tune.timer = setInterval(sound, 200)
  } else {
    waiting = false
    stop()
  }
}

function stop () {
  if (!tune) return
  clearInterval(tune.timer)
  tune = null
  volume?.disconnect() // with all that still sounds
  volume = null
}

// What begins within the next moment is handed to the system, which knows the time better.
function sound () {
  const context = audio()
  if (!context || context.state !== 'running') return
  if (!volume) {
    volume = context.createGain()
    volume.connect(context.destination)
    follow()
  }
  const ahead = document.hidden ? 1.5 : 0.5
  tune.begun ??= context.currentTime + 0.1
  while (tune.next < tune.notes.length) {
    const note = tune.notes[tune.next]
    const at = tune.begun + note.at
    if (at > context.currentTime + ahead) return
    ++tune.next
    if (at > context.currentTime - 0.05) note.channel === drums ? strike(context, note, at) : play(context, note, at)
  }
  if (context.currentTime > tune.begun + tune.length + 2) stop()
}

function play (context, { key, length, velocity, channel }, at) {
  const [wave, level, decay] = waves[voices[channel] ?? 'piano']
  const source = context.createOscillator()
  source.type = wave
  source.frequency.value = 440 * 2 ** ((key - 69) / 12)
  const filter = context.createBiquadFilter()
  filter.type = 'lowpass'
  filter.frequency.value = Math.min(8000, source.frequency.value * 4 + 400)
  const gain = context.createGain()
  const loud = level * (velocity / 127) ** 1.5 * 0.5
  const end = at + length
  gain.gain.setValueAtTime(0, at)
  gain.gain.linearRampToValueAtTime(loud, at + 0.01)
  gain.gain.setTargetAtTime(loud * 0.3, at + 0.01, decay)
  gain.gain.setTargetAtTime(0, end, 0.06)
  source.connect(filter).connect(gain).connect(volume)
  source.start(at)
  source.stop(end + 0.4)
}

// Drums are noise, high or low by their key.
function strike (context, { key, velocity }, at) {
  if (!noise) {
    noise = context.createBuffer(1, context.sampleRate / 2, context.sampleRate)
    const samples = noise.getChannelData(0)
    for (let i = 0; i < samples.length; ++i) samples[i] = Math.random() * 2 - 1
  }
  const low = key <= 36
  const source = context.createBufferSource()
  source.buffer = noise
  const filter = context.createBiquadFilter()
  filter.type = low ? 'lowpass' : 'bandpass'
  filter.frequency.value = low ? 120 : key < 42 ? 2500 : 7000
  const gain = context.createGain()
  gain.gain.setValueAtTime((low ? 0.9 : 0.14) * velocity / 127, at)
  gain.gain.exponentialRampToValueAtTime(0.001, at + (low ? 0.15 : 0.12))
  source.connect(filter).connect(gain).connect(volume)
  source.start(at)
  source.stop(at + 0.3)
}
