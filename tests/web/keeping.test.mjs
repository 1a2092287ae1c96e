// What is kept from one visit to the next: settings and tables, in two tabs, without a network, where there is no room.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { answer, choose, leave, open, press, serve, settle, until, withBrowser } from './page.mjs'

const here = withBrowser()

const isTicked = async (page, entry) => {
  await page.click('.menubar [data-name=mnuOptions]')
  const ticked = await page.evaluate(entry => [...document.querySelectorAll('.menu .entry')]
    .find(each => each.querySelector('.caption').textContent === entry).getAttribute('aria-checked'), entry)
  await page.keyboard.press('Escape')
  return ticked === 'true'
}
const opened = async (page, game) => {
  await until(page, 'the game', now => now.window === `frm${game}`)
  await settle(page)
}

test('a setting outlives a reload in the middle of a round, and closing the game', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#spirehold`)
  await opened(page, 'Spirehold')
  assert.ok(await isTicked(page, 'Play Sounds'))
  await choose(page, 'mnuOptions', 'Play Sounds')
  await press(page, 'Play')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  await page.reload()
  await opened(page, 'Spirehold')
  assert.ok(!await isTicked(page, 'Play Sounds'))
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('the way back leads to the selector, with the question in a game', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address)
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await press(page, 'cmdTreyshift')
  await opened(page, 'Treyshift')
  await press(page, 'Play')
  await until(page, 'the round', now => now.buttons?.some(each => each.text === 'Pause'))
  await page.goBack()
  const asked = await until(page, 'the question', now => now.box !== undefined)
  await answer(page, asked.answers.at(-1))
  await until(page, 'the game', now => now.window === 'frmTreyshift')
  assert.match(page.url(), /#treyshift$/)
  await page.goBack()
  await until(page, 'the question', now => now.box !== undefined)
  await answer(page, asked.answers[0])
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await page.waitForFunction(() => location.hash === '')
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('of two tabs none loses what the other has kept', { timeout: 60000 }, async () => {
  const context = await here.browser.createBrowserContext()
  const one = await open(here.browser, `${here.server.address}#sumfall`, { context })
  await opened(one, 'Sumfall')
  const two = await open(here.browser, `${here.server.address}#duopick`, { context })
  await opened(two, 'Duopick')
  await choose(two, 'mnuOptions', 'Play Sounds')
  await leave(two)
  await one.bringToFront()
  await leave(one)
  const names = await one.evaluate(() => Object.keys(localStorage).filter(each => each.endsWith('.Ini')).sort())
  assert.ok(names.length >= 2, names.join())
  assert.deepEqual([...one.troubles, ...two.troubles], [])
  await context.close()
})

test('a browser without room is told of once, and play goes on', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#handgrid`, {
    before: () => { Storage.prototype.setItem = () => { throw new DOMException('full', 'QuotaExceededError') } }
  })
  const told = await until(page, 'the word about it', now => now.box !== undefined)
  assert.match(told.box, /can't be kept/)
  await answer(page, 'OK')
  await opened(page, 'Handgrid')
  await choose(page, 'mnuOptions', 'Play Sounds')
  await leave(page)
  await press(page, 'cmdHandgrid')
  await opened(page, 'Handgrid')
  await press(page, 'Play')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  await page.browserContext().close()
})

test('a page that was opened once opens without a network', { timeout: 60000 }, async t => {
  const own = await serve()
  t.after(own.stop)
  const page = await open(here.browser, own.address)
  const programs = await page.evaluate(async () => {
    await navigator.serviceWorker.ready
    const cache = await caches.open((await caches.keys())[0])
    const kept = (await cache.keys()).map(each => each.url.split('/').at(-1)).filter(each => /^card-haven.*wasm$/.test(each))
    return { kept, wanted: ['Suspending' in WebAssembly ? 'card-haven.wasm' : 'card-haven-asyncify.wasm'] }
  })
  assert.deepEqual(programs.kept, programs.wanted) // of the two builds the one that runs here
  await own.stop()
  await page.goto(`${own.address}#fivestack`)
  await page.reload()
  await page.waitForSelector('.window .control')
  await opened(page, 'Fivestack')
  await choose(page, 'view', 'Statistics...')
  await page.waitForSelector('.statistics[open]')
  await page.keyboard.press('Escape')
  await press(page, 'Play')
  await until(page, 'the round', now => now.buttons?.some(each => each.said && /^Hit/.test(each.text)))
  await choose(page, 'mnuHelp', 'Watch a Game')
  await page.waitForFunction(() => /^Round 1/.test(document.querySelector('.watchbar .where')?.textContent))
  await page.browserContext().close()
})

test('all files leave as one archive, and come back', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#blackrush`)
  await opened(page, 'Blackrush')
  await leave(page)
  const same = await page.evaluate(async () => {
    const { pack, unpack } = await import('./archive.js')
    const files = Object.entries(localStorage).filter(([name]) => name.startsWith('card-haven:'))
      .map(([name, text]) => [name.split('/').at(-1), Uint8Array.from(text, each => each.charCodeAt(0))])
    const back = await unpack(pack(files))
    return files.length > 0 && JSON.stringify(back.map(([name, bytes]) => [name, [...bytes]])) === JSON.stringify(files.map(([name, bytes]) => [name, [...bytes]]))
  })
  assert.ok(same)
  await page.browserContext().close()
})
