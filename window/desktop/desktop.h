// The front end with a screen: real windows, a real clock, sound.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <deque>
#include <filesystem>

#include "history/statistics.h"
#include "window/desktop/input/deeds.h"
#include "window/desktop/input/hurry.h"
#include "window/desktop/input/latin.h"
#include "window/desktop/painting/paintbox.h"
#include "window/desktop/sound/media.h"
#include "window/desktop/speech/access.h"
#include "window/desktop/view/looks.h"
#include "window/desktop/view/windows.h"
#include "window/guide.h"
#include "window/platform.h"

class BoxWindow;
class QEventLoop;
class QMessageBox;
struct RecordDesk;

struct DesktopFolders {
  std::filesystem::path own;        // `AppPath`; what lies here goes before what is installed
  std::filesystem::path installed;  // holds pictures/, sounds/, music/
  std::filesystem::path view = {};  // the file of `View`; where none is named nothing is kept
};

class DesktopFrontEnd : public FrontEnd, public Deeds {
 public:
  enum class Operator { Player, Script, Recording };
  DesktopFrontEnd(const DesktopFolders& folders, PictureFiles pictures, Operator by = Operator::Player);
  ~DesktopFrontEnd() override;

  Platform platform{*this};
  Paintbox paintbox;
  Looks looks;
  const RecordDesk* records = nullptr;  // what is known of records; set before the first window is loaded
  std::vector<KnownGame> games;         // for statistics
  Guides guides;  // set before the first window is loaded; none where a script drives the windows

  // Runs `start`, which shows the first window, then serves events until the program ends. The exit status.
  int Run(const std::function<void()>& start);
  // Null if the form isn't there or loaded.
  FormWindow* WindowOf(const Form& form) const { return windows_.Of(form); }
  // The window or box that stands before all others; null if none does.
  QWidget* Foremost() const { return windows_.Next(nullptr); }

  void Deliver(Form& form, std::function<void()> deed) override;
  void ClickSoftly(Control& control) override;
  bool TakeAsHurry() override { return hurry_.TakePress(); }
  bool Busy() const override { return busy_; }
  bool Knows(const Form& form) const override { return WindowOf(form); }

  long long Milliseconds() override { return clock_.elapsed(); }
  DateTime Now() override;
  Extent ScreenExtent() override;
  Extent TextExtent(const Label& label) override;
  Event Next(const Wait& wait) override;
  void PlayWave(const std::string& path) override;
  void Clicked(Control& control) override { paintbox.occasion.clicked = &control; }
  void Refused() override;
  void Triumph(Visual& where, bool goes) override;
  void MediaCommand(const std::string& command) override { media_.Command(command); }
  std::string FindBrowser() override;
  bool OpenPage(const std::string& browser, const std::string& url) override;

  void BoxShown(const MessageBox& box) override;
  void BoxGone(const MessageBox& box) override;
  void FormLoaded(Form& form) override;
  void FormShown(Form& form) override;
  void FormHidden(Form& form) override;
  void FormUnloaded(Form& form) override;
  void PropertyChanged(Control& control, Prop prop) override;
  void OrderChanged(Visual& control) override;
  void FocusMoved(Visual& control) override;
  void TextSelected(TextBox& box) override;
  void SurfaceCleared(PictureBox& surface) override;
  void SurfaceDrawn(PictureBox& surface, const Stroke& stroke) override;
  void Ended(const std::string& failure) override;

 protected:
  // Called when the first window has been shown; what it leaves to be done the events bring.
  virtual void Serve() {}
  // What `Next` does: it lets a time pass, serves the input that has come so far, or serves the player and
  // the timers while `waiting()`.
  virtual void Sleep(int milliseconds) { hurry_.Sleep(milliseconds); }
  virtual void ServeInput();
  virtual void ServeAll(const std::function<bool()>& waiting) { Await(waiting); }
  // Sees to it that the next tick comes in time.
  virtual void ArmTimer();

  // Serves the player and the timers while `waiting()`. A handler that waits isn't busy.
  void Await(const std::function<bool()>& waiting);
  // Lets real time pass, without input and ticks. The windows stay alive.
  void Pause(int milliseconds) { hurry_.Pause(milliseconds); }
  // Lets the innermost wait look at what it waits for.
  void Wake();
  // Runs a handler, then sees to what it has left behind.
  void Run(Form* form, const std::function<void()>& handler);
  enum class Ticks { Served, Held };
  // While one stands the handler under way waits, and others may run.
  class Idle {
   public:
    explicit Idle(DesktopFrontEnd& front, Ticks ticks = Ticks::Served)
        : front_(front), wasBusy_(front.busy_), ticksWere_(front.ticks_) {
      front_.busy_ = false;
      front_.ticks_ = ticks;
    }
    ~Idle() {
      front_.busy_ = wasBusy_;
      front_.ticks_ = ticksWere_;
    }
    Idle(const Idle&) = delete;

   private:
    DesktopFrontEnd& front_;
    const bool wasBusy_;
    const Ticks ticksWere_;
  };
  // For what is to be called later.
  QObject& Context() { return timer_; }
  // A board has been painted.
  void Painted();
  bool HasPainted() const { return painted_; }
  QMessageBox* StandingBox() const;
  // What the handler under way has changed so far is set in motion.
  void SettleBoards();
  // No handler runs: the windows show what Qt or their guides may have changed.
  void SettleWindows();
  // All windows and boxes go, and know nothing of their forms any more.
  void ForgetWindows();
  // The window in front; null if none is seen.
  FormWindow* FrontWindow() const { return windows_.Front(); }
  Access& Ears() { return access_; }

 private:
  void ApplyView();
  void InOrder(void (FormWindow::*apply)());
  void WatchScreens();
  void ServeTick();
  void DeliverWaiting();
  // Whether a handler may begin. Not once what the innermost wait waits for has come: its handler goes first.
  bool MayRun() const { return !busy_ && (!waiting_ || (*waiting_)()); }
  void PlayWaveInAHurry();
  void ShowIcon();
  void ShowClock();
  void Quit();

  struct Deed {
    Form* form;
    std::function<void()> run;
  };

  const DesktopFolders folders_;
  const Operator by_;
  QElapsedTimer clock_;
  QTimer timer_, clockTimer_, refit_;
  Media media_;
  Access access_;
  Windows windows_{platform};
  std::deque<Deed> deeds_;
  Hurry hurry_;
  LatinKeys latinKeys_;
  std::string waveInAHurry_;  // waits for the end of what is run through
  std::vector<BoxWindow*> boxes_;
  QEventLoop* loop_ = nullptr;  // of the innermost wait
  const std::function<bool()>* waiting_ = nullptr;
  bool busy_ = false, painted_ = false, softly_ = false;
  Ticks ticks_ = Ticks::Served;
  int status_ = 0;
};
