// How this player wants the suite drawn and heard; kept beside the program's files, and unknown to the games.
import { read, write } from './storage.js'

const file = '/card-haven/web.json'
const first = {
  zoom: 100, fourColours: false, highContrast: false, lessMotion: false, waves: 100, music: 100, keepsRecords: true, seen: [], lastName: '', lastGame: ''
}

function kept () {
  try {
    const told = JSON.parse(read(file) ?? '{}')
    return Object.fromEntries(Object.entries(first).map(([key, value]) =>
      [key, typeof told[key] === typeof value && Array.isArray(told[key]) === Array.isArray(value) ? told[key] : value]))
  } catch {
    return { ...first }
  }
}

export const view = kept()
const asked = {
  motion: matchMedia('(prefers-reduced-motion: reduce)'),
  contrast: matchMedia('(prefers-contrast: more)')
}
export const browserStopsMotion = () => asked.motion.matches
export const calm = () => view.lessMotion || asked.motion.matches

const listeners = []
export const onView = listener => listeners.push(listener)

// What has changed is written over what another tab has left.
export function alter (change) {
  write(file, JSON.stringify({ ...kept(), ...change }))
  Object.assign(view, change)
  show()
}

export function show () {
  const { classList } = document.documentElement
  classList.toggle('strong', view.highContrast)
  classList.toggle('calm', calm())
  for (const listener of listeners) listener()
}

if (read(file) === null && asked.contrast.matches) view.highContrast = true
asked.motion.addEventListener('change', show)
