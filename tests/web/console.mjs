// The console's program in WebAssembly, run by node: the other side of window/system/web/host.h, with files in memory.
import { readFileSync } from 'node:fs'

export const load = file => new WebAssembly.Module(readFileSync(file))

// What the program writes for that input. `files` maps paths to texts of bytes, and is changed by the program.
export function run (module, args, input, files = new Map()) {
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
    input: (to, size) => {
      const part = bytes.subarray(read, read + size)
      read += part.length
      chunk(to, part.length).set(part)
      return part.length
    },
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
    instance.exports._start()
  } catch (error) {
    if (!(error instanceof Exit)) throw error
    status = error.status
  }
  return { status, output: Buffer.concat(written).toString('latin1'), errors: errors.join('') }
}
