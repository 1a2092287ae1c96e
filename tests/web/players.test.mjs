// What the random players do (tests/random_player.h, a hundred thousand commands each), by the console in WebAssembly: every byte
// is answered as by the native one. They are played natively first, for what they do hangs on what they see.
import assert from 'node:assert/strict'
import { execFileSync } from 'node:child_process'
import { mkdtempSync, readdirSync, readFileSync, rmSync } from 'node:fs'
import { tmpdir } from 'node:os'
import { after, test } from 'node:test'
import { answers, builds, native } from './console.mjs'

const folder = mkdtempSync(`${tmpdir()}/cardhaven-deeds-`)
after(() => rmSync(folder, { recursive: true }))

const programs = builds('cardhaven-console')
const games = readdirSync('tests').filter(each => each.endsWith('_random_test.cpp')).map(each => each.replace('_random_test.cpp', ''))
for (const game of games) {
  test(`${game}'s random player`, async () => {
    const deeds = `${folder}/${game}`
    execFileSync(`${native}/${game}_tests`, ['--gtest_filter=*RandomPlayer*'], { env: { ...process.env, CARDHAVEN_DEEDS: deeds }, stdio: 'pipe' })
    const script = readFileSync(`${deeds}.console`, 'latin1')
    const expected = readFileSync(`${deeds}.answers`)
    rmSync(`${deeds}.answers`) // which are large
    const head = name => [...script.matchAll(new RegExp(`^# ${name} (.*)$`, 'gm'))].map(([, value]) => value)
    assert.ok(script.split('\n').length > 100000)
    for (const [build, module] of programs) {
      const files = new Map(head('file').map(each => JSON.parse(each)))
      const played = await answers(module, ['--seed', head('seed')[0], '--folder', head('folder')[0]], script, files)
      assert.equal(played.status, 0, played.errors)
      assert.ok(played.bytes.equals(expected), `${build}: ${firstDifference(played.bytes, expected)}`)
    }
  })
}

function firstDifference (now, before) {
  const at = now.findIndex((byte, i) => byte !== before[i])
  const around = bytes => bytes.subarray(Math.max(0, at - 300), at + 100).toString('latin1')
  return `byte ${at}:\n${around(now)}\n--- natively:\n${around(before)}`
}
