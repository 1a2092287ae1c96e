// The board of a window: one widget that draws everything that isn't a widget of its own, and takes the mouse
// for it.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

#include "window/desktop/painting/celebration.h"
#include "window/desktop/painting/motion.h"
#include "window/desktop/painting/scene.h"
#include "window/guide.h"

class QHelpEvent;

class Canvas : public QWidget {
 public:
  Canvas(Form& form, const Guide* guide, Paintbox& paintbox, QWidget* parent);

  Form& form;

  // What the mouse does on a control.
  std::function<void(Visual&)> pressed, pressedTwice;
  std::function<void(Visual&, bool byPlayer)> passed;
  // The board has been painted.
  std::function<void()> painted;

  // How much larger than at 100 % the board is drawn. Scenes, reaches and painting are in pixels at 100 %;
  // mouse and widgets in pixels of the window.
  double Zoom() const { return zoom_; }
  void SetZoom(double zoom);
  // What is shown begins to be drawn in that size, before the first painting asks for it.
  void Prepare(double zoom);
  QPoint ToBoard(QPointF point) const { return (point / zoom_).toPoint(); }
  QRect ToWindow(const QRectF& area) const;
  // Paints that part of the board anew; pixels at 100 %.
  void Repaint(const QRect& area) { update(ToWindow(area)); }

  // A card that lies face down.
  bool ShowsBack(const Visual& control) const;
  // The control looks different from now on, or lies elsewhere.
  void Refresh(const Visual& control);
  // What has changed since the last time is set in motion.
  void Settle();
  // Shows that a click on the control was refused.
  void Refuse(const Visual& control) { motion_.Refuse(control); }
  // The player holds a card so far from its place, over what it would be laid on; and lets it go.
  void Carry(const Image& card, QPointF by, const Visual* aim) { motion_.Carry(card, by, aim); }
  void PutBack() { motion_.PutBack(); }
  const Image* Carried() const { return motion_.Carried(); }
  // Shows that something has come off there; on the whole board where the control doesn't show.
  void Celebrate(const Visual& where);
  // Whether nothing moves, so that the board is painted as it stands.
  bool AtRest() const { return motion_.AtRest() && celebration_.AtRest(); }
  // The form and its guide are gone: nothing of them may be touched any more.
  void Leave();
  bool Lives() const { return lives_; }
  // Null where nobody tells what the board means.
  const Guide* GetGuide() const { return guide_; }
  // Shows the pointer that the control under the mouse asks for.
  void UpdatePointer();

  const Pictures& GetPictures() const { return paintbox_.pictures; }

  // What is written on the board beside its controls.
  void SetNotes(std::vector<Note> notes);
  const std::vector<Note>& Notes() const { return notes_; }
  // Draws over everything else; pixels at 100 %.
  std::function<void(QPainter&)> paintOver;

  // The widgets that stand on the board, by their controls.
  std::unordered_map<const Control*, QWidget*> widgets;
  // Null if the canvas draws the control.
  QWidget* WidgetOf(const Control& control) const;
  // Where a control is drawn, pixels at 100 %.
  QRect PlaceOf(const Visual& control) const;
  // All that is painted for it.
  QRect ReachOf(const Visual& control) const;
  // The control that a click at this point of the window means.
  Visual* At(QPoint point) const;
  // A spot that means this control: its middle if that shows. Nothing if the control is wholly covered.
  std::optional<QPoint> SpotOf(const Visual& control) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Press(QPoint point);
  void ShowToolTip(QHelpEvent& event);
  QCursor PointerOf(int picture);

  const Guide* guide_;
  Paintbox& paintbox_;
  const bool board_;
  bool lives_ = true;
  std::vector<Note> notes_;
  double zoom_ = 1;
  int pointer_ = 0;  // the one that shows; above 99 that picture
  QPixmap baize_;
  Motion motion_;
  Celebration celebration_;
  std::unique_ptr<Calm> calm_;  // where less is to move
  // Where each control was drawn last, and all that was painted for it.
  struct Drawn {
    QRect rect, reach;
  };
  std::unordered_map<const Visual*, Drawn> drawn_;
};
