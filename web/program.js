// The program, compiled while the page's other modules are still on their way. There are two builds of it: a browser that can
// suspend WebAssembly (JSPI) takes the smaller one, any other the one whose functions do that by themselves (Asyncify). worker.js
// keeps the same one.
const suspends = 'Suspending' in WebAssembly

async function compiled () {
  const response = await fetch(suspends ? 'card-haven.wasm' : 'card-haven-asyncify.wasm')
  if (!response.ok && !suspends) throw new Error('this browser needs its second build, which is not in this folder.')
  return WebAssembly.compileStreaming(response)
}

export const program = compiled()
program.catch(() => {}) // is told of where it is waited for
