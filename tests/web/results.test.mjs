// What the page tells of games that have ended: the line by the splash panel, the deal of the day, the result to copy.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { choose, findings, leave, look, open, press, settle, until, withBrowser } from './page.mjs'

const here = withBrowser()
const phone = { width: 390, height: 844, hasTouch: true, isMobile: true, deviceScaleFactor: 2 }

const opened = (page, game) => until(page, 'the game', now => now.window === `frm${game}`)
const notes = page => page.$$eval('.note.sheet', all => all.map(each => each.textContent))
const history = page => page.evaluate(() => (localStorage['card-haven:/card-haven/History.csv'] ?? '').split('\r\n').slice(1, -1))
const spoken = page => page.$eval('#live', each => each.textContent.trim())

// A game of Spirehold that pays nothing: its score is taken as soon as each round is dealt.
async function playOut (page) {
  const before = (await history(page)).length
  await press(page, 'Play')
  while ((await history(page)).length === before) {
    const now = await look(page)
    const take = now.buttons?.find(each => each.name === 'cmdTakeScore')
    if (take?.at) await page.mouse.click(...take.at)
    await settle(page)
  }
  await until(page, 'the end', now => now.buttons?.some(each => each.text === 'Play'))
  await page.waitForFunction(() => [...document.querySelectorAll('.note.sheet')].some(each => /Deal|deal/.test(each.textContent)))
}

// The selector's menu, and its entries.
async function openChoiceMenu (page) {
  await page.evaluate(() => [...document.querySelectorAll('[aria-haspopup=menu]')].find(each => each.textContent === 'Menu' && each.checkVisibility()).click())
  return page.$$eval('.menu .entry', all => all.map(each => [each.dataset.name, each.innerText.replace(/\s+/g, ' ').trim()]))
}

// What is laid on the clipboard by either way of doing it; `modern` is whether the browser has the newer one.
const catchCopies = modern => `(() => {
  window.copied = []
  Object.defineProperty(navigator, 'clipboard', { value: ${modern} ? { writeText: async text => { window.copied.push(text) } } : undefined })
  document.execCommand = () => window.copied.push(document.activeElement.value) > 0
})()`

test('a line by the splash panel compares the game, and its result can be copied', { timeout: 120000 }, async () => {
  for (const modern of [true, false]) {
    const page = await open(here.browser, `${here.server.address}#spirehold`, { speed: 20, before: catchCopies(modern) })
    await opened(page, 'Spirehold')
    await page.click('.menubar [data-name=mnuGame]')
    assert.ok(await page.$eval('.menu [data-name=copyResult]', each => each.disabled))
    await page.keyboard.press('Escape')
    await playOut(page)
    const line = (await history(page))[0].split(',')
    assert.deepEqual(await notes(page), [`Your first game at 45 seconds\nDeal ${line[9]}`])
    await choose(page, 'mnuGame', 'Copy Result')
    await page.waitForSelector('.announcement')
    assert.equal(await spoken(page), 'The result has been copied.')
    const [copied] = await page.evaluate(() => window.copied)
    assert.match(copied, new RegExp(`^Card Haven, Spirehold, deal ${line[9]}, \\d+ [A-Z][a-z]+ 20\\d\\d\n0 points {2}··\n$`))
    await playOut(page)
    assert.match((await notes(page))[0], /^Your second best of 2 at 45 seconds/)
    assert.deepEqual(page.troubles, [])
    await page.browserContext().close()
  }
})

test('the deal of the day: by the menu or the address, the first game counts', { timeout: 120000 }, async () => {
  const page = await open(here.browser, here.server.address, { speed: 20 })
  await until(page, 'the selector', now => now.window === 'frmSelect')
  const entries = await openChoiceMenu(page)
  assert.equal(entries.filter(([name]) => name?.startsWith('today')).length, 7)
  assert.deepEqual(await findings(page), [])
  await page.click('.menu [data-name=todaySpirehold]')
  await opened(page, 'Spirehold')
  await page.waitForFunction(() => location.hash === '#today-spirehold')
  assert.ok((await notes(page)).some(each => /^Deal of the day, .*the first game counts$/s.test(each)), JSON.stringify(await notes(page)))
  await page.click('.menubar [data-name=mnuGame]')
  assert.ok(await page.$eval('.menu [data-name=dealNumber]', each => each.disabled))
  await page.keyboard.press('Escape')
  await playOut(page)
  await playOut(page)
  assert.ok((await notes(page)).some(each => each.includes('practice, in no table')))
  const deals = (await history(page)).map(each => each.split(',')[9])
  assert.equal(deals[0], deals[1])
  await leave(page)
  await page.waitForFunction(() => location.hash === '')
  assert.ok((await openChoiceMenu(page)).some(([name, text]) => name === 'todaySpirehold' && text === 'Spirehold 0'))
  await page.keyboard.press('Escape')

  // The same by an address, on a phone.
  const other = await open(here.browser, `${here.server.address}#today-spirehold`, { viewport: phone, context: page.browserContext(), speed: 20 })
  await opened(other, 'Spirehold')
  assert.ok((await notes(other)).some(each => each.includes('played already')), JSON.stringify(await notes(other)))
  await leave(other)
  await openChoiceMenu(other)
  await other.tap('.menu [data-name=todayDuopick]')
  await opened(other, 'Duopick')
  await other.waitForFunction(() => location.hash === '#today-duopick')
  assert.deepEqual([...page.troubles, ...other.troubles], [])
  await page.browserContext().close()
})
