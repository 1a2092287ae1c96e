// What a screen reader says when it happens.
const live = document.getElementById('live')

export function speak (text) {
  live.textContent = live.textContent === text ? `${text}\u00a0` : text
}

// The same to all: it stands above the page for a while.
export function announce (text) {
  const note = document.createElement('div')
  note.className = 'announcement'
  note.setAttribute('aria-hidden', 'true')
  note.textContent = text
  document.body.append(note)
  setTimeout(() => note.remove(), 3000)
  speak(text)
}
