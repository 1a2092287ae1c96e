// The reader of the tune's notes.
import assert from 'node:assert/strict'
import { readFileSync } from 'node:fs'
import { test } from 'node:test'

globalThis.matchMedia = () => ({ matches: false, addEventListener () {} })
globalThis.window = globalThis
globalThis.location = { search: '' }
globalThis.addEventListener = () => {}
globalThis.document = { createElement: () => ({ canPlayType: () => '' }), documentElement: { classList: { toggle () {} } } }
const { readTune } = await import('../../web/tune.js')

test('a beat of 600 ms, a rest, two notes at once, running status', () => {
  const track = [0, 0xff, 0x51, 3, 0x09, 0x27, 0xc0, 0x60, 0x91, 60, 100, 0, 64, 90, 0x30, 60, 0, 0x30, 64, 0, 0, 0xff, 0x2f, 0]
  const bytes = Uint8Array.from([...Buffer.from('MThd'), 0, 0, 0, 6, 0, 0, 0, 1, 0, 0x60, ...Buffer.from('MTrk'), 0, 0, 0, track.length, ...track])
  const { notes, length } = readTune(bytes)
  assert.deepEqual(notes.map(({ at, length, channel, key, velocity }) => [at, +length.toFixed(3), channel, key, velocity]),
    [[0.6, 0.3, 1, 60, 100], [0.6, 0.6, 1, 64, 90]])
  assert.equal(length.toFixed(3), '1.200')
})

test('the tune itself', () => {
  const { notes, length } = readTune(new Uint8Array(readFileSync(new URL('../../data/music/Quillmark.MID', import.meta.url))))
  assert.ok(notes.length > 1000 && length > 60 && length < 600, `${notes.length} notes, ${length} s`)
  assert.ok(notes.every(note => note.length > 0 && note.key < 128 && note.at >= 0))
})
