// Draws all card pictures on one sheet, so that they can be looked at side by side.
//
//   contact-sheet PICTURES-DIR OUT.png SCALE            all pictures with their numbers and names
//   contact-sheet --strips PICTURES-DIR OUT.png SCALE   what is left of each face under other cards
//   contact-sheet --time PICTURES-DIR                   how long each picture takes to read and to draw
//
// SCALE is in percent.
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

#include "catalogue.h"

namespace {

using pictures::Entry;

const QColor kTable(0x1F, 0x6B, 0x45);
const QColor kCaption(0xE8, 0xF2, 0xEA);
const QColor kFrame(0x20, 0x1C, 0x22);
constexpr int kFaceWidth = 69;
constexpr int kVisible = 24;  // What shows of a card that lies under others, its frame counted.

bool IsFace(const Entry& entry) { return entry.width == kFaceWidth; }

QString PathOf(const QString& dir, const Entry& entry) {
  return dir + '/' + QString::fromStdString(entry.file);
}

QImage Render(const QString& dir, const Entry& entry, double scale) {
  QSvgRenderer renderer(PathOf(dir, entry));
  if (!renderer.isValid()) {
    std::fprintf(stderr, "contact-sheet: cannot read %s\n", entry.file.c_str());
    return {};
  }
  const QSize size(qRound(entry.width * scale), qRound(entry.height * scale));
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter, QRectF(QPointF(0, 0), size));
  return image;
}

/// Draws the picture with its left top corner at `place`; faces get their frame of one pixel.
void PaintCard(QPainter& painter, const Entry& entry, const QImage& image, QPoint place) {
  const int frame = IsFace(entry) ? 1 : 0;
  if (frame > 0) painter.fillRect(QRect(place, image.size() + QSize(2 * frame, 2 * frame)), kFrame);
  painter.drawImage(place + QPoint(frame, frame), image);
}

QImage Sheet(const std::vector<Entry>& entries, const std::vector<QImage>& images, double scale) {
  constexpr int kColumns = 13;
  constexpr int kGap = 10;
  const int text_height = qRound(6 + 4 * scale);
  const int caption_height = text_height + 4;
  const int cell_width = qRound(76 * scale) + kGap;
  const int cell_height = qRound(100 * scale) + kGap + caption_height;
  const int rows = (static_cast<int>(entries.size()) + 1 + kColumns - 1) / kColumns;
  QImage sheet(kColumns * cell_width + kGap, rows * cell_height + kGap, QImage::Format_RGB32);
  sheet.fill(kTable);
  QPainter painter(&sheet);
  QFont font("DejaVu Sans");
  font.setPixelSize(text_height);
  painter.setFont(font);
  painter.setPen(kCaption);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    // The backs and the empty place fill the first row, so each suit stands in a row of its own.
    const int column = static_cast<int>(i) % kColumns;
    const int row = static_cast<int>(i) / kColumns;
    const QPoint place(kGap + column * cell_width, kGap + row * cell_height);
    PaintCard(painter, entries[i], images[i], place);
    const QString name = QString::fromStdString(entries[i].file).chopped(4);
    painter.drawText(QRect(place.x(), place.y() + qRound(100 * scale), cell_width, caption_height),
                     Qt::AlignLeft | Qt::AlignVCenter, QString("%1 %2").arg(i + 1).arg(name));
  }
  return sheet;
}

/// The faces as they lie in fans: only the top edge or only the left edge of each one shows.
QImage Strips(const std::vector<Entry>& entries, const std::vector<QImage>& images, double scale) {
  constexpr int kGap = 10;
  const int card_width = qRound(71 * scale);
  const int card_height = qRound(96 * scale);
  const int step = qRound(kVisible * scale);
  const int top_height = step * 12 + card_height;
  const int left_width = step * 12 + card_width;
  QImage sheet(4 * (card_width + kGap) + left_width + 2 * kGap,
               std::max(top_height, 4 * (card_height + kGap)) + 2 * kGap, QImage::Format_RGB32);
  sheet.fill(kTable);
  QPainter painter(&sheet);
  int face = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!IsFace(entries[i])) continue;
    const int suit = face / pictures::kRankCount;
    const int rank = face % pictures::kRankCount;
    PaintCard(painter, entries[i], images[i], QPoint(kGap + suit * (card_width + kGap), kGap + rank * step));
    PaintCard(painter, entries[i], images[i],
              QPoint(kGap + 4 * (card_width + kGap) + rank * step, kGap + suit * (card_height + kGap)));
    ++face;
  }
  return sheet;
}

/// The shortest of many runs, because longer ones tell more about the rest of the machine.
template <typename Run>
double ShortestMilliseconds(Run run) {
  constexpr int kRuns = 50;
  qint64 shortest = std::numeric_limits<qint64>::max();
  QElapsedTimer timer;
  for (int i = 0; i < kRuns; ++i) {
    timer.start();
    run();
    shortest = std::min(shortest, timer.nsecsElapsed());
  }
  return static_cast<double>(shortest) / 1e6;
}

int PrintTimes(const QString& dir, const std::vector<Entry>& entries) {
  double total = 0;
  double worst = 0;
  qint64 bytes = 0;
  std::printf("%-16s %8s %10s %10s %12s\n", "file", "bytes", "read ms", "draw ms", "draw 3x ms");
  for (const Entry& entry : entries) {
    const QString path = PathOf(dir, entry);
    const double read = ShortestMilliseconds([&] { QSvgRenderer renderer(path); });
    QSvgRenderer renderer(path);
    if (!renderer.isValid()) return 1;
    double draw[2] = {};
    for (int size = 0; size < 2; ++size) {
      const int factor = size == 0 ? 1 : 3;
      QImage image(entry.width * factor, entry.height * factor, QImage::Format_ARGB32_Premultiplied);
      QPainter painter(&image);
      painter.setRenderHint(QPainter::Antialiasing);
      draw[size] = ShortestMilliseconds([&] { renderer.render(&painter); });
    }
    const qint64 file_bytes = QFileInfo(path).size();
    std::printf("%-16s %8lld %10.3f %10.3f %12.3f\n", entry.file.c_str(), static_cast<long long>(file_bytes),
                read, draw[0], draw[1]);
    total += read + draw[0];
    worst = std::max(worst, read + draw[0]);
    bytes += file_bytes;
  }
  std::printf("all: %lld bytes, %.1f ms, slowest %.2f ms (read and draw at 100 %%)\n",
              static_cast<long long>(bytes), total, worst);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  // No window is opened, so no screen is needed.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QStringList arguments = app.arguments().mid(1);
  const bool strips = arguments.removeAll("--strips") > 0;
  const bool time = arguments.removeAll("--time") > 0;
  const std::vector<Entry> entries = pictures::Catalogue();
  if (time && arguments.size() == 1) return PrintTimes(arguments[0], entries);
  const double scale = arguments.size() == 3 ? arguments[2].toDouble() / 100 : 0;
  if (time || scale <= 0) {
    std::fprintf(stderr,
                 "usage: contact-sheet [--strips] PICTURES-DIR OUT.png SCALE\n"
                 "       contact-sheet --time PICTURES-DIR\n");
    return 2;
  }
  std::vector<QImage> images;
  for (const Entry& entry : entries) {
    images.push_back(Render(arguments[0], entry, scale));
    if (images.back().isNull()) return 1;
  }
  const QImage sheet = strips ? Strips(entries, images, scale) : Sheet(entries, images, scale);
  if (sheet.save(arguments[1])) return 0;
  std::fprintf(stderr, "contact-sheet: cannot write %s\n", qPrintable(arguments[1]));
  return 1;
}
