#include "window/desktop/painting/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "window/desktop/painting/screening.h"
#include "window/desktop/painting/style.h"
#include "window/system/foreign_files.h"
#include "window/system/leaving.h"

namespace fs = std::filesystem;

namespace {

constexpr char kFourColours[] = "four-colour";
constexpr double kCorner = 4;  // radius of a framed card's corners

enum class Origin { Player, Suite };

// What is refused is told in one line; nothing is said of a file that isn't there. Ours need no screening.
bool Render(const fs::path& path, Origin origin, QPainter& painter, const QRectF& rect) {
  std::string text, why;
  if (!ReadForeignFile(path, kLargestPicture, text, why)) return false;
  const leaving::Held drawing;
  QSvgRenderer renderer;
  if (why.empty() && origin == Origin::Player) why = WhyNotDraw(text);
  if (why.empty() && !renderer.load(QByteArray::fromStdString(text))) why = "it is no picture";
  if (why.empty()) {
    renderer.render(&painter, rect);
    return true;
  }
  TellRefused(path, why);
  return false;
}

void DrawSubstitute(QPainter& painter, const QRectF& rect, const QString& name) {
  painter.setPen(QPen(QColor(0x80, 0x78, 0x68), 1, Qt::DashLine));
  painter.setBrush(style::kPaper);
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  QFont font;
  font.setPixelSize(std::clamp(static_cast<int>(rect.width() / 5), 8, 14));
  painter.setFont(font);
  painter.setPen(style::kInk);
  painter.drawText(rect, Qt::AlignCenter | Qt::TextWrapAnywhere, name);
}

QImage DrawFrom(Origin origin, const fs::path& file, QSize size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  return Render(file, origin, painter, QRectF(QPointF(0, 0), QSizeF(size))) ? image : QImage();
}

}  // namespace

QImage DrawFile(const fs::path& file, QSize size) { return DrawFrom(Origin::Player, file, size); }

Pictures::Pictures(PictureFiles files, fs::path own, fs::path installed)
    : files_(std::move(files)), own_(std::move(own)), installed_(std::move(installed)) {}

const PictureFile* Pictures::Find(int index) const {
  return index >= 1 && index <= static_cast<int>(files_.size()) ? &files_[index - 1] : nullptr;
}

QSize Pictures::Size(int index) const {
  const PictureFile* file = Find(index);
  return file ? QSize(file->width, file->height) : QSize(71, 96);
}

PictureKind Pictures::KindOf(int index) const {
  const PictureFile* file = Find(index);
  return file ? file->kind : PictureKind::Other;
}

QPixmap Pictures::Get(int index, bool framed, double scale) {
  constexpr size_t kScales = 3;  // of the selector, a game, and a pointer
  auto known = std::ranges::find(drawn_, scale, [](const auto& each) { return each.first; });
  if (known == drawn_.end()) {
    if (drawn_.size() >= kScales) drawn_.erase(drawn_.begin());
    drawn_.push_back({scale, {}});
  } else if (known + 1 != drawn_.end()) {
    std::rotate(known, known + 1, drawn_.end());
  }
  auto& drawn = drawn_.back().second;
  auto found = drawn.find({index, framed});
  if (found == drawn.end()) found = drawn.emplace(std::pair(index, framed), Draw(index, framed, scale)).first;
  return found->second;
}

QImage Pictures::Other(const std::string& file, QSize size) const {
  const QImage own = DrawFile(own_ / file, size);
  return own.isNull() ? DrawFrom(Origin::Suite, installed_ / file, size) : own;
}

void Pictures::SetFourColours(bool four) {
  if (std::exchange(fourColours_, four) != four) drawn_.clear();
}

void Pictures::SetStrongEdges(bool strong) {
  if (std::exchange(strongEdges_, strong) != strong) drawn_.clear();
}

QPixmap Pictures::Draw(int index, bool framed, double scale) const {
  const QSize natural = Size(index);
  const QSize outer = natural + (framed ? QSize(2, 2) : QSize(0, 0));
  const QSize pixels(std::lround(outer.width() * scale), std::lround(outer.height() * scale));
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels.width() / double(outer.width()), pixels.height() / double(outer.height()));
    const QRectF inner =
        framed ? QRectF(QPointF(1, 1), QSizeF(natural)) : QRectF(QPointF(0, 0), QSizeF(natural));
    const PictureFile* file = Find(index);
    bool drawn = false;
    for (const Origin origin : {Origin::Player, Origin::Suite}) {
      if (!file || drawn) break;
      const fs::path& folder = origin == Origin::Player ? own_ : installed_;
      if (fourColours_) drawn = Render(folder / kFourColours / file->file, origin, painter, inner);
      if (!drawn) drawn = Render(folder / file->file, origin, painter, inner);
    }
    if (!drawn)
      DrawSubstitute(
          painter, inner,
          file ? QString::fromStdString(fs::path(file->file).stem().string()) : QString::number(index));
  }
  if (framed) {
    // Round corners: what the frame doesn't hold is cut away, then the frame is drawn over the edge.
    QImage rounded(pixels, QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(image));
    painter.drawRoundedRect(QRectF(rounded.rect()), kCorner * scale, kCorner * scale);
    const double pen = std::max(1.0, std::floor(strongEdges_ ? 2 * scale : scale));
    painter.setPen(QPen(strongEdges_ ? QColor(Qt::black) : QColor(0x3a, 0x36, 0x30), pen));
    painter.setBrush(Qt::NoBrush);
    const double half = pen / 2, radius = kCorner * scale - half;
    painter.drawRoundedRect(QRectF(rounded.rect()).adjusted(half, half, -half, -half), radius, radius);
    painter.end();
    image = std::move(rounded);
  }
  QPixmap pixmap = QPixmap::fromImage(std::move(image));
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}
