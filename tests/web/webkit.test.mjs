// WebKit can't suspend WebAssembly: it plays the second build. Driven by WebDriver, on a virtual screen.
import assert from 'node:assert/strict'
import { spawn } from 'node:child_process'
import { once } from 'node:events'
import { test } from 'node:test'
import { openTables, serve } from './page.mjs'

const browser = process.env.MINIBROWSER ?? '/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser'
const port = 8000 + process.pid % 20000

async function drive () {
  // It ends with its screen, and writes the screen's number when that is there.
  const screen = spawn('Xvfb', ['-displayfd', '1', '-screen', '0', '1400x1100x24'], { stdio: ['ignore', 'pipe', 'ignore'] })
  const [number] = await once(screen.stdout, 'data')
  const env = { ...process.env, DISPLAY: `:${String(number).trim()}`, GDK_BACKEND: 'x11', WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS: '1' }
  const driver = spawn('WebKitWebDriver', [`--port=${port}`], { env, stdio: 'ignore' })
  const call = async (method, path, body) => {
    const response = await fetch(`http://127.0.0.1:${port}${path}`, { method, body: body && JSON.stringify(body) })
    const { value } = await response.json()
    if (value?.error) throw new Error(`${value.error}: ${value.message}`)
    return value
  }
  const capabilities = { alwaysMatch: { 'webkitgtk:browserOptions': { binary: browser, args: ['--automation'] } } }
  const session = await again(() => call('POST', '/session', { capabilities }))
  const at = `/session/${session.sessionId}`
  return {
    open: url => call('POST', `${at}/url`, { url }),
    evaluate: (script, ...args) => call('POST', `${at}/execute/sync`, { script: `return (${script})(...arguments)`, args }),
    click: (x, y) => call('POST', `${at}/actions`, {
      actions: [{
        type: 'pointer', id: 'mouse', parameters: { pointerType: 'mouse' },
        actions: [{ type: 'pointerMove', x: Math.round(x), y: Math.round(y), duration: 0 }, { type: 'pointerDown', button: 0 }, { type: 'pointerUp', button: 0 }]
      }]
    }),
    type: text => call('POST', `${at}/actions`, {
      actions: [{ type: 'key', id: 'keys', actions: [...text].flatMap(value => [{ type: 'keyDown', value }, { type: 'keyUp', value }]) }]
    }),
    stop: async () => {
      await call('DELETE', at).catch(() => {})
      driver.kill()
      screen.kill()
    }
  }
}

// Until it doesn't fail.
async function again (deed, patience = 30000) {
  for (const end = Date.now() + patience; ;) {
    try {
      return await deed()
    } catch (error) {
      if (Date.now() > end) throw error
      await new Promise(resolve => setTimeout(resolve, 100))
    }
  }
}

const seen = async (page, selector) => {
  const found = await page.evaluate(`selector => [...document.querySelectorAll(selector)].map(each => {
    const { left, top, width, height } = each.getBoundingClientRect()
    return { text: each.getAttribute('aria-label') ?? each.textContent, x: left + width / 2, y: top + height * 0.9 }
  })`, selector)
  assert.ok(found.length > 0, `${selector} is not there`)
  return found
}
const press = (page, selector) => again(async () => {
  const [{ x, y }] = await seen(page, selector)
  await page.click(x, y)
})
const playable = '.image[role=button][aria-disabled=false]'

test('a round in WebKit, and a reload in the middle of it', { timeout: 180000 }, async () => {
  const server = await serve()
  let page
  try {
    page = await drive()
    await page.open(server.address)
    await press(page, '[data-name=cmdSpirehold]')
    assert.equal(await page.evaluate("() => 'Suspending' in WebAssembly"), false)
    for (const round of ['first', 'after the reload']) {
      await again(() => seen(page, '.window[data-name=frmSpirehold]'))
      await press(page, '[data-name=cmdPlay]')
      const faces = async () => (await seen(page, '.image[role=button]')).map(each => each.text).join()
      await again(() => seen(page, playable))
      for (let moves = 0; moves < 3; ++moves) {
        const before = await faces()
        await again(async () => {
          const free = await seen(page, playable)
          await page.click(free[0].x, free[0].y)
          assert.notEqual(await faces(), before, `nothing came of it in the round ${round}`)
        })
      }
      await page.evaluate(String(openTables))
      await page.open(`${server.address}#spirehold`)
      await page.evaluate('() => location.reload()')
    }
    // A whole game: the score of each round is taken, and the last one goes to the Hall of Fame.
    await again(() => press(page, '[data-name=cmdPlay]'))
    const shows = async (selector, text = '') => (await page.evaluate(`selector => [...document.querySelectorAll(selector)]
      .filter(each => each.checkVisibility() && !each.disabled).map(each => each.textContent.trim())`, selector)).some(each => each.startsWith(text))
    for (const end = Date.now() + 90000; !await shows('.window[data-name=frmHiScoreName]');) {
      assert.ok(Date.now() < end, 'the game has no end')
      if (await shows('.box-window button')) await press(page, '.box-window button')
      else if (await shows('[data-name=cmdTakeScore]') && await shows(playable)) await press(page, '[data-name=cmdTakeScore]')
      else if (await shows('.skip')) await page.click(20, 500)
      await new Promise(resolve => setTimeout(resolve, 100))
    }
    await page.type('Kit')
    await press(page, '.dialog [data-name=cmdOK]')
    await again(async () => assert.match((await seen(page, '.window[data-name=frmHighScores] .surface'))[0].text, /Kit/))
    await press(page, '[data-name=cmdDone]')
    // A demonstration is watched, and left.
    await page.open('about:blank')
    await page.open(`${server.address}#watch=demonstrations/Sumfall.record`)
    const where = async (round, paused) => assert.match(await page.evaluate(`() => ['where', 'pause']
      .map(name => document.querySelector('.watchbar .' + name)).map(each => each.textContent + each.ariaPressed).join()`), new RegExp(`^Round ${round}.*${paused}$`))
    await again(() => where(1, false))
    await press(page, '.watchbar .pause')
    await again(() => where(1, true))
    await page.evaluate("() => document.querySelector('.watchbar').dispatchEvent(new KeyboardEvent('keydown', { key: 'PageDown', bubbles: true }))")
    await again(() => where(2, true))
    await press(page, '.watchbar .leave')
    await again(() => seen(page, '.window[data-name=frmSelect]'))
    // What was played is told, and can be saved as a picture.
    await press(page, '.choicemenu')
    await press(page, '.menu [data-name=statistics]')
    await again(() => seen(page, '.statistics .charts svg'))
    assert.match((await seen(page, '.statistics tbody tr'))[0].text, /^Spirehold45 seconds/)
    await press(page, '.statistics [data-name=savePicture]')
    await again(async () => assert.equal((await seen(page, '.statistics .told'))[0].text, 'Saved: statistics.png'))
  } finally {
    await page?.stop()
    await server.stop()
  }
})
