#include "window/desktop/painting/baize.h"

#include <QPainter>
#include <QRadialGradient>
#include <cmath>
#include <cstdint>

#include "window/desktop/painting/style.h"

namespace {

constexpr int kTile = 96;

// A tile of barely visible light and dark threads.
QImage Grain() {
  QImage tile(kTile, kTile, QImage::Format_ARGB32_Premultiplied);
  uint32_t state = 0x2545f491;
  for (int y = 0; y < kTile; ++y) {
    auto* row = reinterpret_cast<QRgb*>(tile.scanLine(y));
    for (int x = 0; x < kTile; ++x) {
      state ^= state << 13;
      state ^= state >> 17;
      state ^= state << 5;
      const int strength = static_cast<int>(state & 0xff);
      const int alpha = 3 + strength % 9;
      row[x] = strength & 0x80 ? qPremultiply(qRgba(255, 255, 240, alpha / 2)) : qRgba(0, 0, 0, alpha);
    }
  }
  return tile;
}

}  // namespace

QPixmap Baize(QSize size, double scale) {
  const QSize pixels(std::max(1, int(std::lround(size.width() * scale))),
                     std::max(1, int(std::lround(size.height() * scale))));
  QImage cloth(pixels, QImage::Format_RGB32);
  QPainter painter(&cloth);
  QRadialGradient light(pixels.width() * 0.5, pixels.height() * 0.36,
                        std::hypot(pixels.width(), pixels.height()) * 0.68);
  light.setColorAt(0, style::kBaize);
  light.setColorAt(0.55, QColor(0x1f, 0x6c, 0x4a));
  light.setColorAt(1, QColor(0x10, 0x47, 0x31));
  painter.fillRect(cloth.rect(), light);
  painter.drawTiledPixmap(cloth.rect(), QPixmap::fromImage(Grain()));
  painter.end();
  QPixmap result = QPixmap::fromImage(std::move(cloth));
  result.setDevicePixelRatio(scale);
  return result;
}
