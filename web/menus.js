// A window's menus: those of the game, the page's own View menu, and the table of keys in the help.
import { make, plain, showCaption, accessKey } from './controls.js'
import { send } from './events.js'
import { viewEntries } from './view_menu.js'
import { showKeys } from './keys_window.js'
import { dealEntries } from './deals.js'

let open = null // { window, title, menu }

export function makeMenus (window, parent) {
  const bar = make('div', 'menubar', parent)
  layMenus(window, bar)
  return { refresh: () => { if (!open) layMenus(window, bar) } }
}

const entriesOf = (window, parent) => window.menus.filter(each => each.within === parent).map((each, i) => [each, i])
  .sort(([a, i], [b, j]) => a.rank - b.rank || i - j).map(([each]) => each)

// What an entry of the game does, as the entries of the page itself are told.
function entryOf (window, told) {
  const children = entriesOf(window, told.id)
  const row = window.keys?.flatMap(each => each.clicks).find(([keys, id]) => id === told.id && /^F\d/.test(keys))
  return {
    name: told.name,
    text: told.text,
    line: told.text === '-',
    visible: told.visible,
    enabled: told.enabled,
    checked: told.checked,
    keys: row?.[0],
    entries: children.length ? children.map(each => entryOf(window, each)) : null,
    choose: () => send(`click ${told.id}`)
  }
}

export function layMenus (window, bar) {
  bar.setAttribute('role', 'menubar')
  bar.setAttribute('aria-label', 'Menus')
  const titles = entriesOf(window, window.id).map(each => ({ id: each.id, ...entryOf(window, each) }))
  titles.splice(Math.max(0, titles.length - 1), 0, { name: 'view', text: '&View', visible: true, enabled: true, entries: [] })
  // A title that is being pressed stays: what stands in its menu is asked for when it opens.
  const key = JSON.stringify(titles.map(({ id, text, visible, enabled }) => [id, text, visible, enabled]))
  if (bar.dataset.key === key) return
  bar.dataset.key = key
  bar.replaceChildren()
  titles.forEach((title, i) => {
    if (!title.visible) return
    const button = make('button', 'title', bar)
    button.type = 'button'
    button.setAttribute('role', 'menuitem')
    button.setAttribute('aria-haspopup', 'menu')
    button.setAttribute('aria-expanded', 'false')
    button.tabIndex = i === 0 ? 0 : -1
    button.disabled = !title.enabled
    button.dataset.key = accessKey(title.text) ?? ''
    button.dataset.name = title.name
    showCaption(button, title.text)
    button.addEventListener('click', () => toggleMenu(window, button, title))
    button.addEventListener('pointerenter', event => {
      if (open && open.title !== button && event.pointerType === 'mouse') openMenu(window, button, title)
    })
  })
}

// By a click on what opens it.
export const toggleMenu = (window, button, title) => open?.title === button ? closeMenus() : openMenu(window, button, title)

export const isMenuOpen = () => open !== null

function openMenu (window, button, title) {
  closeMenus()
  const told = title.id ? { ...title, ...entryOf(window, window.menus.find(each => each.id === title.id)) } : title
  let entries = told.name === 'view' ? viewEntries(window) : told.entries ?? []
  if (told.id && told.id === window.keysMenu) {
    entries = [...entries]
    entries.splice(1, 0, { name: 'watchGame', text: '&Watch a Game', choose: () => watchGame(window) }, { name: 'keys', text: '&Keys...', visible: true, enabled: true, choose: () => showKeys(window) })
  }
  if (told.id && told.id === window.playMenu) {
    entries = [...entries]
    entries.splice(Math.max(0, entries.length - 2), 0, ...dealEntries(window))
  }
  button.setAttribute('aria-expanded', 'true')
  const menu = build(entries, told.text)
  // In the top layer no page scrolls it and no window cuts it off.
  menu.popover = 'manual'
  button.closest('dialog, #desk, #strip').append(menu)
  menu.showPopover()
  const place = button.getBoundingClientRect()
  const scale = Math.max(1, Math.min(window.scale, 2))
  menu.style.fontSize = `${13 * scale}px`
  const size = menu.getBoundingClientRect()
  const below = place.bottom + size.height <= innerHeight || place.top < size.height
  menu.style.left = `${Math.max(0, Math.min(place.left, innerWidth - size.width))}px`
  menu.style.top = `${below ? Math.max(0, Math.min(place.bottom, innerHeight - size.height)) : place.top - size.height}px`
  open = { window, title: button, menu, back: document.activeElement }
  menu.querySelector('.entry:not(:disabled)')?.focus()
}

// One that is played well, with comments.
const watchGame = async window => (await import('./watch.js')).watch(`demonstrations/${window.name.slice(3)}.record`)

function build (entries, name) {
  const menu = make('div', 'menu')
  menu.setAttribute('role', 'menu')
  menu.setAttribute('aria-label', plain(name))
  for (const entry of entries) {
    if (entry.visible === false) continue
    if (entry.line) {
      make('hr', '', menu)
      continue
    }
    if (entry.entries) {
      const group = make('div', 'group', menu)
      group.setAttribute('role', 'group')
      group.setAttribute('aria-label', plain(entry.text))
      make('span', 'groupname', group).textContent = plain(entry.text)
      const members = make('div', 'members', group)
      for (const each of entry.entries) addEntry(each, members)
    } else {
      addEntry(entry, menu)
    }
  }
  return menu
}

function addEntry (entry, parent) {
  if (entry.visible === false) return
  if (entry.line) return make('hr', '', parent)
  const button = make('button', 'entry', parent)
  button.type = 'button'
  button.setAttribute('role', entry.checked === undefined ? 'menuitem' : 'menuitemcheckbox')
  if (entry.checked !== undefined) button.setAttribute('aria-checked', String(entry.checked))
  button.disabled = entry.enabled === false
  button.dataset.key = accessKey(entry.text) ?? ''
  if (entry.name) button.dataset.name = entry.name
  showCaption(make('span', 'caption', button), entry.text)
  if (entry.keys) make('kbd', '', button).textContent = entry.keys
  button.addEventListener('click', () => {
    closeMenus()
    entry.choose()
  })
  return button
}

export function closeMenus (back = true) {
  if (!open) return
  const { menu, title, back: before } = open
  open = null
  menu.remove()
  title.setAttribute('aria-expanded', 'false')
  if (back && before?.isConnected) before.focus({ preventScroll: true })
}

// True if a menu has taken the key.
export function takeMenuKey (event, window) {
  if (!open) {
    if (!window || (!event.altKey && event.key !== 'F10')) return false
    const titles = [...document.querySelectorAll('.menubar .title, .choicemenu')].filter(each => each.checkVisibility())
    const title = event.key === 'F10' ? titles[0] : titles.find(each => each.dataset.key === event.key.toUpperCase())
    if (!title || window.modal) return false
    title.click()
    return true
  }
  const entries = [...open.menu.querySelectorAll('.entry:not(:disabled)')]
  const at = entries.indexOf(document.activeElement)
  const titles = [...open.title.parentElement.querySelectorAll('.title:not(:disabled)')]
  const beside = step => titles[(titles.indexOf(open.title) + step + titles.length) % titles.length]?.click()
  switch (event.key) {
    case 'ArrowDown': entries[(at + 1) % entries.length]?.focus(); return true
    case 'ArrowUp': entries[(at - 1 + entries.length) % entries.length]?.focus(); return true
    case 'Home': entries[0]?.focus(); return true
    case 'End': entries.at(-1)?.focus(); return true
    case 'ArrowRight': beside(1); return true
    case 'ArrowLeft': beside(-1); return true
    case 'Tab':
    case 'Escape': closeMenus(); return true
    case 'Enter':
    case ' ': entries[at]?.click(); return true
  }
  const entry = entries.find(each => each.dataset.key === event.key.toUpperCase())
  entry?.click()
  return event.key.length === 1
}

addEventListener('pointerdown', event => {
  if (open && !open.menu.contains(event.target) && !event.target.closest?.('.menubar') && !open.title.contains(event.target)) closeMenus(false)
}, { capture: true })
