// What moves on a board for a moment after it has changed: cards that glide and turn, sums that float up, the
// flash of a refused click. It is painted only. The board itself has changed already: clicks and keys find it
// as it stands.
#pragma once

#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <functional>
#include <unordered_map>
#include <vector>

#include "window/desktop/painting/paint.h"
#include "window/desktop/painting/paintbox.h"

class Motion {
 public:
  // `repaint` paints a part of the board anew; pixels at 100 %.
  Motion(const Form& form, const Paintbox& paintbox, std::function<void(const QRect&)> repaint);

  // How the board stands at the moment.
  struct Ground {
    QSize size;        // pixels of the window
    double zoom = 1;   // of these to a pixel at 100 %
    double scale = 1;  // device pixels to a pixel at 100 %
    bool shows = false;
    long long score = 0;  // what the player has so far
  };
  // The control looks different from now on.
  void Changed(const Visual& control);
  // A handler has come to its end, or to a wait: what has changed since the last time is set in motion.
  void Settle(const Ground& ground);
  // Shows that a click on this control was refused.
  void Refuse(const Visual& control);
  // The player holds this card so far from its place, over what it would be laid on, if anything. It comes
  // back by itself where it doesn't lie there any more.
  void Carry(const Image& card, QPointF by, const Visual* aim);
  const Image* Carried() const { return carried_; }
  // The player has let the card go: it glides to where it lies.
  void PutBack();
  // Puts everything to rest where it belongs.
  void Drop();
  bool AtRest() const { return pieces_.empty(); }

  // Draws what lies at this place while the card that belongs there is on its way. False if it is there.
  bool PaintInstead(const Easel& easel, const Placed& placed) const;
  // Draws what moves above the board.
  void PaintAbove(const Easel& easel) const;

 private:
  // What an image shows; no picture where it can't be seen.
  struct Face {
    int picture = 0;
    bool framed = false;  // as faces are; backs, piles and empty places aren't
    QRect rect;

    bool IsCard() const { return picture != 0 && framed; }
    bool LooksLike(const Face& other) const { return picture == other.picture && framed == other.framed; }
    friend bool operator==(const Face&, const Face&) = default;
  };
  struct Change {
    const Image* image;
    Face before, after;
    bool left = false;     // the card that lay there lies elsewhere now
    bool covered = false;  // a card glides onto it
  };
  struct Piece {
    enum class Kind { Turn, Fade, Glide, Flash, Sum } kind;  // as they lie on each other
    const Visual* control = nullptr;                         // where the card lands; the one that refused
    Face shown, beneath;  // what moves; what it glides over or has turned from
    QRectF from, to;
    long long begun = 0;
    QPixmap sum = {};
    QRect painted = {};
  };

  bool IsOn() const { return paintbox_.manner.glides; }
  Face FaceOf(const Image& image) const;
  QRectF CarriedTo() const { return QRectF(carriedFace_.rect).translated(carriedBy_); }
  void RepaintCarried() const;
  void SettleCards(const Ground& ground);
  std::vector<Change> TakeChanges();
  // Sets the cards in motion, and keeps where some of them have been cleared away.
  void Begin(std::vector<Change>& changes);
  void FloatSum(long long sum, const Ground& ground);
  const Image* Pile() const;
  void Add(Piece piece);
  void RemoveCards();
  // Lets what moves come to where it is now. Wherever it may be painted next is painted anew after that.
  void GoOn();
  void Step();
  double Progress(const Piece& piece) const;
  QRectF AreaOf(const Piece& piece) const;
  QRectF WhereNow(const Image& image, const QRect& rest) const;

  const Paintbox& paintbox_;
  const std::function<void(const QRect&)> repaint_;
  std::vector<const Image*> images_;
  std::unordered_map<const Image*, Face> known_;  // as it was at the last `Settle`
  std::vector<Face> passing_;  // cards that have been laid since, perhaps for no time at all
  std::vector<Piece> pieces_;
  bool changed_ = false;
  QSize size_;
  long long score_ = 0;
  const Image* carried_ = nullptr;  // with what is known of it
  Face carriedFace_;
  QPointF carriedBy_;
  const Visual* aim_ = nullptr;
  QPointF cleared_;  // where cards went lately
  long long clearedAt_ = -1, clearedIn_ = -1;
  long long now_ = 0;  // of the frame that is shown
  QElapsedTimer clock_;
  QTimer timer_;
};
