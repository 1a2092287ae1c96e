// Paints the shapes of a picture that the program has told (window/web/statistics.cpp) as a drawing.

const space = 'http://www.w3.org/2000/svg'
const usual = ['', '#fffbee', '#221d24', '#00000026', '#00000018', '#1f6c4a', '#b03a2e', '#e8b93a', '#5c430c']
const strongest = ['', '#ffffff', '#ffffff', '#808080', 'none', '#c8c8c8', '#ffe000', '#ffe000', '#000000']
const kinds = { plate: 0, line: 1, curve: 2, polygon: 3, dot: 4, box: 5, text: 6 }
const fonts = [[12, 400], [12, 600], [16, 600]]
const anchors = ['start', 'middle', 'end']
// Of letters, as parts of their size.
const ascent = 1.07
const below = 0.39 // the middle of a line
const onLine = 2

function make (name, parent, attributes) {
  const element = document.createElementNS(space, name)
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value)
  parent?.append(element)
  return element
}

// With a title it has a ground of its own, for it is to stand alone.
export function paint ({ width, height, shapes }, strong, scale, title) {
  const svg = make('svg', null, { viewBox: `0 0 ${width / 10} ${height / 10}`, width: width / 10 * scale, height: height / 10 * scale })
  if (title !== undefined) {
    make('title', svg, {}).textContent = title
    svg.setAttribute('font-family', '"Card Haven", "Open Sans", sans-serif')
    make('rect', svg, { width: '100%', height: '100%', fill: strong ? '#000000' : '#1f6c4a' })
  }
  for (const shape of shapes) add(svg, shape, strong)
  return svg
}

function add (svg, [kind, fill, fillAlpha, pen, penAlpha, breadth, round, tenths, text, font, across, down], strong) {
  const colours = strong ? strongest : usual
  const [x, y, width, height] = tenths.map(each => each / 10)
  const look = {
    fill: fill ? colours[fill] : 'none',
    ...(fill && fillAlpha < 255 && { 'fill-opacity': (fillAlpha / 255).toFixed(2) }),
    ...(pen && { stroke: colours[pen], 'stroke-width': breadth / 10 }),
    ...(pen && penAlpha < 255 && { 'stroke-opacity': (penAlpha / 255).toFixed(2) })
  }
  const points = () => tenths.map(each => each / 10).join(' ')
  switch (kind) {
    case kinds.plate:
      if (!strong) make('rect', svg, { x: x - 1, y, width: width + 2, height: height + 3, rx: 8, fill: '#000000', 'fill-opacity': 0.25 })
      return make('rect', svg, { x: x + 0.5, y: y + 0.5, width: width - 1, height: height - 1, rx: 7, fill: strong ? '#000000' : '#fbf6e8', stroke: strong ? '#ffffff' : '#ae9049' })
    case kinds.line:
      return make('line', svg, { x1: x, y1: y, x2: width, y2: height, ...look })
    case kinds.curve:
      return make('polyline', svg, { points: points(), 'stroke-linejoin': 'round', 'stroke-linecap': 'round', ...look })
    case kinds.polygon:
      return make('polygon', svg, { points: points(), ...look })
    case kinds.dot:
      return make('circle', svg, { cx: x, cy: y, r: round / 10, ...look })
    case kinds.box:
      return make('rect', svg, { x, y, width, height, rx: round / 10, ...look })
  }
  const [size, weight] = fonts[font]
  const line = down === onLine ? y : down ? y + height / 2 + below * size : y + ascent * size
  make('text', svg, {
    x: x + width * across / 2, y: line.toFixed(1), 'font-size': size, 'font-weight': weight, 'text-anchor': anchors[across], fill: colours[pen]
  }).textContent = text
}
