// What stands on a board beside the game's own texts covers none of them.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { leave, open, press, settle, until, withBrowser } from './page.mjs'

const here = withBrowser()

for (const [width, height] of [[1280, 1024], [390, 844]]) {
  test(`first steps and the deal of the day stand beside the splash panel at ${width} by ${height}`, { timeout: 120000 }, async () => {
    for (const game of ['Sumfall', 'Fivestack', 'Blackrush', 'Duopick', 'Spirehold', 'Handgrid', 'Treyshift']) {
      const page = await open(here.browser, `${here.server.address}#today-${game.toLowerCase()}`, { viewport: { width, height, hasTouch: width < 500, isMobile: width < 500 } })
      await until(page, 'the game', now => now.window === `frm${game}`)
      await settle(page)
      const met = await page.evaluate(() => {
        const sheets = [...document.querySelectorAll('.note.sheet')]
        const parts = [...sheets, ...document.querySelectorAll('.frame.panel, .surface > .label:not(.empty) > .letters, .surface > button.control')]
        return [sheets.length, ...sheets.flatMap(sheet => parts.filter(each => each !== sheet && each.checkVisibility()).filter(each => {
          const [rect, place] = [each, sheet].map(one => one.getBoundingClientRect())
          return rect.left < place.right && place.left < rect.right && rect.top < place.bottom && place.top < rect.bottom
        }).map(each => each.textContent))]
      })
      assert.deepEqual(met, [2], game)
      await page.browserContext().close()
    }
  })
}

test('what is announced side by side stands on one plate', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#treyshift`)
  await until(page, 'the game', now => now.window === 'frmTreyshift')
  await press(page, 'Play')
  await until(page, 'the round', now => now.places?.some(each => each.playable))
  await press(page, 'Take Score')
  const plates = await page.waitForFunction(() => {
    const both = [...document.querySelectorAll('.label.announced:not(.empty)')].filter(each => each.checkVisibility())
    return both.length === 2 && both.map(each => getComputedStyle(each.querySelector('.letters')).backgroundColor).concat(document.querySelectorAll('.plate.joint').length)
  })
  assert.deepEqual(await plates.jsonValue(), ['rgba(0, 0, 0, 0)', 'rgba(0, 0, 0, 0)', 1])
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('the ring of cards turns, and stands still with Less Motion, also behind a game', { timeout: 90000 }, async () => {
  const page = await open(here.browser, here.server.address, { speed: 10 })
  await until(page, 'the selector', now => now.window === 'frmSelect')
  const seen = async () => Buffer.from(await (await page.$('.window:not([hidden]) canvas.ornaments')).screenshot()).toString('base64')
  const changed = async before => {
    for (const end = Date.now() + 20000; ; await settle(page)) {
      const now = await seen()
      if (now !== before) return now
      assert.ok(Date.now() < end, 'nothing turns')
    }
  }
  const cloth = await page.evaluate(() => document.querySelector('canvas.ornaments').style.visibility = 'hidden') && await seen()
  await page.evaluate(() => { document.querySelector('canvas.ornaments').style.visibility = '' })
  assert.notEqual(await changed(cloth), await changed(await changed(cloth)))
  await press(page, 'Menu')
  await page.click('.menu [data-name=lessMotion]')
  await settle(page)
  const still = await seen()
  await page.evaluate(() => new Promise(resolve => setTimeout(resolve, 3000))) // a dozen ticks of the ring's clock
  assert.equal(await seen(), still)
  await press(page, 'cmdHandgrid')
  await until(page, 'the game', now => now.window === 'frmHandgrid')
  await leave(page)
  await settle(page)
  assert.equal(await seen(), still)
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})
