// The window of one form: menu bar, board, status bar, and the widgets on the board.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "window/form.h"

class Canvas;
class Comfort;
class DesktopFrontEnd;
class Menus;
class QLabel;

class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, DesktopFrontEnd& front);
  ~FormWindow() override;

  Form& form;

  // Shows the form as it stands, before the window `behind` if it is modal.
  void ShowForm(QWidget* behind);
  // The form is gone: no event reaches it any more.
  void Leave();

  void Apply(Control& control, Prop prop);
  void Reordered(Visual& control);
  void FocusMoved();
  void SelectText(TextBox& box);
  void SurfaceChanged(PictureBox& surface);
  // The player wants windows drawn in another way.
  void ApplyView();
  // A minute has begun.
  void ApplyClock() { ApplyPanels(); }
  // Brings everything up to date that Qt may have changed by itself.
  void Settle();

  Canvas& Board() { return *canvas_; }
  // The widget of a control; null if the canvas draws it.
  QWidget* WidgetOf(const Control& control) const;
  Menus& MenuBar() { return *menus_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeStatusBar(StatusBar& bar);
  void LayOutParts();
  void ApplyForm(Prop prop);
  void ApplySize();
  void ApplyPanels();
  void RefreshWithin(const Control& container);
  void TellState();
  void TellSize();
  bool TakeKey(int key);
  Visual* ControlOf(const QObject* widget) const;

  DesktopFrontEnd& front_;
  std::unique_ptr<Comfort> comfort_;  // null if no guide tells what the player might want
  Canvas* canvas_ = nullptr;
  Menus* menus_ = nullptr;
  QWidget* statusBar_ = nullptr;
  std::vector<QLabel*> panels_;
  std::unordered_map<const Control*, QWidget*> widgets_;
  bool left_ = false, sizeWaits_ = false, tellsPlace_ = false;
};
