#include "window/desktop/painting/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <optional>
#include <system_error>

#include "window/desktop/painting/screening.h"
#include "window/desktop/painting/style.h"
#include "window/system/folders.h"
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
  std::optional<leaving::Held> drawing;
  if (origin == Origin::Player) drawing.emplace();
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

Pictures::Drawn& Pictures::DrawnAt(double scale) {
  constexpr size_t kScales = 3;  // of the selector, a game, and a pointer
  auto known = std::ranges::find(drawn_, scale, [](const auto& each) { return each.first; });
  if (known == drawn_.end()) {
    if (drawn_.size() >= kScales) drawn_.erase(drawn_.begin());
    drawn_.push_back({scale, {}});
  } else if (known + 1 != drawn_.end()) {
    std::rotate(known, known + 1, drawn_.end());
  }
  return drawn_.back().second;
}

QPixmap Pictures::Get(int index, bool framed, double scale) {
  const Which which(index, framed);
  const auto find = [&] {
    const Drawn& drawn = DrawnAt(scale);
    const auto found = drawn.find(which);
    return found == drawn.end() ? QPixmap() : found->second;
  };
  QPixmap picture = find();
  // A window that fills the screen after all doesn't wait for the size that it doesn't have.
  if (picture.isNull() && ahead_ && ahead_->scale == scale) {
    Finish();
    picture = find();
  }
  return picture.isNull() ? Keep(which, scale, Draw(which, scale, Sources::All)) : picture;
}

QPixmap Pictures::Keep(Which which, double scale, QImage image) {
  QPixmap picture = QPixmap::fromImage(std::move(image));
  picture.setDevicePixelRatio(scale);
  DrawnAt(scale).insert_or_assign(which, picture);
  return picture;
}

bool Pictures::HasOwn(int index) const {
  const PictureFile* file = Find(index);
  return file && (folders::Exists(own_ / file->file) || folders::Exists(own_ / kFourColours / file->file));
}

void Pictures::Prepare(std::vector<Which> wanted, double scale) {
  Finish();
  // A file of the player's own may be anything: it is met where the program can leave in the middle.
  const Drawn& drawn = DrawnAt(scale);
  std::erase_if(wanted, [&](const Which& which) { return drawn.contains(which) || HasOwn(which.first); });
  const size_t processors = std::thread::hardware_concurrency();
  if (wanted.empty() || processors < 2) return;
  ahead_ = std::make_unique<Ahead>();
  ahead_->scale = scale;
  ahead_->images.resize(wanted.size());
  ahead_->wanted = std::move(wanted);
  try {
    while (ahead_->helpers.size() < std::min(processors - 1, ahead_->wanted.size()))
      ahead_->helpers.emplace_back([this, &ahead = *ahead_] { DrawAhead(ahead); });
  } catch (const std::system_error&) {
    // Those that are there do it, and whoever asks for a picture.
  }
}

void Pictures::DrawAhead(Ahead& ahead) const {
  for (size_t i = ahead.next++; i < ahead.wanted.size(); i = ahead.next++)
    ahead.images[i] = Draw(ahead.wanted[i], ahead.scale, Sources::SuiteAlone);
}

void Pictures::Finish() {
  if (!ahead_) return;
  DrawAhead(*ahead_);
  const std::unique_ptr<Ahead> done = std::move(ahead_);
  done->helpers.clear();
  for (size_t i = 0; i < done->wanted.size(); ++i)
    if (!done->images[i].isNull()) Keep(done->wanted[i], done->scale, std::move(done->images[i]));
}

QImage Pictures::Other(const std::string& file, QSize size) const {
  const QImage own = DrawFile(own_ / file, size);
  return own.isNull() ? DrawFrom(Origin::Suite, installed_ / file, size) : own;
}

void Pictures::SetFourColours(bool four) {
  Finish();
  if (std::exchange(fourColours_, four) != four) drawn_.clear();
}

void Pictures::SetStrongEdges(bool strong) {
  Finish();
  if (std::exchange(strongEdges_, strong) != strong) drawn_.clear();
}

QImage Pictures::Draw(Which which, double scale, Sources sources) const {
  const auto& [index, framed] = which;
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
      if (origin == Origin::Player && sources == Sources::SuiteAlone) continue;
      const fs::path& folder = origin == Origin::Player ? own_ : installed_;
      if (fourColours_) drawn = Render(folder / kFourColours / file->file, origin, painter, inner);
      if (!drawn) drawn = Render(folder / file->file, origin, painter, inner);
    }
    if (!drawn && sources == Sources::SuiteAlone) return {};
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
  return image;
}
