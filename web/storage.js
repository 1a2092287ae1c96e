// The program's files in the browser's storage: one entry a file, under its whole path, read anew at each call, since there
// may be another tab. Bytes are kept as letters of the same number.
const prefix = 'card-haven:'

function store () {
  try {
    return window.localStorage
  } catch {
    return null // the browser lets us keep nothing
  }
}

// Null if there is no such file.
export function read (path) {
  return store()?.getItem(prefix + path) ?? null
}

// False if there is no room, or we may keep nothing.
export function write (path, text) {
  try {
    const kept = store()
    kept?.setItem(prefix + path, text)
    return kept !== null
  } catch {
    return false
  }
}

export function remove (path) {
  store()?.removeItem(prefix + path)
}

export function names () {
  return Object.keys(store() ?? {}).filter(key => key.startsWith(prefix)).map(key => key.slice(prefix.length))
}
