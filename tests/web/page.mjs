// A browser without a screen, the page served on this machine, and a player who clicks what can be played.
import { spawn } from 'node:child_process'
import { once } from 'node:events'
import { readFileSync } from 'node:fs'
import { createRequire } from 'node:module'
import { after, before } from 'node:test'
import puppeteer from 'puppeteer-core'

const site = process.env.CARDHAVEN_WEB_SITE ?? 'build/web/site'

// Serves the folder until `stop` is called.
export async function serve (folder = site, port = 0) {
  const server = spawn('scripts/serve-web', [folder, String(port)], { stdio: ['ignore', 'pipe', 'inherit'] })
  const [line] = await once(server.stdout, 'data')
  const address = /http:\S+/.exec(String(line))[0]
  return {
    address,
    stop: async () => {
      if (server.killed) return
      server.kill()
      await once(server, 'exit')
    }
  }
}

// CARDHAVEN_BROWSER is chromium or firefox. CARDHAVEN_JSPI=no: a Firefox that can't suspend WebAssembly, as WebKit.
const browsers = {
  chromium: { executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox', '--disable-dev-shm-usage'] },
  firefox: {
    browser: 'firefox',
    executablePath: process.env.FIREFOX ?? '/usr/bin/firefox-esr',
    extraPrefsFirefox: { 'javascript.options.wasm_js_promise_integration': process.env.CARDHAVEN_JSPI !== 'no' }
  }
}
export const launch = () => puppeteer.launch({ ...browsers[process.env.CARDHAVEN_BROWSER ?? 'chromium'], defaultViewport: { width: 1280, height: 1024 } })

// For the tests of one file: the page, served, and a browser, which are gone after the last of them.
export function withBrowser () {
  const here = {}
  before(async () => {
    here.server = await serve()
    here.browser = await launch()
  })
  after(async () => {
    await here.browser?.close()
    await here.server?.stop()
  })
  return here
}

// A page of a player of its own. What it complains of is in `troubles`; `speed` lets its clock go faster.
export async function open (browser, address, { speed = 1, context, viewport, before } = {}) {
  const own = context ?? await browser.createBrowserContext()
  const page = await own.newPage()
  if (viewport) await page.setViewport(viewport)
  page.troubles = []
  page.on('console', message => { if (message.type() === 'error') page.troubles.push(message.text()) })
  page.on('pageerror', error => page.troubles.push(error.stack ?? String(error)))
  page.on('request', request => {
    const { protocol, host } = new URL(request.url())
    if (protocol.startsWith('http') && host !== new URL(address).host) page.troubles.push(`asks ${request.url()}`)
  })
  if (speed !== 1) await page.evaluateOnNewDocument(hasten, speed)
  if (before) await page.evaluateOnNewDocument(before)
  await page.goto(address)
  await page.waitForSelector('.window .control')
  return page
}

function hasten (speed) {
  const now = performance.now.bind(performance)
  const later = window.setTimeout.bind(window)
  performance.now = () => now() * speed
  window.setTimeout = (deed, milliseconds, ...rest) => later(deed, milliseconds / speed, ...rest)
}

// --- What a player finds, and sees ------------------------------------------------------------------------------------------

// Tables in which every score has a place.
export const openTables = () => {
  const rows = 'Quillmark, -1000000\r\n'.repeat(10) + '\r\n'
  for (const name of ['BlackrushHiScores90', 'DuopickHighScores45', 'HiScores60', 'HiScores90_11', 'HandgridHighScores75', 'SpireholdHiScores45',
    'TreyshiftHiScores120']) {
    localStorage.setItem(`card-haven:/card-haven/${name}.Txt`, rows)
  }
}

// Anything that can be played, the same in each run.
export function chooser (seed) {
  return list => {
    seed = (seed * 1103515245 + 12345) % 2147483648
    return list[Math.floor(seed / 2147483648 * list.length)]
  }
}

// The window in front, and what can be done there: places with the middle of a part that shows.
export const look = page => page.evaluate(() => {
  const box = [...document.querySelectorAll('dialog.box-window[open], dialog.keys-window[open]')].at(-1)
  if (box) return { box: box.querySelector('.said, table')?.innerText ?? '', answers: [...box.querySelectorAll('.answers button')].map(each => each.textContent) }
  const shown = [...document.querySelectorAll('dialog.modal[open] .window, #desk > .window:not([hidden])')]
  const window = shown.find(each => each.closest('dialog')) ?? shown.at(-1)
  if (!window) return { window: '' }
  const modal = [...document.querySelectorAll('dialog.modal[open] .window')].at(-1) ?? window
  const point = element => {
    const rect = element.getBoundingClientRect()
    for (const [x, y] of [[0.5, 0.5], [0.1, 0.9], [0.5, 0.95], [0.9, 0.9], [0.1, 0.5], [0.9, 0.1], [0.1, 0.1], [0.5, 0.1]]) {
      const at = [rect.left + x * rect.width, rect.top + y * rect.height]
      const top = document.elementsFromPoint(...at).map(each => each.closest('.control')).find(each => each && getComputedStyle(each).pointerEvents !== 'none')
      if (top === element) return at
    }
    return null
  }
  const name = element => element.dataset.name
  const places = [...modal.querySelectorAll('.image[role=button]')].map(each => ({
    name: name(each), text: each.getAttribute('aria-label'), playable: each.getAttribute('aria-disabled') === 'false',
    selected: each.getAttribute('aria-pressed') === 'true', at: point(each)
  })).filter(each => each.at)
  const buttons = [...modal.querySelectorAll('button.control')].filter(each => each.offsetParent && !each.disabled)
    .map(each => ({ name: name(each), text: each.textContent.trim(), said: each.getAttribute('aria-label'), at: point(each) }))
  return { window: modal.dataset.name, places, buttons, text: modal.innerText }
})

export async function press (page, name) {
  const { buttons } = await look(page)
  const button = buttons?.find(each => each.name === name || each.text === name)
  if (!button?.at) throw new Error(`${name} can't be pressed: ${JSON.stringify(await look(page))}`)
  await page.mouse.click(...button.at)
}

// An entry of a menu, both by clicks, as soon as it can be chosen.
export async function choose (page, menu, entry, patience = 20000) {
  for (const end = Date.now() + patience; ;) {
    await page.click(`.menubar [data-name=${menu}]`)
    const seen = await page.evaluate(() => [...document.querySelectorAll('.menu .entry:not(:disabled)')].map(each => {
      const { left, top, width, height } = each.getBoundingClientRect()
      return [each.querySelector('.caption').textContent, left + width / 2, top + height / 2]
    }))
    const found = seen.find(([text]) => text === entry)
    if (found) return page.mouse.click(found[1], found[2])
    if (Date.now() > end) throw new Error(`${entry} can't be chosen of ${JSON.stringify(seen)}: ${JSON.stringify(await look(page))}`)
    await page.keyboard.press('Escape')
    await settle(page)
  }
}

// From a game to the selector, whatever it asks.
export async function leave (page) {
  await press(page, 'Exit')
  const now = await until(page, 'the selector or a question', each => each.box !== undefined || each.window === 'frmSelect')
  if (now.box !== undefined) await answer(page, now.answers[0])
  await until(page, 'the selector', each => each.window === 'frmSelect')
}

export async function answer (page, text) {
  await page.evaluate(text => [...document.querySelectorAll('dialog.box-window[open], dialog.keys-window[open]')].at(-1)
    .querySelectorAll('.answers button').forEach(each => { if (each.textContent === text) each.click() }), text)
}

// Two turns of the page: what was done has come to the program, and shows.
export const settle = page => page.evaluate(() => new Promise(resolve => requestAnimationFrame(() => requestAnimationFrame(resolve))))

export async function until (page, what, seen, patience = 20000) {
  const end = Date.now() + patience
  for (let now = await look(page); ; now = await look(page)) {
    if (seen(now)) return now
    if (Date.now() > end) throw new Error(`${what} has not come: ${JSON.stringify(now).slice(0, 2000)}`)
    await settle(page)
  }
}

// What axe finds wrong with what is shown.
const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core'), 'utf8')
export async function findings (page) {
  await page.evaluate(axe)
  const { violations } = await page.evaluate(() => window.axe.run(document, { resultTypes: ['violations'] }))
  return violations.map(each => `${each.id}: ${each.nodes.map(node => node.html.slice(0, 200) + ' ' + node.failureSummary).slice(0, 3).join(' | ')}`)
}
