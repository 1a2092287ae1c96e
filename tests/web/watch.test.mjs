// Records of games: watched, marked, checked, and kept where there is little room.
import assert from 'node:assert/strict'
import { readFileSync } from 'node:fs'
import { test } from 'node:test'
import { answer, choose, look, open, press, settle, until, withBrowser } from './page.mjs'
import { consoleSays, files, recordsOf } from './records.mjs'

const here = withBrowser()
const axe = readFileSync(new URL('./node_modules/axe-core/axe.min.js', import.meta.url), 'utf8')
const demonstration = readFileSync('data/demonstrations/Sumfall.record', 'latin1')
const [, points] = /end Sumfall 90_11 (\d+)/.exec(demonstration)
const altered = demonstration.replace(`end Sumfall 90_11 ${points}`, 'end Sumfall 90_11 150000')

const bar = page => page.$eval('.watchbar', element => ({
  comment: element.querySelector('.comment').textContent,
  where: element.querySelector('.where').textContent,
  paused: element.querySelector('.pause').getAttribute('aria-pressed') === 'true',
  speed: [...element.querySelectorAll('.speed')].find(each => each.getAttribute('aria-pressed') === 'true')?.textContent
}))
async function barSays (page, what, seen, patience = 20000) {
  await page.waitForSelector('.watchbar')
  for (const end = Date.now() + patience; ;) {
    const now = await bar(page)
    if (seen(now)) return now
    if (Date.now() > end) throw new Error(`${what} has not come: ${JSON.stringify(now)}`)
    await settle(page)
  }
}
const recordedGame = page => page.frames().find(each => each.url().includes('?show'))
const left = page => page.waitForFunction(() => !document.querySelector('.watching') && !location.hash.startsWith('#watch'))

test('a demonstration is watched to its end, and the game on the page waits', { timeout: 120000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#sumfall`)
  await until(page, 'the game', now => now.window === 'frmSumfall')
  await press(page, 'Play')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  await choose(page, 'mnuHelp', 'Watch a Game')
  const begun = await barSays(page, 'a comment', now => now.comment !== '' && /^Round 1/.test(now.where))
  assert.equal(begun.speed, 'x1')
  assert.equal(await page.title(), `Sumfall, ${Number(points).toLocaleString('en')} points (recording)`)
  const kept = JSON.stringify(await files(page))
  const frame = recordedGame(page)
  await frame.waitForSelector('.hand') // where the next click will be
  await page.keyboard.press(' ')
  const stopped = await barSays(page, 'a stop', now => now.paused)
  await frame.click('[data-name=cmdEndGame], .window .button') // what the viewer does to the game doesn't get there
  await frame.click('.menubar [data-name=view]')
  assert.equal((await frame.$$('.menu, dialog[open]')).length, 0)
  await page.keyboard.press('ArrowRight')
  await barSays(page, 'the next deed', now => now.paused && now.where >= stopped.where)
  await page.evaluate(axe)
  const { violations } = await page.evaluate(() => window.axe.run('.watching', { iframes: false }))
  assert.deepEqual(violations.map(each => [each.id, each.nodes.map(node => node.html)]), [])
  await page.keyboard.press('8')
  await page.keyboard.press('PageDown')
  await barSays(page, 'round 2', now => /^Round 2/.test(now.where) && now.speed === 'x8')
  await page.focus('.watchbar input')
  await page.keyboard.press('ArrowLeft') // by rounds on the slider
  await barSays(page, 'round 1 or 2 anew', now => /^Round [12]/.test(now.where))
  for (let round = 0; round < 3; ++round) {
    await page.keyboard.press('PageDown')
    await settle(page)
  }
  await page.keyboard.press(' ')
  await barSays(page, 'the end', now => now.paused && /ends here/.test(now.comment), 90000)
  assert.equal(JSON.stringify(await files(page)), kept) // nothing of it is kept
  await page.keyboard.press('Escape')
  await left(page)
  assert.match(page.url(), /#sumfall$/)
  const waits = await until(page, 'the paused round', now => now.buttons?.some(each => each.text === 'Resume'))
  assert.equal(waits.window, 'frmSumfall')
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('nothing of a frame is left when the viewer leaves', { timeout: 60000, skip: process.env.CARDHAVEN_BROWSER === 'firefox' }, async () => {
  const page = await open(here.browser, here.server.address)
  const session = await page.createCDPSession()
  const heaps = [] // MB
  for (let times = 0; times < 4; ++times) {
    await page.evaluate(() => { import('./watch.js').then(({ watch }) => watch('demonstrations/Handgrid.record')) })
    await page.waitForFunction(() => /^Round/.test(document.querySelector('.watchbar .where')?.textContent))
    if (times % 2) await page.keyboard.press('Escape')
    else await page.goBack()
    await left(page)
    const heap = async () => {
      await session.send('HeapProfiler.collectGarbage')
      return (await page.metrics()).JSHeapUsedSize / 1e6
    }
    for (const end = Date.now() + 10000; await heap() > (heaps[0] ?? Infinity) + 0.7 && Date.now() < end;) await settle(page)
    heaps.push(await heap())
  }
  assert.ok(heaps.at(-1) < heaps[0] + 0.7, heaps.join()) // each would be 1.4 MB
  await page.browserContext().close()
})

// A table with three entries: one that is proved, one whose record was changed, one without any.
function keepRecords (points, holds, fails) {
  const put = (name, text) => localStorage.setItem(`card-haven:/card-haven/${name}`, text)
  put('HiScores90_11.Txt', `Ada, ${points}\r\nBob, 150000\r\nCy, 300\r\n`)
  put('records/20260101-000000-Sumfall-a.record', holds)
  put('records/20260102-000000-Sumfall-b.record', fails)
  put('records/Entries.csv', 'table,record,score,name\r\n' +
    `HiScores90_11.Txt,20260101-000000-Sumfall-a.record,${points},Ada\r\nHiScores90_11.Txt,20260102-000000-Sumfall-b.record,150000,Bob\r\n`)
}

test('marks stand at entries whose record holds, and show their games', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address)
  await page.evaluate(keepRecords, points, demonstration, altered)
  await press(page, 'cmdSumfall')
  await until(page, 'the game', now => now.window === 'frmSumfall')
  await choose(page, 'mnuOptions', 'View High Scores...')
  const mark = await page.waitForSelector('.proof')
  await new Promise(resolve => setTimeout(resolve, 500)) // nothing tells that no other one comes
  assert.deepEqual(await page.$$eval('.proof', all => all.map(each => each.dataset.name)), ['proof1'])
  await page.evaluate(axe)
  const { violations } = await page.evaluate(() => window.axe.run('dialog.modal'))
  assert.deepEqual(violations.map(each => [each.id, each.nodes.map(node => node.html)]), [])
  await mark.click()
  await barSays(page, 'the round', now => /^Round 1/.test(now.where))
  await page.goBack()
  await left(page)
  await until(page, 'the Hall of Fame', now => now.window === 'frmHighScores')
  await press(page, 'cmdClear')
  await until(page, 'the question', now => now.box !== undefined)
  await answer(page, 'Yes')
  await page.waitForFunction(() => !document.querySelector('.proof'))
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('on a phone marks stay beside their scores when it is turned', { timeout: 60000 }, async () => {
  const phone = { width: 390, height: 844, hasTouch: true, isMobile: true }
  const page = await open(here.browser, `${here.server.address}#sumfall`, { viewport: phone })
  await page.evaluate(keepRecords, points, demonstration, altered)
  const press = name => page.evaluate(name => [...document.querySelectorAll(`[data-name=${name}]`)].find(each => each.checkVisibility()).click(), name)
  await press('mnuOptions')
  await press('mnuViewHiScore')
  await page.waitForSelector('.proof')
  for (const turned of [false, true, false]) {
    await page.setViewport(turned ? { ...phone, width: phone.height, height: phone.width } : phone)
    await page.waitForFunction(turned => {
      const middleOf = element => element.getBoundingClientRect().top + element.getBoundingClientRect().height / 2
      const score = document.querySelector('[data-name="ScoreList(1)"] .letters')
      return innerWidth > innerHeight === turned && Math.abs(middleOf(document.querySelector('.proof')) - middleOf(score)) < 6
    }, {}, turned)
  }
  await page.browserContext().close()
})

test('a record dropped on the selector is checked or watched, also by its address', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address)
  await until(page, 'the selector', now => now.window === 'frmSelect')
  const drop = async (text, reply) => {
    await page.evaluate(text => {
      const dataTransfer = new DataTransfer()
      dataTransfer.items.add(new File([text], 'a <b>.record'))
      document.body.dispatchEvent(new DragEvent('drop', { dataTransfer, bubbles: true, cancelable: true }))
    }, text)
    const asked = await until(page, 'the question', now => now.answers?.includes('Watch'))
    assert.match(asked.box, /a <b>\.record/)
    await answer(page, reply)
  }
  for (const [text, verdict] of [[demonstration, new RegExp(`^holds Sumfall 90_11 ${points} `)], [altered, /^fails: line \d+: the game ended with/],
    ['card-haven-record 1\nrubbish', /^no record: /]]) {
    await drop(text, 'Check')
    const told = await until(page, 'the verdict', now => now.answers?.length === 1)
    assert.match(told.box.trim().split('\n').at(-1), verdict)
    await answer(page, 'OK')
  }
  await drop(altered, 'Watch')
  assert.match((await until(page, 'why not', now => now.answers?.length === 1)).box, /can't be watched: fails/)
  await answer(page, 'OK')
  await drop(demonstration, 'Watch')
  await barSays(page, 'the round', now => /^Round 1/.test(now.where))
  assert.equal(await page.evaluate(() => document.activeElement.className), 'pause')
  await page.keyboard.press('2') // which opens a game where no recording stands before the selector
  await barSays(page, 'double speed', now => now.speed === 'x2')
  await page.click('.watchbar .leave')
  await left(page)
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await page.goto('about:blank')
  await page.goto(`${here.server.address}#watch=demonstrations/Duopick.record`)
  await barSays(page, 'the round', now => /^Round 1/.test(now.where))
  await page.keyboard.press('Escape')
  await left(page)
  await until(page, 'the selector', now => now.window === 'frmSelect')
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

// A game that is ended at once and has its entry all the same.
async function playShortly (page) {
  await press(page, 'cmdSpirehold')
  await until(page, 'the game', now => now.window === 'frmSpirehold')
  await press(page, 'Play')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  for (let asked = null; !asked;) { // so soon after Play it is the second press of a double click
    await press(page, 'End Game')
    asked = await until(page, 'the question', now => now.box !== undefined, 600).catch(() => null)
  }
  await answer(page, 'Yes')
  await until(page, 'the name', now => now.window === 'frmHiScoreName')
  await page.keyboard.type('Ada')
  await press(page, 'cmdOK')
  await until(page, 'the Hall of Fame', now => now.window === 'frmHighScores')
  await press(page, 'cmdDone')
  await until(page, 'the game', now => now.window === 'frmSpirehold' && now.buttons.some(each => each.text === 'Play'))
}

const emptyTable = () => {
  if (location.protocol === 'http:') localStorage.setItem('card-haven:/card-haven/SpireholdHiScores45.Txt', 'Quillmark, -1000000\r\n')
}

test('records are kept beside the tables, unless the player wants none; they leave and come back', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address, { before: emptyTable })
  await playShortly(page)
  const kept = await files(page)
  assert.equal(recordsOf(kept).length, 1)
  assert.match(consoleSays(kept, '--verify-tables'), /Ada, 0: holds Spirehold 45 0 1 /)
  assert.match(kept['History.csv'], /Spirehold-[0-9a-f]{8}\.record/)
  await choose(page, 'view', 'Keep Records of Games')
  await press(page, 'Play')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  const came = await page.evaluate(async () => {
    const { pack } = await import('./archive.js')
    const { take } = await import('./copy.js')
    const prefix = 'card-haven:/card-haven/'
    const all = Object.entries(localStorage).filter(([name]) => name.startsWith(prefix))
    const archive = pack(all.map(([name, text]) => [name.slice(prefix.length), Uint8Array.from(text, each => each.charCodeAt(0))]))
    localStorage.clear()
    take([new File([archive], 'card-haven.zip')])
    return all.map(([name]) => name)
  })
  await page.waitForFunction(names => names.every(name => localStorage.getItem(name) !== null), {}, came)
  assert.equal(recordsOf(await files(page)).length, 1)
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('where there is no room for a record the game and its entry are kept', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address, {
    before: () => {
      const put = Storage.prototype.setItem
      const keep = (name, text) => put.call(localStorage, `card-haven:/card-haven/${name}`, text)
      keep('SpireholdHiScores45.Txt', 'Quillmark, -1000000\r\n')
      for (let i = 10; i < 99; ++i) keep(`records/202501${i}-000000-Sumfall-a.record`, 'x'.repeat(100))
      keep('records/Entries.csv', 'table,record,score,name\r\nHiScores90_11.Txt,20250110-000000-Sumfall-a.record,1,A\r\n')
      const size = () => Object.entries(localStorage).reduce((sum, [key, value]) => sum + key.length + value.length, 0)
      const most = size() + 10
      Storage.prototype.setItem = function (name, text) {
        const old = this.getItem(name)
        if (size() + text.length + (old === null ? name.length : -old.length) > most) throw new DOMException('full', 'QuotaExceededError')
        put.call(this, name, text)
      }
    }
  })
  await playShortly(page)
  const kept = await files(page)
  assert.match(kept['SpireholdHiScores45.Txt'], /^Ada, 0/)
  assert.equal(recordsOf(kept).filter(each => each.startsWith('card-haven-record')).length, 0)
  // Others have made room for settings and table, the oldest first, that of an entry last.
  const others = Object.keys(kept).filter(each => each.endsWith('.record')).map(each => Number(each.slice(14, 16)))
  assert.ok(others.length > 10 && others.length < 89, others.join())
  assert.ok(others.includes(10) && others.includes(98) && !others.includes(11), others.join())
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})
