// The View menu: how the page shows and sounds, and the player's files as a whole.
import { alter, browserStopsMotion, calm, view } from './view.js'
import { tell } from './boxes.js'
import { bringBack, keepCopy } from './copy.js'

const zooms = [50, 75, 100, 125, 150]
const volumes = [100, 75, 50, 25, 0]

const flag = (name, text, key) => ({ name, text, checked: view[key], choose: () => alter({ [key]: !view[key] }) })
const line = { line: true }

// Fetched when it is asked for, once.
let fetching = false
async function showStatistics (window) {
  if (fetching) return
  fetching = true
  try {
    const { show } = await import('./statistics.js')
    await show(window)
  } catch (error) {
    tell('Statistics', `They can't be shown: ${error.message}`)
  }
  fetching = false
}

export function viewEntries (window) {
  const volume = (text, key) => ({
    text,
    entries: volumes.map(percent => ({
      name: `${key}${percent}`,
      text: percent === 0 ? 'Off' : `${percent} %`,
      checked: view[key] === percent,
      choose: () => alter({ [key]: percent })
    }))
  })
  return [
    {
      text: 'Size',
      entries: zooms.map(percent => ({
        name: `zoom${percent}`,
        text: percent === 100 ? '&Fit to the page' : `${percent} % of it`,
        checked: view.zoom === percent,
        choose: () => alter({ zoom: percent })
      }))
    },
    {
      name: 'fullScreen',
      text: 'Full &Screen',
      checked: document.fullscreenElement !== null,
      enabled: document.fullscreenEnabled,
      choose: () => document.fullscreenElement ? document.exitFullscreen() : document.documentElement.requestFullscreen()
    },
    line,
    flag('fourColours', 'Four-&Colour Suits', 'fourColours'),
    flag('highContrast', '&High Contrast', 'highContrast'),
    { ...flag('lessMotion', 'Less M&otion', 'lessMotion'), checked: calm(), enabled: !browserStopsMotion() },
    line,
    volume('Sounds', 'waves'),
    volume('Music', 'music'),
    line,
    { name: 'statistics', text: 'S&tatistics...', choose: () => showStatistics(window) },
    line,
    flag('keepRecords', 'Keep Records of &Games', 'keepsRecords'),
    { name: 'keep', text: '&Keep a Copy', choose: keepCopy },
    { name: 'bring', text: '&Bring Back...', choose: bringBack },
    { name: 'openRecord', text: 'Watch or Check a &Record...', choose: async () => (await import('./offer.js')).askForRecord() }
  ]
}
