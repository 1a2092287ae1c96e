// ZIP archives: written plain, read plain or deflated.
const table = Uint32Array.from({ length: 256 }, (_, n) => {
  for (let i = 0; i < 8; ++i) n = n & 1 ? 0xedb88320 ^ (n >>> 1) : n >>> 1
  return n
})
function sum (bytes) {
  let value = 0xffffffff
  for (const byte of bytes) value = table[(value ^ byte) & 0xff] ^ (value >>> 8)
  return (value ^ 0xffffffff) >>> 0
}

const local = 0x04034b50
const central = 0x02014b50
const end = 0x06054b50
const midnight = 0x21 // 1980-01-01

// Each number with its size in bytes.
function record (...fields) {
  const bytes = new Uint8Array(fields.reduce((size, [, length]) => size + length, 0))
  const view = new DataView(bytes.buffer)
  let at = 0
  for (const [number, length] of fields) {
    if (length === 2) view.setUint16(at, number, true)
    else view.setUint32(at, number, true)
    at += length
  }
  return bytes
}

// `files` are names and bytes.
export function pack (files) {
  const parts = []
  const list = []
  let at = 0
  const utf8 = 0x800
  for (const [name, bytes] of files) {
    const letters = new TextEncoder().encode(name)
    const common = [[20, 2], [utf8, 2], [0, 2], [0, 2], [midnight, 2], [sum(bytes), 4], [bytes.length, 4], [bytes.length, 4],
      [letters.length, 2], [0, 2]]
    const head = record([local, 4], ...common)
    list.push(record([central, 4], [20, 2], ...common, [0, 2], [0, 2], [0, 2], [0, 4], [at, 4]), letters)
    parts.push(head, letters, bytes)
    at += head.length + letters.length + bytes.length
  }
  const size = list.reduce((all, each) => all + each.length, 0)
  const last = record([end, 4], [0, 2], [0, 2], [files.length, 2], [files.length, 2], [size, 4], [at, 4], [0, 2])
  const all = new Uint8Array(at + size + last.length)
  let to = 0
  for (const part of [...parts, ...list, last]) {
    all.set(part, to)
    to += part.length
  }
  return all
}

async function inflate (bytes, length) {
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate-raw'))
  const reader = stream.getReader()
  const parts = []
  let size = 0
  for (let next = await reader.read(); !next.done; next = await reader.read()) {
    size += next.value.length
    if (size > length) throw new Error('a file in it is larger than it says')
    parts.push(next.value)
  }
  return new Uint8Array(await new Blob(parts).arrayBuffer())
}

const largest = 1 << 24 // of a file that is unpacked

export async function unpack (bytes) {
  const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.length)
  let last = bytes.length - 22
  while (last >= 0 && view.getUint32(last, true) !== end) --last
  if (last < 0) throw new Error('it is no ZIP archive')
  const files = []
  let at = view.getUint32(last + 16, true)
  for (let count = view.getUint16(last + 10, true); count > 0; --count) {
    if (view.getUint32(at, true) !== central) throw new Error('the archive is damaged')
    const [way, check, packed, size] = [view.getUint16(at + 10, true), view.getUint32(at + 16, true), view.getUint32(at + 20, true),
      view.getUint32(at + 24, true)]
    const [name, extra, remark, from] = [view.getUint16(at + 28, true), view.getUint16(at + 30, true), view.getUint16(at + 32, true),
      view.getUint32(at + 42, true)]
    const title = new TextDecoder().decode(bytes.subarray(at + 46, at + 46 + name))
    at += 46 + name + extra + remark
    if (title.endsWith('/') || size > largest) continue
    const start = from + 30 + view.getUint16(from + 26, true) + view.getUint16(from + 28, true)
    const part = bytes.subarray(start, start + packed)
    if (way !== 0 && way !== 8) throw new Error('the archive is packed in a way that is not known')
    const whole = way === 8 ? await inflate(part, size) : part
    if (whole.length !== size || sum(whole) !== check) throw new Error('the archive is damaged')
    files.push([title, whole])
  }
  return files
}
