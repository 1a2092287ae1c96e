// Deals by their number, in the browser: asked for, told of, and played again.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { answer, choose, launch, look, open, press, serve, until } from './page.mjs'

const faces = now => now.places.map(each => each.text).join()
const round = page => until(page, 'the round', now => now.places?.some(each => each.playable))

async function endGame (page) {
  await press(page, 'End Game')
  await until(page, 'the question', now => now.box !== undefined)
  await answer(page, 'Yes')
  for (let now = await look(page); !now.buttons?.some(each => each.text === 'Play'); now = await look(page)) {
    if (now.window === 'frmHiScoreName') await press(page, 'cmdOK')
  }
}

test('the same number deals the same cards', { timeout: 120000 }, async () => {
  const server = await serve()
  const browser = await launch()
  try {
    const page = await open(browser, `${server.address}#duopick`, { speed: 20 })
    await until(page, 'the game', now => now.window === 'frmDuopick')
    const askFor = async text => {
      await choose(page, 'mnuFile', 'Deal Number...')
      await until(page, 'the box for the number', now => now.box !== undefined)
      await page.keyboard.type(text)
    }
    await askFor('no number')
    await page.keyboard.press('Enter')
    assert.equal((await until(page, 'the game', now => now.box === undefined)).places.length, 0) // no game has begun
    await askFor('4711')
    await page.keyboard.press('Enter')
    const first = faces(await round(page))
    await endGame(page)
    assert.match(await page.$eval('.note.sheet', each => each.textContent), /^Deal 4711, repeated: in no table$/)
    await choose(page, 'mnuFile', 'Same Deal Again')
    assert.equal(faces(await round(page)), first)
    await endGame(page)
    await press(page, 'Play')
    assert.notEqual(faces(await round(page)), first) // by chance again
    assert.deepEqual(page.troubles, [])
  } finally {
    await browser.close()
    await server.stop()
  }
})
