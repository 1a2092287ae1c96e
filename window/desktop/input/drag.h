// A card that the mouse drags to where a second click would bring it. The first click is the press, which has
// selected the card; the second one is made where it is dropped.
#pragma once

#include <QObject>
#include <QPointF>
#include <vector>

#include "window/guide.h"

class Canvas;
class Deeds;
class QMouseEvent;

class Drag : public QObject {
 public:
  Drag(Canvas& canvas, Deeds& deeds, Guide& guide);

  // A handler has ended: what isn't selected any more isn't held, either.
  void Settle();
  // The form and its guide are gone.
  void Leave() { guide_ = nullptr; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Press(const QMouseEvent& event);
  void Move(const QMouseEvent& event);
  void Drop(const QMouseEvent& event);
  Visual* Selected();
  Visual* TargetAt(QPointF point) const;
  void LetGo(Visual& card);

  Canvas& canvas_;
  Deeds& deeds_;
  Guide* guide_;
  Visual* pressed_ = nullptr;  // since the button is down
  Visual* held_ = nullptr;
  std::vector<const Visual*> before_;  // selected before the press
  QPointF from_;
  unsigned long long since_ = 0;
};
