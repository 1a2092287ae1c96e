// The program, compiled while the page's other modules are still on their way.
export const program = WebAssembly.compileStreaming(fetch('card-haven.wasm'))
program.catch(() => {}) // told when it is waited for
