// Waiting in the middle of a call of the program. A browser that can suspend WebAssembly does it; else the program's functions
// keep where they are, leave one by one, and come back to it when they are called again (Asyncify).
const leaving = 1
const returning = 2
const page = 65536
const room = 4 * page // for the functions that have left

let program = null // of the build that does it by itself
let place = 0
let pending = null
let answer

export const isAsyncify = module => WebAssembly.Module.exports(module).some(each => each.name === 'asyncify_get_state')

// An import that may wait: `deed` gives a promise.
export function waiting (module, deed) {
  if (!isAsyncify(module)) return new WebAssembly.Suspending(deed)
  return (...given) => {
    if (program.asyncify_get_state() === returning) {
      program.asyncify_stop_rewind()
      return answer
    }
    pending = deed(...given)
    if (place === 0) makeRoom()
    program.asyncify_start_unwind(place)
    return 0
  }
}

// Not before the program runs: its first allocation takes all the memory that there is.
function makeRoom () {
  place = program.memory.grow(room / page) * page
  new Uint32Array(program.memory.buffer, place, 2).set([place + 8, place + room])
}

// Calls what the program exports, in which imports may wait: one such call at a time.
export async function run (exports, name, ...given) {
  if (!exports.asyncify_get_state) return (WebAssembly.promising ?? (call => call))(exports[name])(...given)
  program = exports
  place = 0
  for (;;) {
    const result = exports[name](...given)
    if (exports.asyncify_get_state() !== leaving) return result
    exports.asyncify_stop_unwind()
    answer = await pending
    exports.asyncify_start_rewind(place)
  }
}
