// Keeps the page for when there is no network. All files of a version are fetched before any of them is used, so an update comes
// whole or not at all; what other versions kept goes when this one takes over.
const version = 'VERSION' // written by scripts/make-web, as is the list
const files = []
const other = 'Suspending' in WebAssembly ? 'card-haven-asyncify.wasm' : 'card-haven.wasm' // isn't run here
const prefix = 'card-haven '
const mine = prefix + version

self.addEventListener('install', event => {
  event.waitUntil(keep())
  // Where the browser can take files from there by itself, no start waits for this script.
  event.addRoutes?.({ condition: { urlPattern: new URLPattern({ search: '' }), requestMethod: 'get' }, source: { cacheName: mine } })
})

async function keep () {
  const cache = await caches.open(mine)
  try {
    await cache.addAll(files.filter(file => file !== other).map(file => new Request(file, { cache: 'reload' })))
  } catch (error) {
    await caches.delete(mine)
    throw error
  }
}

self.addEventListener('activate', event => event.waitUntil((async () => {
  for (const name of await caches.keys()) if (name.startsWith(prefix) && name !== mine) await caches.delete(name)
  await self.clients.claim()
})()))

self.addEventListener('fetch', event => {
  const { request } = event
  if (request.method !== 'GET' || new URL(request.url).origin !== location.origin) return
  event.respondWith((async () => {
    const cache = await caches.open(mine)
    return await cache.match(request, { ignoreSearch: true }) ?? fetch(request)
  })())
})
