#include "window/desktop/painting/motion.h"

#include <QLocale>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "window/desktop/painting/style.h"

namespace {

constexpr int kFrame = 17;  // milliseconds
constexpr int kGlide = 120, kTurn = 100, kFade = 120, kSum = 900, kFlash = 260;
constexpr size_t kMost = 8;   // more cards at once are a deal: they lie there at once
constexpr int kCredit = 400;  // milliseconds after which points have nothing to do with cards that went
constexpr double kRise = 34;  // pixels that a sum floats up
constexpr QColor kRefused(0xe0, 0x1b, 0x24);

double Eased(double progress) { return 1 - std::pow(1 - progress, 3); }

// All that a picture there may touch, shadow included.
QRect Around(const QRectF& rect) { return rect.toAlignedRect().adjusted(-3, -3, 5, 6); }

QPixmap DrawSum(const QString& text, double scale) {
  const QFont font = style::Letters(18, true);
  const QFontMetricsF metrics(font);
  const QSizeF size(metrics.horizontalAdvance(text) + 12, metrics.height() + 8);
  QPixmap drawn((size * scale).toSize());
  drawn.setDevicePixelRatio(scale);
  drawn.fill(Qt::transparent);
  QPainter painter(&drawn);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath letters;
  letters.addText(QPointF(6, 4 + metrics.ascent()), font, text);
  painter.strokePath(letters, QPen(style::kDeepInk, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(letters, QColor(0xff, 0xdf, 0x7e));
  return drawn;
}

}  // namespace

Motion::Motion(const Form& form, const Paintbox& paintbox, std::function<void(const QRect&)> repaint)
    : paintbox_(paintbox), repaint_(std::move(repaint)) {
  for (const Control* control : form.Controls())
    if (control->kind == Control::Kind::Image && control->parent == &form)
      images_.push_back(static_cast<const Image*>(control));
  clock_.start();
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setInterval(kFrame);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Step(); });
}

Motion::Face Motion::FaceOf(const Image& image) const {
  Face face{0, false, DrawnRect(image, paintbox_.pictures)};
  if (IsShown(image)) face.picture = image.Picture;
  if (face.picture != 0) face.framed = image.BorderStyle == 1;
  return face;
}

// The pile from which new cards come, if there is just one.
const Image* Motion::Pile() const {
  std::vector<const Image*> piles, backs;  // the last card of a pile looks like any other back
  for (const auto& [image, face] : known_) {
    const PictureKind kind = paintbox_.pictures.KindOf(face.picture);
    if (kind == PictureKind::Pile) piles.push_back(image);
    if (kind == PictureKind::Back) backs.push_back(image);
  }
  const std::vector<const Image*>& found = piles.empty() ? backs : piles;
  return found.size() == 1 ? found.front() : nullptr;
}

void Motion::Changed(const Visual& control) {
  if (images_.empty() || !IsOn()) return;
  changed_ = true;
  if (control.kind != Control::Kind::Image) return;
  const auto known = known_.find(static_cast<const Image*>(&control));
  if (known == known_.end()) return;
  const Face face = FaceOf(*known->first);
  if (face.IsCard() && !face.LooksLike(known->second)) passing_.push_back(face);
}

std::vector<Motion::Change> Motion::TakeChanges() {
  std::vector<Change> changes;
  for (const Image* image : images_) {
    const Face face = FaceOf(*image);
    const auto [known, isNew] = known_.try_emplace(image, face);
    if (!isNew && known->second != face) changes.push_back({image, known->second, face});
    known->second = face;
  }
  return changes;
}

// Where the card that is held lies elsewhere by now, it has set out from where it was held.
void Motion::Settle(const Ground& ground) {
  SettleCards(ground);
  if (!carried_ || FaceOf(*carried_) == carriedFace_) return;
  RepaintCarried();
  carried_ = nullptr;
}

void Motion::SettleCards(const Ground& ground) {
  if (!IsOn()) {
    known_.clear();
    return Drop();
  }
  if (!changed_ && !known_.empty()) return;
  changed_ = false;
  const bool known = !known_.empty() && size_ == ground.size && ground.shows;
  size_ = ground.size;
  GoOn();
  std::vector<Change> changes = TakeChanges();
  const long long before = std::exchange(score_, ground.score);
  if (!known) {
    passing_.clear();
    return Drop();
  }
  if (clearedIn_ != paintbox_.occasion.number || now_ - clearedAt_ > kCredit) clearedAt_ = -1;
  // Places that come and go are a board that is laid out, covered or cleared away.
  const auto place = [](const Face& face) { return face.picture != 0 && !face.framed; };
  const bool covered = std::ranges::any_of(
      changes, [&](const Change& each) { return place(each.before) && each.after.picture == 0; });
  const bool laidOut = std::ranges::any_of(
      changes, [&](const Change& each) { return each.before.picture == 0 && place(each.after); });
  if (covered)
    Drop();
  else if (laidOut || changes.size() > kMost)
    RemoveCards();
  else if (!changes.empty())
    Begin(changes);
  if (covered || changes.size() > kMost) clearedAt_ = -1;
  passing_.clear();
  if (score_ > before && clearedAt_ >= 0) FloatSum(score_ - before, ground);
}

void Motion::Begin(std::vector<Change>& changes) {
  const Image* const pile = Pile();
  const Control* const clicked = paintbox_.occasion.clicked;
  const bool fromPile = pile && clicked == pile;
  std::vector<Piece> begun;
  for (Change& to : changes) {
    if (!to.after.IsCard()) continue;
    if (to.after.LooksLike(to.before)) {
      begun.push_back({Piece::Kind::Glide,
                       to.image,
                       to.after,
                       {},
                       WhereNow(*to.image, to.before.rect),
                       to.after.rect,
                       now_});
      to.left = to.covered = true;
      continue;
    }
    const auto from = std::ranges::find_if(changes, [&](const Change& each) {
      return &each != &to && !each.left && each.before.LooksLike(to.after) && !each.after.LooksLike(to.after);
    });
    if (from == changes.end()) continue;
    from->left = to.covered = true;
    begun.push_back({Piece::Kind::Glide, to.image, to.after, to.before,
                     WhereNow(*from->image, from->before.rect), to.after.rect, now_});
  }
  const auto isBack = [this](const Face& face) {
    return paintbox_.pictures.KindOf(face.picture) == PictureKind::Back;
  };
  for (Change& each : changes) {
    if (each.after.IsCard() ? isBack(each.before) : each.before.IsCard() && isBack(each.after)) {
      if (each.covered || (!each.after.IsCard() && each.left)) continue;
      begun.push_back(
          {Piece::Kind::Turn, each.image, each.after, each.before, each.after.rect, each.after.rect, now_});
      each.left = each.covered = true;
      continue;
    }
    if (!each.after.IsCard() || each.covered || !pile || pile == each.image) continue;
    // Where a card was taken off another one, that one lay there all the time.
    const bool layBeneath =
        each.before.IsCard() && !each.left && !fromPile && clicked && clicked->kind == Control::Kind::Image;
    if (layBeneath) continue;
    each.covered = true;
    begun.push_back({Piece::Kind::Glide, each.image, each.after, each.before,
                     QRectF(known_[pile].rect.topLeft(), each.after.rect.size()), each.after.rect, now_});
  }
  // A card whose own place is free by now leaves nothing behind there.
  for (Piece& piece : begun)
    if (std::ranges::any_of(changes, [&](const Change& each) {
          return each.image == piece.control && each.left && piece.kind == Piece::Kind::Glide;
        }))
      piece.beneath = {};

  std::vector<QPointF> cleared, taken;
  for (const Change& each : changes) {
    if (!each.before.IsCard() || each.after.LooksLike(each.before)) continue;
    if (each.left) {
      taken.push_back(QRectF(each.before.rect).center());
      continue;
    }
    if (each.covered) continue;
    const auto laid = std::ranges::find_if(passing_, [&](const Face& face) {
      return face.LooksLike(each.before) && face.rect != each.before.rect;
    });
    const QRect to = laid != passing_.end()   ? laid->rect
                     : each.image == carried_ ? CarriedTo().toAlignedRect()
                                              : each.before.rect;
    cleared.push_back(QRectF(to).center());
    begun.push_back(
        {Piece::Kind::Fade, nullptr, each.before, {}, WhereNow(*each.image, each.before.rect), to, now_});
  }
  const std::vector<QPointF>& where = cleared.empty() ? taken : cleared;
  if (!where.empty()) {
    cleared_ = std::accumulate(where.begin(), where.end(), QPointF()) / static_cast<double>(where.size());
    clearedAt_ = now_;
    clearedIn_ = paintbox_.occasion.number;
  }

  // What still moves to a place that has changed again goes on from where it is.
  QRegion left;
  std::erase_if(pieces_, [&](const Piece& piece) {
    const bool replaced = std::ranges::any_of(
        changes, [&](const Change& each) { return piece.control == each.image && each.before.picture != 0; });
    if (replaced) left += piece.painted;
    return replaced;
  });
  for (const QRect& rect : left) repaint_(rect);
  for (Piece& piece : begun) Add(std::move(piece));
}

void Motion::FloatSum(long long sum, const Ground& ground) {
  clearedAt_ = -1;
  const QString text = "+" + QLocale(QLocale::English).toString(sum);
  Piece piece{Piece::Kind::Sum, nullptr, {}, {}, {}, {}, now_};
  piece.sum = DrawSum(text, ground.scale);
  const QSizeF size = piece.sum.deviceIndependentSize() / ground.zoom;
  const QSizeF board = QSizeF(ground.size) / ground.zoom;
  const double left =
      std::clamp(cleared_.x() - size.width() / 2, 0.0, std::max(0.0, board.width() - size.width()));
  const double top =
      std::clamp(cleared_.y() - size.height() / 2, kRise, std::max(kRise, board.height() - size.height()));
  piece.from = QRectF(QPointF(left, top), size);
  piece.to = piece.from.translated(0, -kRise);
  Add(std::move(piece));
}

void Motion::Refuse(const Visual& control) {
  if (!IsOn() || !IsShown(control)) return;
  std::erase_if(pieces_, [&](const Piece& each) {
    return each.kind == Piece::Kind::Flash && each.control == &control;
  });
  GoOn();
  const QRectF rect = DrawnRect(control, paintbox_.pictures);
  Add({Piece::Kind::Flash, &control, {}, {}, rect, rect, now_});
}

// --- A card in the hand --------------------------------------------------------------------------

void Motion::Carry(const Image& card, QPointF by, const Visual* aim) {
  if (carried_) RepaintCarried();
  if (carried_ != &card) carriedFace_ = FaceOf(card);
  carried_ = &card;
  carriedBy_ = by;
  aim_ = aim;
  RepaintCarried();
}

void Motion::RepaintCarried() const {
  repaint_(Around(CarriedTo()));
  repaint_(Around(carriedFace_.rect));
  if (aim_) repaint_(Around(DrawnRect(*aim_, paintbox_.pictures)));
}

void Motion::PutBack() {
  if (!carried_) return;
  RepaintCarried();
  const Image* const card = std::exchange(carried_, nullptr);
  if (!IsOn()) return;
  GoOn();
  Add({Piece::Kind::Glide, card, carriedFace_, {}, CarriedTo(), carriedFace_.rect, now_});
}

// --- Frames --------------------------------------------------------------------------------------

void Motion::Add(Piece piece) {
  piece.painted = Around(AreaOf(piece));
  repaint_(piece.painted | Around(piece.from));
  pieces_.push_back(std::move(piece));
  if (!timer_.isActive()) timer_.start();
}

void Motion::RemoveCards() {
  std::erase_if(pieces_, [this](const Piece& piece) {
    const bool isCard = piece.kind != Piece::Kind::Sum && piece.kind != Piece::Kind::Flash;
    if (isCard) repaint_(piece.painted | Around(piece.to));
    return isCard;
  });
}

void Motion::Drop() {
  for (const Piece& piece : pieces_) repaint_(piece.painted | Around(piece.to));
  pieces_.clear();
  timer_.stop();
}

void Motion::GoOn() {
  now_ = clock_.elapsed();
  for (Piece& piece : pieces_) {
    repaint_(piece.painted);
    piece.painted = Around(AreaOf(piece));
    repaint_(piece.painted);
  }
}

void Motion::Step() {
  if (!IsOn()) return Drop();
  GoOn();
  std::erase_if(pieces_, [this](const Piece& piece) { return Progress(piece) >= 1; });
  if (pieces_.empty()) timer_.stop();
}

// The first frame has gone a step already, so that the board answers at once.
double Motion::Progress(const Piece& piece) const {
  static constexpr int kLengths[] = {kTurn, kFade, kGlide, kFlash, kSum};
  const double length = kLengths[static_cast<int>(piece.kind)];
  return std::clamp(static_cast<double>(now_ - piece.begun + kFrame) / length, 0.0, 1.0);
}

QRectF Motion::AreaOf(const Piece& piece) const {
  const double progress = Eased(Progress(piece));
  const QPointF way = piece.to.topLeft() - piece.from.topLeft();
  return {piece.from.topLeft() + way * progress, piece.to.size()};
}

// Where the card of this image is seen just now.
QRectF Motion::WhereNow(const Image& image, const QRect& rest) const {
  if (&image == carried_) return CarriedTo();
  for (const Piece& piece : pieces_)
    if (piece.control == &image && piece.kind == Piece::Kind::Glide) return AreaOf(piece);
  return rest;
}

// --- Painting ------------------------------------------------------------------------------------

bool Motion::PaintInstead(const Easel& easel, const Placed& placed) const {
  if (placed.control == carried_) {
    easel.painter.save();
    easel.painter.setOpacity(0.35);
    PaintPicture(easel, carriedFace_.picture, carriedFace_.framed, carriedFace_.rect);
    easel.painter.restore();
    return true;
  }
  for (const Piece& piece : pieces_) {
    if (piece.control != placed.control) continue;
    if (piece.kind == Piece::Kind::Glide) {
      if (piece.beneath.picture != 0)
        PaintPicture(easel, piece.beneath.picture, piece.beneath.framed, piece.beneath.rect);
      return true;
    }
    if (piece.kind == Piece::Kind::Turn) {
      const double progress = Progress(piece);
      const Face& side = progress < 0.5 ? piece.beneath : piece.shown;
      QPainter& painter = easel.painter;
      painter.save();
      painter.setRenderHint(QPainter::SmoothPixmapTransform);
      const double middle = QRectF(side.rect).center().x();
      painter.translate(middle, 0);
      painter.scale(std::max(0.04, std::abs(1 - 2 * progress)), 1);
      painter.translate(-middle, 0);
      PaintPicture(easel, side.picture, side.framed, side.rect);
      painter.restore();
      return true;
    }
  }
  return false;
}

void Motion::PaintAbove(const Easel& easel) const {
  QPainter& painter = easel.painter;
  // Cards on their way lie on each other as they will when they have come.
  const auto height = [&](const Piece& piece) {
    const auto found = std::ranges::find(easel.scene, piece.control, &Placed::control);
    return std::pair(piece.kind, found - easel.scene.begin());
  };
  std::vector<const Piece*> order;
  for (const Piece& piece : pieces_)
    if (piece.kind != Piece::Kind::Turn) order.push_back(&piece);
  std::ranges::stable_sort(order, {}, [&](const Piece* piece) { return height(*piece); });
  for (const Piece* each : order) {
    const Piece& piece = *each;
    const QRectF area = AreaOf(piece);
    const double progress = Progress(piece);
    painter.save();
    switch (piece.kind) {
      case Piece::Kind::Fade:
        painter.setOpacity(1 - progress * progress);
        [[fallthrough]];
      case Piece::Kind::Glide:
        PaintPicture(easel, piece.shown.picture, piece.shown.framed, area);
        break;
      case Piece::Kind::Flash:
        if (!IsShown(*piece.control)) break;
        painter.setOpacity(1 - progress * progress);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(255, 255, 255, 170), 5));
        painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), 5, 5);
        painter.setPen(QPen(kRefused, 3));
        painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), 5, 5);
        break;
      default:
        painter.setOpacity(std::clamp(2.5 * (1 - progress), 0.0, 1.0));
        painter.drawPixmap(area, piece.sum, QRectF(piece.sum.rect()));
        break;
    }
    painter.restore();
  }
  if (!carried_) return;
  if (aim_) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(style::kDeepInk, 5));
    painter.drawRoundedRect(QRectF(DrawnRect(*aim_, paintbox_.pictures)).adjusted(1, 1, -1, -1), 5, 5);
    painter.setPen(QPen(easel.strong ? style::kStrongMark : style::kGold, 3));
    painter.drawRoundedRect(QRectF(DrawnRect(*aim_, paintbox_.pictures)).adjusted(1, 1, -1, -1), 5, 5);
  }
  PaintPicture(easel, carriedFace_.picture, carriedFace_.framed, CarriedTo());
}
