// Whole games by real clicks, from the selector to the Hall of Fame.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { answer, choose, chooser, leave, look, open, openTables, press, settle, until, withBrowser } from './page.mjs'
import { consoleSays, files } from './records.mjs'

const hostile = 'Ann <b>&amp; Bob'

const here = withBrowser()

async function playOn (page, any) {
  const now = await look(page)
  if (now.box !== undefined) return answer(page, now.answers[0])
  if (now.window === 'frmHiScoreName') {
    await page.keyboard.type(hostile)
    return press(page, 'cmdOK')
  }
  if (now.window === 'frmHighScores' || !now.buttons) return
  const play = now.buttons.find(each => each.text === 'Play')
  if (play) return page.mouse.click(...play.at)
  const hits = now.buttons.filter(each => each.said && /^Hit/.test(each.text))
  const moves = [...now.places.filter(each => each.playable), ...hits]
  const move = any(moves) ?? now.buttons.find(each => each.name === 'cmdTakeScore')
  if (move?.at) await page.mouse.click(...move.at)
}

// A press may have been taken for "Click to skip" as long as the game counts and says its end.
async function hallOfFame (page) {
  for (let tries = 5; ; --tries) {
    await choose(page, 'mnuOptions', 'View High Scores...')
    try {
      return await until(page, 'the Hall of Fame', now => now.window === 'frmHighScores', 3000)
    } catch (error) {
      if (tries === 0) throw error
    }
  }
}

const games = process.env.GAMES?.split(',') ?? ['Sumfall', 'Fivestack', 'Blackrush', 'Duopick', 'Spirehold', 'Handgrid', 'Treyshift']
for (const game of games) {
  test(`${game} is played to its end`, { timeout: 240000 }, async () => {
    const page = await open(here.browser, here.server.address, { speed: 20, before: openTables })
    await until(page, 'the selector', now => now.window === 'frmSelect')
    await press(page, `cmd${game}`)
    await until(page, 'the game', now => now.window === `frm${game}`)
    await page.waitForFunction(game => location.hash === `#${game}`, {}, game.toLowerCase())
    const any = chooser(7)
    let moves = 0
    for (let named = false; moves < 1200; ++moves) {
      const now = await look(page)
      named ||= now.window === 'frmHiScoreName'
      if (named && now.buttons?.some(each => each.text === 'Play')) break
      await playOn(page, any)
      await settle(page)
    }
    const fame = await hallOfFame(page)
    assert.ok(fame.text.includes(hostile), fame.text)
    assert.equal(await page.$$eval('.window b', all => all.length), 0) // a name is text, never markup
    await press(page, 'cmdDone')
    await until(page, 'the game', now => now.window === `frm${game}`)
    await leave(page)
    await page.waitForFunction(() => location.hash === '')
    // The game has left a record, which belongs to the entry and holds.
    const proved = consoleSays(await files(page), '--verify-tables').split('\n').filter(line => line.includes(hostile))
    assert.equal(proved.length, 1)
    assert.match(proved[0], new RegExp(`: holds ${game} `))
    assert.deepEqual(page.troubles, [])
    await page.browserContext().close()
  })
}
