// The suite's pictures, by their number in the catalogue. They come as one file, and each is an image of its own.
let files = []
const urls = new Map()
const kept = [] // images that were asked for once stay drawn
let fourColours = false

export const kinds = { other: 0, back: 1, pile: 2, place: 3 }

export async function load () {
  const all = await (await fetch('pictures.json')).json()
  for (const [name, text] of Object.entries(all)) {
    urls.set(name, URL.createObjectURL(new Blob([text], { type: 'image/svg+xml' })))
  }
}

// As the program tells them: file, width, height, kind.
export function setCatalogue (catalogue) {
  files = catalogue
}

// What isn't drawn before it shows would be missing for a moment.
export function warm () {
  for (const url of urls.values()) {
    const image = new Image()
    image.src = url
    kept.push(image)
  }
}

export function setFourColours (four) {
  fourColours = four
}

export const urlOf = file => urls.get(fourColours && urls.has('four-colour/' + file) ? 'four-colour/' + file : file)
export const pictureUrl = number => files[number - 1] ? urlOf(files[number - 1][0]) : undefined
export const sizeOf = number => files[number - 1] ? { width: files[number - 1][1], height: files[number - 1][2] } : { width: 71, height: 96 }
export const kindOf = number => files[number - 1]?.[3] ?? kinds.other
