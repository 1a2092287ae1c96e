// The other side of window/web/page.h and window/system/web/host.h: every call that leaves WebAssembly.
import * as storage from './storage.js'
import { wait } from './events.js'
import { waiting } from './suspend.js'
import { view } from './view.js'

const decoder = new TextDecoder()
const encoder = new TextEncoder()
let memory = null
let program = null // what it exports
let answered = ''
let left = new Uint8Array() // what `take` gives next, or a text of bytes

const bytes = (at, length) => new Uint8Array(memory.buffer, at, length)
const words = (at, length) => decoder.decode(bytes(at, length))

// As the program's files are: a byte a letter.
function letters (at, length) {
  let text = ''
  const all = bytes(at, length)
  for (let i = 0; i < length; i += 8192) text += String.fromCharCode(...all.subarray(i, Math.min(i + 8192, length)))
  return text
}

function leave (given) {
  left = given
  return left.length
}
export const leaveWords = text => leave(encoder.encode(text))
export const leaveLetters = text => leave(text)

// Many a file is only asked for its size.
function take (to) {
  if (typeof left !== 'string') return bytes(to, left.length).set(left)
  const all = bytes(to, left.length)
  for (let i = 0; i < left.length; ++i) all[i] = left.charCodeAt(i)
}

// What the program knows beside what it tells by itself; it may be waiting meanwhile.
export const ask = question => answerTo('ask', encoder.encode(question))
// Whether a record holds, in a line.
export const verdictOn = record => answerTo('verdict', record)

function answerTo (call, given) {
  const event = left
  program[call](leave(given))
  left = event
  return JSON.parse(answered)
}

// A program that is only asked, and never waits: what asks it.
export async function load (file) {
  const module = await WebAssembly.compileStreaming(fetch(file))
  const instance = await WebAssembly.instantiate(module, imports(module))
  // Its calls out are about its own memory.
  const within = deed => {
    const suite = program
    use(instance.exports)
    try {
      return deed()
    } finally {
      use(suite)
    }
  }
  within(() => program._initialize())
  return question => within(() => ask(question))
}

// Lines are measured as they are drawn.
const pen = document.createElement('canvas').getContext('2d')
function breadth (text, length, pixels, bold) {
  pen.font = `${bold ? 600 : 400} ${pixels}px ${getComputedStyle(document.body).fontFamily}`
  return pen.measureText(words(text, length)).width
}

// Where a turn of the program may end, and the page goes on until it has an event.
const suspends = async (milliseconds, serving) => leaveWords(await wait(milliseconds, serving))

export function imports (module, tell) {
  const host = {
    take,
    read: (path, length) => {
      const text = storage.read(words(path, length))
      return text === null ? -1 : leave(text)
    },
    write: (path, length, text, size) => Number(storage.write(words(path, length), letters(text, size))),
    remove: (path, length) => { storage.remove(words(path, length)) },
    names: () => leaveWords(storage.names().join('\n')),
    input: () => 0,
    output: () => {},
    tell: (text, length) => { tell(JSON.parse(words(text, length))) },
    answer: (text, length) => { answered = words(text, length) || 'null' },
    get wait () { return waiting(module, suspends) },
    now: () => performance.now(),
    date: at => {
      const now = new Date()
      new Int32Array(memory.buffer, at, 7).set([now.getFullYear(), now.getMonth() + 1, now.getDate(), now.getHours(),
        now.getMinutes(), now.getSeconds(), -now.getTimezoneOffset()])
    },
    keepsRecords: () => Number(view.keepsRecords),
    chance: () => {
      const [high, low] = crypto.getRandomValues(new Uint32Array(2))
      return (high & 0x1fffff) * 2 ** 32 + low
    },
    breadth
  }
  const system = {
    random_get: (at, length) => {
      crypto.getRandomValues(bytes(at, length))
      return 0
    },
    clock_time_get: (clock, precision, at) => {
      new DataView(memory.buffer).setBigUint64(at, BigInt(Math.round(performance.now() * 1e6)), true)
      return 0
    },
    proc_exit: status => { throw new Error(`The program has stopped (${status}).`) }
  }
  const none = () => 52 // there is no such call here
  const all = {}
  for (const { module: from, name } of WebAssembly.Module.imports(module)) {
    (all[from] ??= {})[name] = (from === 'host' ? host : system)[name] ?? none
  }
  return all
}

export function use (exports) {
  program = exports
  memory = program.memory
}
