// The front end with a screen: real windows, a real clock, sound.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <filesystem>
#include <memory>
#include <unordered_map>

#include "window/desktop/input/hurry.h"
#include "window/desktop/painting/pictures.h"
#include "window/desktop/sound/media.h"
#include "window/desktop/speech/access.h"
#include "window/desktop/view/view.h"
#include "window/guide.h"
#include "window/platform.h"

class FormWindow;
class QEventLoop;

struct DesktopFolders {
  std::filesystem::path own;        // `AppPath`; what lies here goes before what is installed
  std::filesystem::path installed;  // holds pictures/, sounds/, music/
  std::filesystem::path view = {};  // the file of `View`; where none is named nothing is kept
};

class DesktopFrontEnd : public FrontEnd {
 public:
  DesktopFrontEnd(const DesktopFolders& folders, PictureFiles pictures);
  ~DesktopFrontEnd() override;

  Platform platform{*this};
  Pictures pictures;
  Guides guides;  // set before the first window is loaded; none where a script drives the windows

  // Runs `start`, which shows the first window, then serves events until the program ends. The exit status.
  int Run(const std::function<void()>& start);

  // Runs what the player did on a form: now, or as soon as the handler that is under way has ended or waits.
  void Deliver(Form& form, std::function<void()> deed);
  // A press that came by no mouse or key: whether it only lets the handler under way run on without waiting.
  bool TakeAsHurry() { return hurry_.TakePress(); }
  // Whether a handler is under way that doesn't wait for the player.
  bool Busy() const { return busy_; }
  // Whether the form is there and loaded.
  bool Knows(const Form& form) const;
  FormWindow* WindowOf(const Form& form) const;
  // Null if the form has none.
  Guide* GuideOf(const Form& form) const;
  Access& Ears() { return access_; }
  const View& GetView() const { return view_; }
  // Shows all windows in this way from now on, and keeps it.
  void SetView(const View& view);
  // Whether nothing is to move or blink for show: asked for here or in the desktop's own settings.
  bool LessMotion() const;
  // Whether the desktop asks for it, whatever the View menu says.
  bool DesktopStopsMotion() const { return filesStopMotion_ || portalStopsMotion_; }
  // A board has been painted.
  void Painted();
  // A window or box that is about to be hidden hands the keyboard to the next one, as well as the boxes that
  // belong to it: where no window manager runs nobody else does.
  void LeaveActive(const QWidget& going);

  // Whether windows follow what the window manager does to them, and cards the real pointer.
  virtual bool HeedsWindowManager() const { return true; }
  virtual bool HeedsPointer() const { return true; }
  // Whether cards are seen to move.
  virtual bool ShowsMotion() const { return !LessMotion(); }
  // How many handlers have been run so far.
  long long HandlerNumber() const { return handlerNumber_; }
  // The control whose click the handler under way, or the last one, answers; null if it answers none.
  const Control* ClickedControl() const { return clicked_; }

  long long Milliseconds() override { return clock_.elapsed(); }
  DateTime Now() override;
  Extent ScreenExtent() override;
  Extent TextExtent(const Label& label) override;
  Event Next(const Wait& wait) override;
  void PlayWave(const std::string& path) override;
  void Clicked(Control& control) override { clicked_ = &control; }
  void Refused() override;
  void MediaCommand(const std::string& command) override { media_.Command(command); }
  std::string FindBrowser() override;
  bool OpenPage(const std::string& browser, const std::string& url) override;

  bool MustLeave() override;

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
  void Pause(int milliseconds);
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
  bool HasPainted() const { return painted_; }
  class QMessageBox* StandingBox() const {
    return boxes_.empty() ? nullptr : boxes_.back().dialog;
  }

 private:
  friend class Hurry;
  void ApplyLook();
  void KeepView();
  void ApplyView();
  void HeedAnimations();
  void ServeTick();
  void DeliverWaiting();
  // Whether a handler may begin. Not once what the innermost wait waits for has come: its handler goes first.
  bool MayRun() const { return !busy_ && (!waiting_ || (*waiting_)()); }
  FormWindow* FrontWindow() const;
  // The window that stands before all others once this one is gone; null if there is none.
  QWidget* NextWindow(const QWidget* going) const;
  // What the handler under way has changed so far is set in motion.
  void SettleBoards();
  void PlayWaveInAHurry();
  void ShowIcon();
  void ShowClock();
  void Quit();

  struct Deed {
    Form* form;
    std::function<void()> run;
  };

  const DesktopFolders folders_;
  QElapsedTimer clock_;
  QTimer timer_, viewTimer_, clockTimer_;
  Media media_;
  View view_, kept_;  // as it is, and as it was read or written last
  std::unordered_map<const Form*, FormWindow*> windows_;
  std::unordered_map<const Form*, std::unique_ptr<Guide>> guides_;
  std::deque<Deed> deeds_;
  Hurry hurry_{*this};
  long long handlerNumber_ = 0;
  const Control* clicked_ = nullptr;
  struct {
    std::string path;
    long long handler = -1, at = 0;
    int step = 0;
  } lastWave_;
  std::string waveInAHurry_;  // waits for the end of what is run through
  struct Box {
    class QMessageBox* dialog;
    std::optional<Answer> answer = {};  // as soon as it has been given
  };
  std::deque<Box> boxes_;
  std::vector<QPointer<QWidget>> modals_;  // the boxes and the modal windows that are waited for
  Access access_{*this};
  QEventLoop* loop_ = nullptr;  // of the innermost wait
  const std::function<bool()>* waiting_ = nullptr;
  bool busy_ = false, painted_ = false, filesStopMotion_ = false, portalStopsMotion_ = false;
  Ticks ticks_ = Ticks::Served;
  int status_ = 0;
};
