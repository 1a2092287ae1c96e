// All of the player's files as one, and back: an archive that any system opens, whose files are those of the desktop's folder.
import { tell } from './boxes.js'
import * as storage from './storage.js'
import { folder, lettersOf } from './storage.js'
import { download } from './download.js'
import { pack, unpack } from './archive.js'

// What the suite keeps: settings, tables, saved games, lists; in a folder of their own records of games and which entries they are of.
const isKept = name => /^[^/\\]+\.(ini|txt|sfl|csv|deal|json|record)$/i.test(name)
const isOfRecords = name => /\.record$|^Entries\.csv$/i.test(name)
const largest = name => (/\.csv$/i.test(name) ? 4 : 1) << 20 // bytes; a history grows

export function keepCopy () {
  const files = storage.names().filter(path => path.startsWith(folder))
    .map(path => [path.slice(folder.length), Uint8Array.from(storage.read(path), letter => letter.charCodeAt(0))])
  if (!files.length) return tell('Card Haven', 'There is nothing to keep yet.')
  download('card-haven.zip', 'application/zip', pack(files))
}

export function chooseFiles (multiple, chosen) {
  const field = document.createElement('input')
  field.type = 'file'
  field.multiple = multiple
  field.addEventListener('change', () => chosen([...field.files]))
  field.click()
}

export const bringBack = () => chooseFiles(true, take)

// The copy's archive, or single files of the desktop's folder.
export async function take (chosen) {
  try {
    const files = []
    for (const file of chosen) {
      const bytes = new Uint8Array(await file.arrayBuffer())
      files.push(...(/\.zip$/i.test(file.name) ? await unpack(bytes) : [[file.name, bytes]]))
    }
    const good = files.map(([name, bytes]) => [name.split('/').at(-1), bytes])
      .filter(([name, bytes]) => isKept(name) && bytes.length <= largest(name))
    if (!good.length) return tell('Card Haven', 'There are no files of Card Haven in it.')
    // Records last, and of them those that were made last first: what there is no room for is left out.
    good.sort(([a], [b]) => isOfRecords(a) - isOfRecords(b) || (a < b ? 1 : -1))
    for (const [name, bytes] of good) {
      const path = folder + (isOfRecords(name) ? 'records/' : '') + name
      if (!storage.write(path, lettersOf(bytes)) && !isOfRecords(name)) return tell('Card Haven', `The browser has no room for ${name}.`)
    }
    // What is open has read its files already.
    location.replace(location.pathname + location.search)
  } catch (error) {
    tell('Card Haven', `It can't be read: ${error.message}`)
  }
}

