// The program's files in the browser's storage: one entry a file, under its whole path, read anew at each call, since there
// may be another tab. Bytes are kept as letters of the same number.
import { shown } from './shown.js'

const prefix = 'card-haven:'
export const folder = '/card-haven/'
const records = `${folder}records/`

function store () {
  try {
    return window.localStorage
  } catch {
    return null // the browser lets us keep nothing
  }
}

export const lettersOf = bytes => Array.from(bytes, byte => String.fromCharCode(byte)).join('')

// Null if there is no such file.
export function read (path) {
  return store()?.getItem(prefix + path) ?? null
}

// False if there is no room, or we may keep nothing. Records of games make room for all else.
export function write (path, text) {
  if (shown) return true
  const kept = store()
  while (kept) {
    try {
      kept.setItem(prefix + path, text)
      return true
    } catch {
      const oldest = path.startsWith(records) ? null : recordsByWorth().at(-1)
      if (!oldest) return false
      remove(oldest)
    }
  }
  return false
}

// Those of table entries first, and newer ones before older ones, as their names tell.
function recordsByWorth () {
  const entries = read(`${records}Entries.csv`) ?? ''
  const worth = path => Number(entries.includes(path.slice(records.length)))
  return names().filter(path => path.startsWith(records) && path.endsWith('.record'))
    .sort((a, b) => worth(b) - worth(a) || (a < b ? 1 : -1))
}

export function remove (path) {
  if (!shown) store()?.removeItem(prefix + path)
}

export function names () {
  return Object.keys(store() ?? {}).filter(key => key.startsWith(prefix)).map(key => key.slice(prefix.length))
}
