// The window of one form: menu bar, board, status bar, and the widgets on the board.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "history/statistics.h"
#include "window/desktop/speech/spoken_window.h"
#include "window/guide.h"

class Access;
class Canvas;
class Comfort;
class Drag;
class Looks;
class Menus;
class ProofMarks;
class QLabel;
class ViewMenu;
struct Paintbox;
struct RecordDesk;

// What all windows have in common.
struct Desk {
  Deeds& deeds;
  Looks& looks;
  Paintbox& paintbox;
  Access& ears;
  std::function<void()> painted;        // a board has been
  std::filesystem::path history;        // the file; none where none is looked at
  const std::vector<KnownGame>& games;  // that there are
  // Whether a player moves the windows, and the pointer over them; a script's stay as the games place them.
  bool hasPlayer = true;
  // The windows show a recording: they say so, and lock no others out.
  bool showsRecording = false;
  const RecordDesk* records = nullptr;  // null where nobody knows of any
};

class FormWindow : public QWidget, public SpokenWindow {
 public:
  // `guide` is null where nobody tells what the form means.
  FormWindow(Form& form, std::unique_ptr<Guide> guide, const Desk& desk);
  ~FormWindow() override;

  Form& form;

  // Shows the form as it stands, before the window `behind` if it is modal.
  void ShowForm(QWidget* behind);
  // The form is about to be gone: who listens must not ask for it.
  void Forget();
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
  // A message box without a choice has stood before the window: what it said is mostly of a field.
  void Refused() { refused_ = true; }
  // The screen has become another one.
  void Refit();
  // Brings everything up to date that Qt may have changed by itself.
  void Settle();
  // How much larger than at 100 % the window is drawn.
  double Zoom() const { return zoom_; }
  // Whether the window takes the whole screen, or all that the desktop leaves of it.
  bool IsFilled() const { return isMaximized() || isFullScreen(); }
  // The window whose zoom this one has: a dialog follows the game that it stands before.
  FormWindow& Leader();

  Canvas& Board() { return *canvas_; }
  // The widget of a control; null if the canvas draws it.
  QWidget* WidgetOf(const Control& control) const;
  Menus& MenuBar() { return *menus_; }
  // Null if the form has none.
  Guide* GetGuide() const { return guide_.get(); }

  Keyboard* Keys() const override { return keyboard_; }
  const QWidget* StatusLine() const override { return statusBar_; }
  Deeds& GetDeeds() const override { return desk_.deeds; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ShowTitle();
  void MakeCanvas();
  void MakeStatusBar(StatusBar& bar);
  void OfferRecords();
  void MakeViewMenu();
  void ShowStatistics();
  void LayOutParts();
  void ApplyForm(Prop prop);
  void ApplySize();
  void ApplyLimits();
  void ApplyPlace();
  void ApplyPanels();
  void FollowOthers();
  void KeepOnScreen();
  void ShowWholeBoard();
  void PutInMiddle();
  // The frame around the window, and the room that the screen has within it.
  QSize Frame() const;
  QSize Room() const;
  // The least size in which all of the window shows, and its size when neither maximised nor minimised;
  // pixels at 100 %.
  QSizeF LeastSize() const;
  QSizeF NormalSize() const;
  // The zoom that the player has asked for, as far as the screen allows.
  double WantedZoom() const;
  // The zoom with which the usual arrangement fills the window.
  double FittingZoom() const;
  void SetZoom(double zoom);
  void Rezoom();
  void FollowFrame();
  void FillScreen(Qt::WindowStates state);
  // The window's pixels for the model's twips, and back.
  int Shown(int twips) const;
  int Told(int pixels) const;
  QSize ShownSize() const { return {Shown(form.Width), Shown(form.Height)}; }
  // By how much the window's corner lies beside the model's: they have the same middle.
  QPoint Aside() const;
  void RefreshWithin(const Control& container);
  void TellState();
  int StateNow() const;
  bool MustWait();
  void TellSize();
  void TellSizeSoon();
  void TellPlace();
  bool TakeKey(const QKeyEvent& event);
  bool ScrollsPage(const QWidget* focus, QKeyEvent& event);
  void PutBackFocus();
  Visual* ControlOf(const QObject* widget) const;

  const Desk desk_;
  std::unique_ptr<Guide> guide_;
  std::unique_ptr<Comfort> comfort_;  // null if no guide tells what the player might want
  Canvas* canvas_ = nullptr;
  Menus* menus_ = nullptr;
  std::unique_ptr<ProofMarks> proofs_;  // null where no table of scores is shown
  ViewMenu* viewMenu_ = nullptr;        // a script's windows have none
  QWidget* statusBar_ = nullptr;
  std::vector<QLabel*> panels_;
  QPointer<QWidget> behind_;  // what a dialog stands before
  QTimer zoomKept_;           // runs out when the player has let go of the frame
  QTimer framed_;             // runs while the frame and size of a restored window aren't known
  int frameAwaited_ = 0;
  QSize normal_;  // twips, when neither maximised nor minimised
  double zoom_ = 1;
  bool left_ = false, sizeWaits_ = false, tellsPlace_ = false, zooming_ = false;
  bool untold_ = false;    // news that no one could take yet
  bool fits_ = false;      // what a normal window shows is fitted to its frame
  bool hasStood_ = false;  // on the screen, neither maximised nor minimised
  Keyboard* keyboard_ = nullptr;
  Drag* drag_ = nullptr;
  TextBox* lastField_ = nullptr;
  bool refused_ = false;
  bool pressedInGame_ = false;  // the mouse, last
};
