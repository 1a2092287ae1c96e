// Throwing and catching (window/system/web/exceptions.cpp): the same comes of it as natively.
import assert from 'node:assert/strict'
import { execFileSync } from 'node:child_process'
import { test } from 'node:test'
import { answers, builds, native } from './console.mjs'

for (const [build, module] of builds('cardhaven-exceptions')) {
  test(`exceptions in ${build}`, async () => {
    const input = 'abcdefghijklmnopqrstuvwxyz'
    const played = await answers(module, [], input)
    assert.equal(played.output, execFileSync(`${native}/exceptions`, { input }).toString('latin1'))
    assert.match(played.output, /end\n$/)
  })
}
