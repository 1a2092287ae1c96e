// Whether this page is the frame in which another one shows a recording (watch.js). Then nothing is kept here, and what is done to
// the game's windows doesn't get there.
export const shown = new URLSearchParams(location.search).has('show')

export const tellBar = told => parent.postMessage(told, location.origin)

if (shown) {
  HTMLElement.prototype.focus = () => {} // the keyboard stays with the bar
  const deeds = ['pointerdown', 'pointermove', 'pointerup', 'mousedown', 'click', 'dblclick', 'contextmenu', 'dragstart', 'keydown', 'focusin']
  for (const kind of deeds) {
    addEventListener(kind, event => {
      event.stopImmediatePropagation()
      if (kind === 'focusin' || event.key === 'Tab') return
      event.preventDefault()
      if (kind === 'keydown' && !event.ctrlKey && !event.altKey && !event.metaKey) tellBar({ do: 'key', key: event.key })
    }, { capture: true })
  }
}
