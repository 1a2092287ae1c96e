// What a screen reader says when it happens.
const live = document.getElementById('live')

export function speak (text) {
  live.textContent = live.textContent === text ? `${text}\u00a0` : text
}
