// Records of games that a page has kept, and what the native console says of them.
import { spawnSync } from 'node:child_process'
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs'
import { tmpdir } from 'node:os'
import { dirname, join } from 'node:path'
import { native } from './console.mjs'

const prefix = 'card-haven:/card-haven/'

// The player's files: name within the folder to text.
export const files = page => page.evaluate(prefix => Object.fromEntries(Object.entries(localStorage)
  .filter(([name]) => name.startsWith(prefix)).map(([name, text]) => [name.slice(prefix.length), text])), prefix)

export const recordsOf = kept => Object.entries(kept).filter(([name]) => /^records\/.*\.record$/.test(name)).map(([, text]) => text)

// What `cardhaven-console` says with those arguments in a folder that holds the files, which is its working folder, too.
export function consoleSays (kept, ...args) {
  const folder = mkdtempSync(join(tmpdir(), 'cardhaven-'))
  try {
    for (const [name, text] of Object.entries(kept)) {
      mkdirSync(dirname(join(folder, name)), { recursive: true })
      writeFileSync(join(folder, name), text, 'latin1')
    }
    const program = join(process.cwd(), native, '../app/cardhaven-console')
    return spawnSync(program, ['--folder', folder, ...args], { cwd: folder, encoding: 'latin1' }).stdout
  } finally {
    rmSync(folder, { recursive: true })
  }
}
