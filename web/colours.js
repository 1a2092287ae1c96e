// Colours as the program tells them, and as they can be read on what they stand on.
export const ink = [0x22, 0x1d, 0x24]
export const ivory = [0xff, 0xfb, 0xee]
export const box = [0xfb, 0xf6, 0xe8]
export const panel = [0xec, 0xe0, 0xc2]
export const paper = [0xf6, 0xf0, 0xe0]
export const baize = [0x2b, 0x7c, 0x57]
export const black = [0, 0, 0]
export const mark = [0xff, 0xe0, 0]
const white = [255, 255, 255]

export const css = ([red, green, blue]) => `rgb(${red} ${green} ${blue})`
// Blue, green, red; below 0 it is a colour of the system's: that of letters is the only one in use.
export const fromTold = told => told < 0 ? ink : [told & 0xff, (told >> 8) & 0xff, (told >> 16) & 0xff]

const linear = part => part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4
const luminance = ([red, green, blue]) =>
  0.2126 * linear(red / 255) + 0.7152 * linear(green / 255) + 0.0722 * linear(blue / 255)

export function contrast (a, b) {
  const [dark, light] = [luminance(a), luminance(b)].sort((x, y) => x - y)
  return (light + 0.05) / (dark + 0.05)
}

export const isNeutral = colour => Math.max(...colour) - Math.min(...colour) < 32

// The same on black, for high contrast.
export function strong (told) {
  if (contrast(told, black) >= 7) return told
  const [red, green, blue] = told
  return red > 120 && green < 100 && blue < 100 ? mark : white
}

// The colour itself, or as much darker or lighter as reading asks for.
export function lettersOn (ground, told) {
  const light = contrast(ground, black) > contrast(ground, white)
  if (isNeutral(told)) return light ? ink : ivory
  const readable = 4.6
  const steps = 20
  const end = light ? 0 : 255
  let colour = told
  for (let step = 1; step <= steps && contrast(colour, ground) < readable; ++step) {
    colour = told.map(part => Math.trunc(part + (end - part) * step / steps))
  }
  return colour
}
