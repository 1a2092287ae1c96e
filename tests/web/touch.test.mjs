// A phone held either way: what is tapped is large enough, cards are played by taps and by dragging, and nothing scrolls.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { chooser, look, open, openTables, press, settle, until, withBrowser } from './page.mjs'

const here = withBrowser()
const phone = { width: 390, height: 844, deviceScaleFactor: 2, hasTouch: true, isMobile: true }

async function tap (page, text) {
  const at = await page.evaluate(text => {
    const button = [...document.querySelectorAll('#strip button')].find(each => each.textContent === text)
    const { left, top, width, height } = button.getBoundingClientRect()
    return { at: [left + width / 2, top + height / 2], width, height }
  }, text)
  assert.ok(at.width >= 44 && at.height >= 44, `${text} is ${at.width} by ${at.height}`)
  await page.touchscreen.tap(...at.at)
}

for (const [width, height] of [[390, 844], [844, 390]]) {
  test(`a phone of ${width} by ${height}`, { timeout: 120000 }, async () => {
    const page = await open(here.browser, here.server.address, { viewport: { ...phone, width, height } })
    await until(page, 'the selector', now => now.window === 'frmSelect')
    await tap(page, 'Spirehold')
    await until(page, 'the game', now => now.window === 'frmSpirehold')
    await tap(page, 'Play')
    const { places } = await until(page, 'the round', now => now.places?.some(each => each.playable))
    const card = places.find(each => each.playable)
    await page.touchscreen.tap(card.at[0], card.at[1])
    await until(page, 'another board', now => now.places && JSON.stringify(now.places.map(each => each.text)) !== JSON.stringify(places.map(each => each.text)))
    await tap(page, 'Options')
    assert.ok(await page.$('.menu .entry'))
    await page.keyboard.press('Escape')
    assert.deepEqual(await page.evaluate(() => [document.documentElement.scrollWidth, scrollX, scrollY, visualViewport.scale]), [width, 0, 0, 1])
    assert.deepEqual(page.troubles, [])
    await page.browserContext().close()
  })
}

test('what stands several times in the strip says which it is', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#fivestack`, { viewport: phone })
  await until(page, 'the game', now => now.window === 'frmFivestack')
  await tap(page, 'Play')
  await until(page, 'the round', now => now.buttons?.some(each => each.said))
  await tap(page, 'Hit 2')
  await page.waitForFunction(() => [...document.querySelectorAll('#strip button')].some(each => /^Hit 2, Column 2: [1-9]/.test(each.getAttribute('aria-label'))))
  assert.deepEqual(await page.$$eval('#strip .commands button', all => all.map(each => each.textContent).filter(text => text.startsWith('Hit'))),
    ['Hit 1', 'Hit 2', 'Hit 3', 'Hit 4', 'Hit 5'])
  await page.browserContext().close()
})

// By its caption, wherever it can be tapped just now.
async function tapOn (page, text) {
  const at = await page.evaluate(text => {
    const all = [...document.querySelectorAll('dialog[open] button, .menu .entry, #strip button')].filter(each => each.checkVisibility() && !each.disabled)
    const found = all.find(each => (each.querySelector('.caption') ?? each).textContent.trim() === text)
    const { left, top, width, height } = found?.getBoundingClientRect() ?? {}
    return found && [left + width / 2, top + height / 2]
  }, text)
  if (at) await page.touchscreen.tap(...at)
  return Boolean(at)
}

for (const game of ['Sumfall', 'Blackrush']) {
  test(`${game} is played whole on a phone, by taps alone`, { timeout: 180000 }, async () => {
    const page = await open(here.browser, here.server.address, { viewport: phone, speed: 20, before: openTables })
    await until(page, 'the selector', now => now.window === 'frmSelect')
    await tap(page, game === 'Sumfall' ? 'Sumfall!' : game)
    await until(page, 'the game', now => now.window === `frm${game}`)
    const any = chooser(3)
    let cards = 0
    for (let taps = 0; ; ++taps) {
      assert.ok(taps < 800, `the game has no end: ${JSON.stringify(await look(page))}`)
      const now = await look(page)
      if (now.window === 'frmHighScores') {
        assert.match(now.text, /^Tap$/m)
        break
      }
      if (now.box !== undefined) await tapOn(page, now.answers[0])
      else if (now.window === 'frmHiScoreName') {
        await page.keyboard.type('Tap')
        await tapOn(page, 'OK')
      } else if (now.window === `frm${game}`) {
        if (now.buttons.some(each => each.text === 'Play')) await tapOn(page, 'Play')
        const hits = now.buttons.filter(each => each.said && /^Hit/.test(each.text)).map(each => `Hit ${Number(/\d/.exec(each.name)) + 1}`)
        const move = any([...now.places.filter(each => each.playable), ...hits])
        if (typeof move === 'string') await tapOn(page, move)
        else if (move) await page.touchscreen.tap(...move.at)
        else if (cards > 10) await tapOn(page, 'Take Score')
        cards += Number(Boolean(move))
      }
      await settle(page)
    }
    assert.ok(cards > 10, `only ${cards} cards were tapped`)
    await tapOn(page, 'Done')
    await until(page, 'the game', now => now.window === `frm${game}`)
    assert.deepEqual(page.troubles, [])
    await page.browserContext().close()
  })
}

test('a double tap on Play begins a game, and asks nothing', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#treyshift`, { viewport: phone })
  await until(page, 'the game', now => now.window === 'frmTreyshift')
  await tap(page, 'Play')
  const begun = page.waitForFunction(() => [...document.querySelectorAll('#strip button')].find(each => each.textContent === 'End Game')?.getBoundingClientRect().toJSON())
  const { left, top, width, height } = await (await begun).jsonValue()
  await page.touchscreen.tap(left + width / 2, top + height / 2)
  const now = await until(page, 'the round or a question', now => now.box !== undefined || now.places?.some(each => each.playable))
  for (let i = 0; i < 5; ++i) await settle(page)
  assert.equal(now.box ?? (await look(page)).box, undefined)
  await page.browserContext().close()
})

for (const zoom of [100, 125]) test(`a card is dragged to where it is to lie, at ${zoom} %`, { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#treyshift`)
  await until(page, 'the game', now => now.window === 'frmTreyshift')
  await press(page, 'Play')
  if (zoom > 100) {
    await page.click('.menubar [data-name=view]')
    await page.click(`.menu [data-name=zoom${zoom}]`)
    await page.mouse.move(640, 512)
    await page.mouse.wheel({ deltaY: 50 })
    await page.waitForFunction(() => document.querySelector('.board.scrolls').scrollTop > 0)
  }
  const { places } = await until(page, 'the round', now => now.places?.some(each => each.playable))
  const card = places.find(each => each.playable)
  const to = places.find(each => each.name === 'TempCard(1)')
  await page.mouse.move(...card.at)
  await page.mouse.down()
  await until(page, 'the selection', now => now.places?.some(each => each.selected))
  await page.evaluate(() => new Promise(resolve => setTimeout(resolve, 150))) // a hand that is quicker has only clicked
  await page.mouse.move(card.at[0] - 30, card.at[1] - 30, { steps: 3 })
  await page.mouse.move(...to.at, { steps: 4 })
  await settle(page)
  await page.mouse.up()
  const laid = await until(page, 'the card there', now => now.places?.some(each => each.name === 'TempCard(1)' && !/^Empty/.test(each.text)))
  assert.equal(laid.places.find(each => each.name === 'TempCard(1)').text.split(',')[0], card.text.split(',')[0])
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})
