// The suite's pictures, by their number in the catalogue. They come as one file, and each is an image of its own, made when it is
// first shown: its address holds all of it, so it is there in the same frame, and the browser forgets it when no card shows it.
let files = []
let texts = {}
const urls = new Map()
let fourColours = false

export const kinds = { other: 0, back: 1, pile: 2, place: 3 }

export async function load () {
  texts = await (await fetch('pictures.json')).json()
}

// As the program tells them: file, width, height, kind.
export function setCatalogue (catalogue) {
  files = catalogue
}

export function setFourColours (four) {
  fourColours = four
}

export function urlOf (file) {
  const name = fourColours && 'four-colour/' + file in texts ? 'four-colour/' + file : file
  if (!urls.has(name) && name in texts) urls.set(name, 'data:image/svg+xml,' + texts[name].replace(/[%#\s]+/g, encodeURIComponent))
  return urls.get(name)
}
export const pictureUrl = number => files[number - 1] ? urlOf(files[number - 1][0]) : undefined
export const sizeOf = number => files[number - 1] ? { width: files[number - 1][1], height: files[number - 1][2] } : { width: 71, height: 96 }
export const kindOf = number => files[number - 1]?.[3] ?? kinds.other
