// Watching a recording: it is played again in a frame that lies over the page, with a bar beside it. What is open on the page stays
// as it is; a running round pauses.
import { openBox, tell } from './boxes.js'
import { make } from './controls.js'
import { folder, lettersOf, read } from './storage.js'
import { pauseGame } from './windows.js'

const names = { ' ': 'Space', ArrowRight: 'Right' }
const sliderKeys = { ArrowRight: 1, ArrowUp: 1, ArrowLeft: -1, ArrowDown: -1 }
const base = '#watch='

export const asked = () => location.hash.startsWith(base) ? decodeURIComponent(location.hash.slice(base.length)) : ''

// A record that is kept, or a demonstration; null if there is none of that name.
async function textOf (name) {
  if (/^records\/[^/]+\.record$/.test(name)) return read(folder + name)
  if (!/^demonstrations\/\w+\.record$/.test(name)) return null
  const answer = await fetch(name)
  return answer.ok ? lettersOf(new Uint8Array(await answer.arrayBuffer())) : null
}

let open = false
let dressed = null // its style is here

// Until the viewer leaves. `text` is a record that has no name here.
export async function watch (name, text = null) {
  if (open) return
  open = true
  dressed ??= new Promise(resolve => {
    const sheet = make('link', '', document.head)
    Object.assign(sheet, { rel: 'stylesheet', onload: resolve, onerror: resolve, href: 'watch.css' })
  })
  try {
    text ??= await textOf(name)
  } catch {
    text = null // there is no network
  }
  await dressed
  if (text === null) tell('Card Haven', "There is no such record, or it can't be had now.")
  else await show(name, text)
  open = false
  if (location.hash.startsWith(base)) history.replaceState(null, '', location.pathname + location.search)
}

async function show (name, text) {
  pauseGame()
  const title = document.title
  const dialog = make('dialog', 'watching', document.body)
  const frame = make('iframe', '', dialog)
  frame.title = 'The recorded game'
  frame.allow = 'autoplay'
  frame.src = '?show'
  const say = words => frame.contentWindow?.postMessage({ watch: words }, location.origin)
  const bar = makeBar(dialog, say)
  let gone = null // called when the frame's program has ended
  const ended = new Promise(resolve => { gone = resolve })
  const deeds = {
    ready: () => frame.contentWindow.postMessage({ record: text }, location.origin),
    recording: told => bar.begin(told),
    bar: told => bar.show(told.bar),
    key: told => bar.take(told.key),
    stole: () => { if (document.activeElement === frame) bar.refocus() }
  }
  if (!location.hash.startsWith(base) || asked() !== name) history.pushState({ watches: true }, '', base + encodeURI(name))
  const heard = new AbortController()
  const { signal } = heard
  const outcome = await new Promise(resolve => {
    const hear = ({ origin, data }) => {
      if (origin !== location.origin) return
      if (data.do === 'left') gone()
      if (data.do === 'left' || data.do === 'unfit') resolve(data)
      else deeds[data.do]?.(data)
    }
    addEventListener('message', hear, { signal })
    addEventListener('popstate', () => resolve({ back: true }), { signal })
    dialog.addEventListener('cancel', event => {
      event.preventDefault()
      bar.take('Escape')
    })
    bar.leave.addEventListener('click', () => resolve({}))
    frame.addEventListener('load', () => {
      if (!frame.contentDocument?.getElementById('desk')) resolve({ why: 'the host allows no frames.' })
    })
    document.addEventListener('visibilitychange', () => { if (document.hidden) bar.stop() }, { signal })
    dialog.showModal()
    bar.refocus()
  })
  dialog.close()
  // A frame whose program still waits is kept by some browsers for as long as this page.
  if (!outcome.why) {
    say('key Escape')
    await Promise.race([ended, new Promise(resolve => setTimeout(resolve, 1000))])
  }
  heard.abort()
  dialog.remove()
  document.title = title
  if (!outcome.back && history.state?.watches) {
    await new Promise(resolve => {
      addEventListener('popstate', resolve, { once: true })
      history.back()
    })
  }
  if (outcome.why) tell('Card Haven', `This can't be watched: ${outcome.why}`)
}

function makeBar (dialog, say) {
  const element = make('div', 'watchbar', dialog)
  element.setAttribute('role', 'region')
  element.setAttribute('aria-label', 'Recording')
  const comment = make('p', 'comment', element)
  comment.setAttribute('role', 'status')
  const what = make('h2', '', element)
  what.textContent = 'Recording'
  const line = make('div', 'line', element)
  const slider = make('input', '', line)
  Object.assign(slider, { type: 'range', min: 0, max: 1, step: 'any', value: 0 })
  slider.setAttribute('aria-label', 'Round')
  const rounds = make('div', 'rounds', line)
  const where = make('span', 'where', element)
  const row = make('div', 'row', element)
  const button = (name, text, tip, words) => {
    const made = make('button', name, row)
    made.type = 'button'
    made.textContent = text
    made.title = tip
    if (words) made.addEventListener('click', () => say(words))
    return made
  }
  const pause = button('pause', 'Pause', 'Space', 'key Space')
  button('deed', 'Next Deed', 'Right', 'key Right')
  const speeds = [1, 2, 4, 8].map(speed => [speed, button('speed', `x${speed}`, `${speed} times as fast, key ${speed}`, `key ${speed}`)])
  const leave = button('leave', 'Leave', 'Escape')

  let slides = false
  slider.addEventListener('input', () => { slides = true })
  slider.addEventListener('change', () => {
    slides = false
    say(`goto ${Math.round(slider.value)}`)
  })
  const take = key => {
    if (key === 'Escape') return leave.click()
    if (key === ' ' || /^(ArrowRight|\.|PageDown|PageUp|Home|[1248+=-])$/.test(key)) say(`key ${names[key] ?? key}`)
    else return false
    return true
  }
  dialog.addEventListener('keydown', event => {
    if (event.ctrlKey || event.altKey || event.metaKey) return
    const { key, target } = event
    const presses = key === ' ' && target.matches('button')
    if (target === slider && key in sliderKeys) say(`by ${sliderKeys[key]}`)
    else if (presses || take(key) === false) return
    event.preventDefault()
  })
  let last = pause
  element.addEventListener('focusin', event => { last = event.target })
  return {
    leave,
    stop: () => { if (pause.getAttribute('aria-pressed') === 'false') pause.click() },
    take,
    refocus: () => last.focus({ preventScroll: true }),
    begin: ({ title, length, comments, rounds: begins }) => {
      what.textContent = `Recording: ${title}`
      document.title = `${title} (recording)`
      dialog.setAttribute('aria-label', what.textContent)
      comment.hidden = !comments
      slider.max = Math.max(1, length)
      rounds.replaceChildren(...begins.map(at => {
        const mark = make('i')
        mark.style.left = `${100 * at / Math.max(1, length)}%`
        return mark
      }))
    },
    show: told => {
      if (!slides) slider.value = told.at
      slider.setAttribute('aria-valuetext', told.place)
      where.textContent = told.place
      if (comment.textContent !== told.comment) comment.textContent = told.comment
      comment.hidden &&= told.comment === ''
      pause.setAttribute('aria-pressed', String(told.paused))
      for (const [speed, made] of speeds) made.setAttribute('aria-pressed', String(speed === told.speed))
    }
  }
}
