// A program in WebAssembly, run by node: the other side of window/system/web/host.h, with files in memory.
import { readFileSync } from 'node:fs'
import { isAsyncify, run, waiting } from '../../web/suspend.js'

const build = process.env.CARDHAVEN_WEB_BUILD ?? 'build/web'
// Where the native programs lie that give the answers to compare with.
export const native = process.env.CARDHAVEN_NATIVE_TESTS ?? 'build/tests/tests'

// The two builds of a program that are run in node; the second waits for each line as a page waits for the player.
export const builds = name => [name, `${name}-asyncify`].map(each => [each, new WebAssembly.Module(readFileSync(`${build}/app/${each}.wasm`))])

// What the program writes for that input. `files` maps paths to texts of bytes, and is changed by the program.
export async function answers (module, args, input, files = new Map()) {
  const bytes = Buffer.from(input, 'latin1')
  let memory
  let read = 0
  let left = Buffer.alloc(0)
  const written = []
  const errors = []
  const view = () => new DataView(memory.buffer)
  const chunk = (at, length) => Buffer.from(memory.buffer, at, length)
  const text = (at, length) => chunk(at, length).toString('latin1')
  const leave = answer => {
    left = Buffer.from(answer, 'latin1')
    return left.length
  }
  const line = () => (bytes.indexOf('\n', read) + 1 || bytes.length) - read // how long it is
  const hand = (to, size) => {
    const part = bytes.subarray(read, read + size)
    read += part.length
    chunk(to, part.length).set(part)
    return part.length
  }
  class Exit extends Error {
    constructor (status) {
      super('exit')
      this.status = status
    }
  }
  const host = {
    take: to => { chunk(to, left.length).set(left) },
    read: (path, length) => files.has(text(path, length)) ? leave(files.get(text(path, length))) : -1,
    write: (path, length, what, size) => {
      files.set(text(path, length), text(what, size))
      return 1
    },
    remove: (path, length) => { files.delete(text(path, length)) },
    names: () => leave([...files.keys()].join('\n')),
    input: isAsyncify(module) ? waiting(module, async (to, size) => hand(to, Math.min(size, line()))) : hand,
    output: (what, size) => { written.push(Buffer.from(chunk(what, size))) }
  }
  const given = ['cardhaven-console', ...args].map(each => each + '\0')
  const system = {
    args_sizes_get: (count, size) => {
      view().setUint32(count, given.length, true)
      view().setUint32(size, given.join('').length, true)
      return 0
    },
    args_get: (places, buffer) => {
      for (const each of given) {
        view().setUint32(places, buffer, true)
        chunk(buffer, each.length).write(each, 'latin1')
        places += 4
        buffer += each.length
      }
      return 0
    },
    environ_sizes_get: (count, size) => {
      view().setUint32(count, 0, true)
      view().setUint32(size, 0, true)
      return 0
    },
    environ_get: () => 0,
    clock_time_get: (clock, precision, at) => {
      view().setBigUint64(at, process.hrtime.bigint(), true)
      return 0
    },
    fd_write: (file, parts, count, at) => {
      let size = 0
      for (let i = 0; i < count; ++i) {
        const length = view().getUint32(parts + 8 * i + 4, true)
        errors.push(text(view().getUint32(parts + 8 * i, true), length))
        size += length
      }
      view().setUint32(at, size, true)
      return 0
    },
    proc_exit: status => { throw new Exit(status) }
  }
  const none = () => 52 // there is no such call here
  const imports = {}
  for (const { module: from, name } of WebAssembly.Module.imports(module)) {
    (imports[from] ??= {})[name] = (from === 'host' ? host : system)[name] ?? none
  }
  const instance = new WebAssembly.Instance(module, imports)
  memory = instance.exports.memory
  let status = 0
  try {
    await run(instance.exports, '_start')
  } catch (error) {
    if (!(error instanceof Exit)) throw error
    status = error.status
  }
  const all = Buffer.concat(written)
  return { status, bytes: all, get output () { return all.toString('latin1') }, errors: errors.join('') }
}
