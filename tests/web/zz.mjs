import { launch, serve } from './page.mjs'
const sites = process.argv.slice(2)
const browser = await launch()
const servers = await Promise.all(sites.map(s => serve(s)))
const out = sites.map(() => ({ cold: [], warm: [] }))
const watch = () => { const look = () => { if (document.querySelector('.window .control')) window.ready = performance.now(); else requestAnimationFrame(look) }; requestAnimationFrame(look) }
for (let i = 0; i < 9; ++i) {
  for (const [k, server] of servers.entries()) {
    const context = await browser.createBrowserContext()
    const page = await context.newPage()
    await page.evaluateOnNewDocument(watch)
    for (const kind of ['cold', 'warm']) {
      await page.goto(server.address)
      await page.waitForFunction(() => window.ready)
      out[k][kind].push(await page.evaluate(() => Math.round(window.ready)))
      if (kind === 'cold') { await page.evaluate(() => navigator.serviceWorker.ready); await new Promise(r => setTimeout(r, 300)); await page.goto('about:blank') }
    }
    await context.close()
  }
}
for (const [k, o] of out.entries()) for (const kind of ['cold', 'warm']) { const s = o[kind].sort((a, b) => a - b); console.log(sites[k], kind, 'median', s[4], 'min', s[0], 'all', s.join(' ')) }
await browser.close(); for (const s of servers) await s.stop()
