// A file that may be a record: whether to watch it, or to check it.
import { openBox, tell } from './boxes.js'
import { chooseFiles, take } from './copy.js'
import { verdictOn } from './host.js'
import { lettersOf } from './storage.js'
import { watch } from './watch.js'
import { pauseGame } from './windows.js'

const largest = 1 << 20

export function askForRecord () {
  pauseGame()
  chooseFiles(false, ([file]) => offer(file, false))
}

// What is dropped may be any of the player's files.
export async function offer (file, mayBeOther = true) {
  const isSmall = file.size <= largest
  const text = isSmall ? lettersOf(new Uint8Array(await file.arrayBuffer())) : ''
  if (mayBeOther && !text.startsWith('card-haven-record ')) return take([file])
  const box = openBox({
    title: 'Card Haven',
    text: `${file.name}\nWatch that game, or check whether its record holds?`,
    icon: 'question',
    answers: ['Watch', 'Check', 'Cancel'],
    first: 0
  }, number => {
    box.close()
    box.remove()
    if (number === 0) watch('', text)
    if (number === 1) tell('Card Haven', isSmall ? verdictOn(text) : 'no record: it is no file of up to 1 MB')
  })
}
