// A game of each kind by keys alone, from the selector to its end; and what axe finds wrong with what is shown.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { findings, look, open, settle, until, withBrowser } from './page.mjs'

const here = withBrowser()

const letters = { Sumfall: 'ArrowUp', Fivestack: '1', Blackrush: '2', Duopick: 'ArrowLeft', Spirehold: 'ArrowRight', Handgrid: 'ArrowDown', Treyshift: 'ArrowRight' }
for (const [game, key] of Object.entries(letters).filter(([name]) => !process.env.GAMES || process.env.GAMES.split(',').includes(name))) {
  test(`${game} by keys alone`, { timeout: 240000 }, async () => {
    const page = await open(here.browser, here.server.address, { speed: 20 })
    await until(page, 'the selector', now => now.window === 'frmSelect')
    const said = await findings(page)
    for (let i = 0; i < 12; ++i) {
      if (await page.evaluate(game => document.activeElement.dataset.name === `cmd${game}`, game)) break
      await page.keyboard.press('ArrowDown')
    }
    await page.keyboard.press('Enter')
    await until(page, 'the game', now => now.window === `frm${game}`)
    await page.keyboard.press('F2')
    await until(page, 'the round', now => now.buttons?.some(each => each.name === 'cmdPause'))
    said.push(...await findings(page))
    let moves = 0
    let ended = false
    const boards = new Set()
    for (; moves < 1500 && !ended; ++moves) {
      const now = await look(page)
      if (now.box !== undefined) await page.keyboard.press('Enter')
      else if (now.window === 'frmHiScoreName') {
        await page.keyboard.type('Kay')
        await page.keyboard.press('Enter')
      } else if (moves > 30 && now.buttons?.some(each => each.text === 'Play')) {
        ended = true
      } else if (now.places) {
        boards.add(JSON.stringify(now.places.map(each => each.text)))
        await page.keyboard.press(key)
        await page.keyboard.press(['ArrowRight', 'ArrowDown', 'ArrowLeft', 'ArrowUp'][moves % 4])
        await page.keyboard.press(' ')
        if (moves % 8 === 7) await page.keyboard.press('D')
        if (moves > 200 && moves % 20 === 0) { // the clock stands still for those who bust all the time
          await page.keyboard.down('Alt')
          await page.keyboard.press('T')
          await page.keyboard.up('Alt')
        }
      }
      await settle(page)
    }
    assert.ok(ended, `no end in ${moves} moves`)
    assert.ok(boards.size > 3, 'the keys have played nothing')
    assert.deepEqual(said, [])
    assert.deepEqual(page.troubles, [])
    await page.browserContext().close()
  })
}
