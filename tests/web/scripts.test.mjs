// The recorded runs of tests/scripts, by the console in WebAssembly: every byte is answered as by the native one.
import assert from 'node:assert/strict'
import { readdirSync, readFileSync } from 'node:fs'
import { test } from 'node:test'
import { answers, builds } from './console.mjs'

const folder = new URL('../scripts/', import.meta.url)

for (const [build, module] of builds('cardhaven-console')) {
  for (const name of readdirSync(folder).filter(each => each.endsWith('.console'))) {
    test(`${name} by ${build}`, async () => {
      const script = readFileSync(new URL(name, folder), 'latin1')
      const expected = readFileSync(new URL(name.replace('.console', '.expected'), folder), 'latin1')
      const played = await answers(module, ['--seed', '7', '--folder', '/FOLDER'], script)
      assert.equal(played.status, 0, played.errors)
      assert.ok(played.output.replaceAll('/FOLDER', 'FOLDER') === expected, firstDifference(played.output, expected))
    })
  }
}

function firstDifference (now, before) {
  const [lines, old] = [now, before].map(text => text.split('\n'))
  const at = lines.findIndex((line, i) => line.replaceAll('/FOLDER', 'FOLDER') !== old[i])
  return `line ${at + 1}: ${lines[at]}\nrecorded: ${old[at]}`
}
