// A game is saved, and its cards are played again from the file.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { answer, choose, launch, look, open, press, serve, until } from './page.mjs'

test('a saved game goes out and comes in', { timeout: 120000 }, async () => {
  const server = await serve()
  const browser = await launch()
  try {
    const page = await open(browser, `${server.address}#sumfall`, { speed: 20 })
    const faces = now => now.places.map(each => each.text.split(',')[0]).sort().join()
    await until(page, 'the game', now => now.window === 'frmSumfall')
    await press(page, 'Play')
    const dealt = faces(await until(page, 'the round', now => now.places?.some(each => each.playable)))
    for (let asked = null; !asked;) { // so soon after Play it is the second press of a double click
      await press(page, 'End Game')
      asked = await until(page, 'the question', now => now.box !== undefined, 600).catch(() => null)
    }
    await answer(page, 'Yes')
    for (let now = await look(page); !now.buttons?.some(each => each.text === 'Play'); now = await look(page)) {
      if (now.window === 'frmHiScoreName') await press(page, 'cmdOK')
    }
    const opened = async (entry, window) => {
      for (let tries = 0; tries < 5; ++tries) { // a press may have been taken for "Click to skip"
        await choose(page, 'mnuFile', entry)
        const seen = await until(page, window, now => now.window === window, 3000).catch(() => null)
        if (seen) return
      }
      assert.fail(`${window} has not come`)
    }
    await opened('Save Last Game...', 'frmSave')
    await page.click('[data-name=txtGameName]', { count: 3 })
    await page.keyboard.type('mine.sfl')
    await press(page, 'cmdOK')
    await until(page, 'the game', now => now.window === 'frmSumfall')
    await opened('Open Game...', 'frmOpen')
    await page.evaluate(() => {
      const list = document.querySelector('select.files')
      list.selectedIndex = [...list.options].findIndex(each => each.text === 'mine.sfl')
      list.dispatchEvent(new Event('change'))
    })
    await press(page, 'cmdOK')
    const told = await until(page, 'what it says of it', now => now.box !== undefined)
    assert.match(told.box, /saved by/)
    await answer(page, 'OK')
    const again = await until(page, 'the same deal', now => now.box !== undefined || now.buttons?.some(each => /Play/.test(each.text)) ||
      now.places?.some(each => each.playable))
    if (again.box !== undefined) await answer(page, again.answers[0])
    if (!again.places?.some(each => each.playable)) await press(page, (await look(page)).buttons.find(each => /play/i.test(each.text)).name)
    assert.equal(faces(await until(page, 'the round', now => now.places?.some(each => each.playable))), dealt)
    assert.deepEqual(page.troubles, [])
  } finally {
    await browser.close()
    await server.stop()
  }
})
