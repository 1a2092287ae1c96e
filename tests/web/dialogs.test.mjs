// Every dialog of every game, on a desk and on a phone: it opens, its fields and buttons can be tapped, and it closes.
import assert from 'node:assert/strict'
import { test } from 'node:test'
import { answer, open, press, settle, until, withBrowser } from './page.mjs'

const here = withBrowser()

const show = (page, menu) => page.evaluate(name => [...document.querySelectorAll(`.menubar [data-name=${name}]`)]
  .find(each => each.checkVisibility()).click(), menu)
const entries = page => page.evaluate(() => [...document.querySelectorAll('.menu .entry:not(:disabled) .caption')].map(each => each.textContent))
const close = page => page.evaluate(() => document.querySelector('dialog.modal[open] .closebox')?.click())

// Taps as far beside each field and button as a finger may be, and says which of them did nothing.
const missed = page => page.evaluate(() => {
  const dialog = document.querySelector('dialog.modal[open]')
  const parts = [...dialog.querySelectorAll('input.control, textarea.control')].filter(each => each.checkVisibility() && !each.readOnly)
  const bad = []
  for (const each of parts) {
    each.scrollIntoView({ block: 'center' })
    const { left, width, top, height } = each.getBoundingClientRect()
    if (each.matches('input') && height < 31.9) bad.push(`${each.getAttribute('aria-label')} is ${Math.round(height)} high`)
    if (top < 0 || top + height > innerHeight) bad.push(`${each.getAttribute('aria-label')} can't be reached`)
    for (const y of [top + height / 2 - 20, top + height / 2 + 20]) {
      const at = { clientX: left + width / 2, clientY: y, bubbles: true, detail: 1 }
      const target = document.elementFromPoint(at.clientX, at.clientY)
      if (!dialog.querySelector('.board').contains(target)) continue
      document.activeElement.blur()
      const far = other => {
        const rect = other.getBoundingClientRect()
        return Math.hypot(Math.max(rect.left - at.clientX, 0, at.clientX - rect.right), Math.max(rect.top - y, 0, y - rect.bottom))
      }
      const others = [...dialog.querySelectorAll('button, input, textarea, select, label')].filter(other => other !== each && other.checkVisibility())
      if (others.some(other => far(other) <= far(each))) continue
      if (target === each) continue
      target.dispatchEvent(new MouseEvent('click', at))
      if (document.activeElement !== each) bad.push(`${each.getAttribute('aria-label')} at ${Math.round(y - top)} of ${Math.round(height)}`)
    }
  }
  return bad
})

const games = ['Sumfall', 'Fivestack', 'Blackrush', 'Duopick', 'Spirehold', 'Handgrid', 'Treyshift']
const phone = { hasTouch: true, isMobile: true, deviceScaleFactor: 2 }
for (const [device, viewport] of Object.entries({ desk: { width: 1280, height: 1024 }, phone: { width: 390, height: 844, ...phone },
  'phone on its side': { width: 844, height: 390, ...phone } })) {
  test(`dialogs on a ${device}`, { timeout: 240000 }, async () => {
    for (const game of games) {
      const page = await open(here.browser, `${here.server.address}#${game.toLowerCase()}`, { viewport })
      await until(page, 'the game', now => now.window === `frm${game}`)
      let seen = 0
      const menus = await page.evaluate(() => [...document.querySelectorAll('.menubar .title')].filter(each => each.checkVisibility()).map(each => each.dataset.name))
      for (const menu of menus.filter(each => each !== 'view')) {
        await show(page, menu)
        const names = (await entries(page)).filter(each => each.endsWith('...') && !/^C(l?)ear/.test(each))
        await page.keyboard.press('Escape')
        for (const name of names) {
          await show(page, menu)
          await page.evaluate(name => [...document.querySelectorAll('.menu .entry')].find(each => each.querySelector('.caption').textContent === name).click(), name)
          const now = await until(page, name, now => now.box !== undefined || now.window !== `frm${game}`)
          ++seen
          if (now.box !== undefined) {
            await answer(page, now.answers.at(-1))
          } else {
            const rect = await page.evaluate(() => document.querySelector('dialog.modal[open] .window').getBoundingClientRect().toJSON())
            assert.ok(rect.left >= 0 && rect.top >= 0 && rect.right <= viewport.width && rect.bottom <= viewport.height, `${name}: ${JSON.stringify(rect)}`)
            if (viewport.hasTouch) assert.deepEqual(await missed(page), [], `${game}: ${name}`)
            await close(page)
          }
          await until(page, 'the game', now => now.window === `frm${game}`)
          await settle(page)
        }
      }
      assert.ok(seen >= 3, `only ${seen} dialogs in ${game}`)
      assert.deepEqual(page.troubles, [], game)
      await page.browserContext().close()
    }
  })
}

test('the Hall of Fame is a table, also to who only hears it', { timeout: 60000 }, async () => {
  const page = await open(here.browser, `${here.server.address}#duopick`)
  await until(page, 'the game', now => now.window === 'frmDuopick')
  await show(page, 'mnuOptions')
  await page.evaluate(() => [...document.querySelectorAll('.menu .entry')].find(each => each.textContent.startsWith('View High')).click())
  await until(page, 'the Hall of Fame', now => now.window === 'frmHighScores')
  await settle(page)
  const tree = await page.accessibility.snapshot({ interestingOnly: false, root: await page.$('dialog.modal[open]') })
  const found = (node, role) => [...(node.role === role ? [node] : []), ...(node.children ?? []).flatMap(each => found(each, role))]
  const rows = found(tree, 'row')
  assert.equal(rows.length, 10)
  assert.deepEqual(rows.map(row => found(row, 'rowheader').map(each => each.name).join()), ['1', '2', '3', '4', '5', '6', '7', '8', '9', '10'])
  assert.deepEqual(found(rows[0], 'cell').map(each => each.name), ['Quillmark', '30,000'])
  await press(page, 'cmdDone')
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})

test('the way back closes a dialog, and the game stays', { timeout: 60000 }, async () => {
  const page = await open(here.browser, here.server.address)
  await until(page, 'the selector', now => now.window === 'frmSelect')
  await press(page, 'cmdHandgrid')
  await until(page, 'the game', now => now.window === 'frmHandgrid')
  await show(page, 'mnuHelp')
  await page.evaluate(() => [...document.querySelectorAll('.menu .entry')].find(each => each.textContent.startsWith('About')).click())
  await until(page, 'the dialog', now => now.window === 'frmAbout')
  await page.goBack()
  await until(page, 'the game', now => now.window === 'frmHandgrid')
  await show(page, 'view')
  await page.click('.menu [data-name=statistics]')
  await page.waitForSelector('.statistics[open]')
  await page.goBack()
  await page.waitForSelector('.statistics', { hidden: true })
  assert.equal((await until(page, 'the game', now => now.window === 'frmHandgrid')).box, undefined)
  assert.match(page.url(), /#handgrid$/)
  assert.deepEqual(page.troubles, [])
  await page.browserContext().close()
})
