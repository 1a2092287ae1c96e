// The statistics in the page: the console's figures of the same history, by mouse, keys and touch, and what is saved of them.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { answer, choose, findings, open, press, settle, until, withBrowser } from './page.mjs'
import { consoleSays } from './records.mjs'

const here = withBrowser()
const phone = { width: 390, height: 844, hasTouch: true, isMobile: true, deviceScaleFactor: 2 }
const hostile = '<img src=x onerror=alert(1)>'

const header = 'ended,game,limit,goal,custom,rounds,score,place,seconds,deal,end,record\r\n'
const line = (day, game, score, rest = '0,100,5,played') =>
  `${day}T12:00:00+00:00,${game},${game === 'Sumfall' ? '90,11' : '45,'},0,2,${score},${rest},\r\n`
const daysAgo = days => new Date(Date.now() - days * 864e5).toISOString().slice(0, 10)

// So many games, spread over the last half year, one of them unknown here; some are given up. Lines that name none are passed over.
function historyOf (count) {
  let seed = 5
  const chance = () => (seed = (seed * 1103515245 + 12345) % 2147483648) / 2147483648
  let text = header
  for (let i = 0; i < count; ++i) {
    const game = ['Sumfall', 'Duopick', 'Spirehold', 'Script', hostile][Math.floor(chance() * 5)]
    text += line(daysAgo(Math.floor(180 * (count - i) / count)), game, Math.floor(chance() * 90000) - 500, `0,${Math.floor(chance() * 200)},5,${chance() > 0.9 ? 'given-up' : 'played'}`)
  }
  return text + 'a line that is damaged\r\n'
}
const histories = { none: '', one: header + line(daysAgo(0), 'Spirehold', 1234), many: historyOf(20000) }

// Keeps what is given to the player instead of saving it.
const catchFiles = () => {
  window.saved = {}
  const blobs = {}
  URL.createObjectURL = blob => {
    const url = `#${Object.keys(blobs).length}`
    blobs[url] = blob
    return url
  }
  HTMLAnchorElement.prototype.click = async function () {
    const bytes = new Uint8Array(await blobs[this.getAttribute('href')].arrayBuffer())
    window.saved[this.download] = Array.from(bytes, byte => String.fromCharCode(byte)).join('')
  }
}

const withHistory = (text, view = {}) => `(() => {
  if (!location.host) return
  localStorage['card-haven:/card-haven/History.csv'] ??= ${JSON.stringify(text)}
  localStorage['card-haven:/card-haven/web.json'] ??= ${JSON.stringify(JSON.stringify(view))}
  ;(${catchFiles})()
})()`

// From the selector, by a click or a tap.
async function openStatistics (page) {
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await page.evaluate(() => [...document.querySelectorAll('[aria-haspopup=menu]')].find(each => each.textContent === 'Menu' && each.checkVisibility()).click())
  await page.click('.menu [data-name=statistics]')
  await page.waitForSelector('.statistics[open]')
  await settle(page)
}

const rowsOf = page => page.$$eval('.statistics tbody tr', all => all.map(row => [...row.children].map(cell => cell.textContent)))
const save = async (page, name, file) => {
  await page.click(`.statistics [data-name=${name}]`)
  await page.waitForFunction(file => window.saved[file] !== undefined, {}, file)
  return page.evaluate(file => window.saved[file], file)
}

// The console's table: a name of a game may hold blanks, all other columns don't.
function consoleRows (text) {
  return consoleSays({ 'History.csv': text }, '--statistics').trimEnd().split('\n').slice(1).map(row => {
    const [, game, rest] = /^(.*?) +((?:[-\d]+ +){9}[-\d]+)$/.exec(row)
    return [game, ...rest.split(/ +/)]
  })
}

for (const [name, text] of Object.entries(histories)) {
  test(`statistics of ${name}`, { timeout: 60000 }, async () => {
    const page = await open(here.browser, here.server.address, { before: withHistory(text) })
    await openStatistics(page)
    assert.deepEqual(await findings(page), [])
    const rows = await rowsOf(page)
    const plain = cell => cell.replaceAll(',', '').replace('\u2013', '-')
    const expected = consoleRows(text)
    assert.deepEqual(rows.map(([game, , games, out, best, average, median, , bonus]) => [game, ...[games, out, best, average, median, bonus].map(plain)]),
      expected.map(([game, , , , games, out, best, average, median, bonus]) => [game, games, out, best, average, median, bonus]))
    assert.equal(rows.length, { none: 0, one: 1, many: 4 }[name])
    if (!rows.length) {
      assert.match(await page.$eval('.statistics .nothing', each => each.textContent), /^Nothing has been played yet/)
      assert.ok(await page.$$eval('.statistics [data-name^=save]', all => all.every(each => each.disabled)))
    } else {
      const table = await save(page, 'saveTable', 'statistics.csv')
      assert.deepEqual(table.split('\r\n').slice(1, -1).map(row => {
        const [game, limit, goal, custom, , games, out, best, average, median, , bonus, seconds] = row.split(',')
        return [game, limit, goal || '-', custom, games, out, best || '-', average || '-', median || '-', bonus, seconds]
      }), expected)
      assert.match(await save(page, 'saveDrawing', 'statistics.svg'), /^<svg .*<text/s)
      assert.match(await save(page, 'savePicture', 'statistics.png'), /^\x89PNG/)
    }
    assert.equal(await page.$$eval('.statistics img', all => all.length), 0) // a name is text, never markup
    await page.click('.statistics [data-name=close]')
    await page.waitForSelector('.statistics', { hidden: true })
    assert.deepEqual(page.troubles, [])
    await page.browserContext().close()
  })
}

test('statistics by keys, from a game that pauses meanwhile', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#duopick`, { before: withHistory(histories.many, { highContrast: true }), speed: 5 })
  await until(page, 'the game', now => now.window === 'frmDuopick')
  await page.keyboard.press('F2')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  await choose(page, 'view', 'Statistics...')
  await page.waitForSelector('.statistics[open] svg')
  assert.deepEqual(await findings(page), [])
  const chosen = () => page.evaluate(() => [document.querySelector('[aria-selected=true]').textContent, document.querySelector('.statistics .title').textContent,
    document.activeElement.textContent])
  assert.match((await chosen())[0], /^Duopick/) // that of the game
  const shapes = await page.$eval('.statistics svg', each => each.outerHTML)
  await page.keyboard.press('Home')
  const [first, title, active] = await chosen()
  assert.match(first, /^Sumfall/)
  assert.match(title, /^Sumfall, 90 seconds, goal 11$/)
  assert.equal(active, first)
  assert.notEqual(await page.$eval('.statistics svg', each => each.outerHTML), shapes)
  await page.keyboard.press('ArrowUp')
  assert.equal((await chosen())[0], first)
  await page.keyboard.press('Escape')
  await page.waitForSelector('.statistics', { hidden: true })
  const game = await until(page, 'the round', now => now.places?.some(each => each.playable))
  assert.ok(game.buttons.some(each => each.text === 'Pause'))
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('statistics that can\'t be fetched are told of, and there the next time', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address, {
    before: () => {
      const all = window.fetch
      window.fetch = (...asked) => {
        if (!/statistics/.test(asked[0])) return all(...asked)
        window.fetch = all
        return Promise.reject(new TypeError('no network'))
      }
    }
  })
  const ask = async () => {
    await page.evaluate(() => document.querySelector('.choicemenu').click())
    await page.click('.menu [data-name=statistics]')
  }
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await ask()
  assert.match((await until(page, 'the box', now => now.box !== undefined)).box, /can't be shown: no network/)
  await answer(page, 'OK')
  await ask()
  await page.waitForSelector('.statistics[open] .nothing')
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('statistics by touch: deals of the day with their run, and everything can be reached', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address, { before: withHistory(''), viewport: phone, speed: 20 })
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await page.evaluate(() => { location.hash = '#today-spirehold' })
  await until(page, 'the game', now => now.window === 'frmSpirehold')
  await press(page, 'Play')
  for (let rounds = 0; rounds < 2; ++rounds) {
    await until(page, 'the round', now => now.places?.some(each => each.playable))
    await press(page, 'cmdTakeScore')
  }
  await until(page, 'the end', now => now.buttons?.some(each => each.text === 'Play'))
  await page.evaluate(() => [...document.querySelectorAll('#strip [data-name=view]')][0].click())
  await page.tap('.menu [data-name=statistics]')
  await page.waitForSelector('.statistics[open] svg')
  const rows = await rowsOf(page)
  assert.equal(rows[1][1], 'deal of the day, run 1, longest 1')
  await page.tap('.statistics tbody tr:last-child')
  assert.match(await page.$eval('.statistics .title', each => each.textContent), /run 1, longest 1$/)
  const reach = await page.evaluate(() => {
    const body = document.querySelector('.statistics .body')
    body.scrollTop = 1e6
    const chart = document.querySelector('.statistics svg').getBoundingClientRect()
    const low = [...document.querySelectorAll('.statistics button, .statistics tbody tr')].map(each => each.getBoundingClientRect().height)
    return { chart: chart.bottom - body.getBoundingClientRect().bottom, wide: body.scrollWidth - body.clientWidth, low: matchMedia('(pointer: coarse)').matches ? Math.min(...low) : 44 }
  })
  assert.ok(reach.chart <= 0 && reach.wide <= 0 && reach.low >= 43.9, JSON.stringify(reach))
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})
