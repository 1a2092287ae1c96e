// Renders the icons to images, for menus and software centres that take no drawings.
//
//   render-icons ICONS-DIR           writes them, a folder for each size
//   render-icons --check ICONS-DIR   whether they are there, and look like what would be written
#include <QColor>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};
// How far a colour may be off: renderers smooth edges in their own ways.
constexpr int kTolerance = 24;

// The drawing for that size: the one made for it, if there is one.
QString DrawingOf(const QString& folder, const QString& name, int size) {
  const QString own = folder + QString("/%1-%2.svg").arg(name).arg(size);
  return QFile::exists(own) ? own : folder + "/" + name + ".svg";
}

QImage Render(const QString& drawing, int size) {
  QSvgRenderer renderer(drawing);
  QImage image(size, size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter, QRectF(0, 0, size, size));
  return renderer.isValid() ? image : QImage();
}

bool LooksLike(const QImage& a, const QImage& b) {
  if (a.size() != b.size() || a.isNull()) return false;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QColor one = a.pixelColor(x, y), other = b.pixelColor(x, y);
      if (one.alpha() == 0 && other.alpha() == 0) continue;
      for (const int apart : {one.red() - other.red(), one.green() - other.green(), one.blue() - other.blue(),
                              one.alpha() - other.alpha()})
        if (std::abs(apart) > kTolerance) return false;
    }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  const bool checks = argc == 3 && std::strcmp(argv[1], "--check") == 0;
  if (argc != (checks ? 3 : 2)) {
    std::fprintf(stderr, "usage: render-icons [--check] ICONS-DIR\n");
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[argc - 1]);
  for (const char* name : {"card-haven", "card-haven-game"})
    for (const int size : kSizes) {
      const QImage image = Render(DrawingOf(folder, name, size), size);
      const QString place = folder + QString("/%1x%1").arg(size), file = place + "/" + name + ".png";
      const bool done = checks ? LooksLike(QImage(file).convertToFormat(QImage::Format_ARGB32), image)
                               : QDir().mkpath(place) && image.save(file);
      if (done) continue;
      std::fprintf(stderr, "render-icons: %s %s\n", qPrintable(file),
                   checks ? "isn't what the drawing looks like" : "can't be written");
      return 1;
    }
  return 0;
}
