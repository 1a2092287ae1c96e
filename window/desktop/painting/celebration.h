// A second of confetti where something has come off. It is painted above the board, and nothing waits for it.
#pragma once

#include <QElapsedTimer>
#include <QPainter>
#include <QTimer>
#include <functional>
#include <vector>

class Celebration {
 public:
  // `repaint` paints a part of the board anew; pixels at 100 %.
  explicit Celebration(std::function<void(const QRect&)> repaint);

  // From that area, in the colours of high contrast if `strong`; begins when it is painted for the first
  // time.
  void Begin(const QRectF& area, bool strong);
  void Drop();
  bool AtRest() const { return pieces_.empty(); }
  void Paint(QPainter& painter);

 private:
  struct Piece {
    QPointF from, speed;  // pixels; and a second
    double size, spin;    // turns a second
    QColor colour;
    QRect painted = {};
  };

  void Step();
  double Seconds() const { return begun_ ? static_cast<double>(clock_.elapsed()) / 1000 : 0; }

  const std::function<void(const QRect&)> repaint_;
  std::vector<Piece> pieces_;
  bool begun_ = false;
  QElapsedTimer clock_;
  QTimer timer_;
};
