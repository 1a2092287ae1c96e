// Files that the page gives to the player.
export function download (name, type, bytes) {
  const link = document.createElement('a')
  link.href = URL.createObjectURL(new Blob([bytes], { type }))
  link.download = name
  link.click()
  setTimeout(() => URL.revokeObjectURL(link.href), 60000)
}
