// The desk on which forms lie: what windows ask of the world, and what a front end must do for it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "window/border.h"
#include "window/form.h"
#include "window/random.h"
#include "window/timers.h"

// Whoever watches what the windows do: a front end, a script that writes a trace.
class Observer {
 public:
  virtual ~Observer() = default;
  virtual void FormLoaded(Form&) {}
  virtual void FormShown(Form&) {}
  virtual void FormHidden(Form&) {}
  virtual void FormUnloaded(Form&) {}
  virtual void PropertyChanged(Control&, Prop) {}
  virtual void OrderChanged(Visual&) {}
  virtual void FocusMoved(Visual&) {}
  virtual void TextSelected(TextBox&) {}
  virtual void SurfaceCleared(PictureBox&) {}
  virtual void SurfaceDrawn(PictureBox&, const Stroke&) {}
  virtual void BoxShown(const MessageBox&) {}
  virtual void BoxGone(const MessageBox&) {}
  virtual void Slept(int /*milliseconds*/) {}
  virtual void EventsLetThrough() {}
  virtual void WavePlayed(const std::string& /*path*/) {}
  virtual void MediaCommanded(const std::string& /*command*/) {}
  virtual void BrowserOpened(const std::string& /*url*/) {}
  virtual void Ended(const std::string& /*failure*/) {}
};

// What a front end does besides observing and standing at the border.
class FrontEnd : public Observer, public Border {
 public:
  // Starts a wave, which cuts the one playing. The path is relative to the data, as "\Chord.wav".
  virtual void PlayWave(const std::string& path) = 0;
  // The player's click on this control is about to be answered.
  virtual void Clicked(Control& /*control*/) {}
  // The window doesn't do what the player has clicked for.
  virtual void Refused() {}
  // What is worth a cheer has come off there. `goes`: it is about to be cleared away.
  virtual void Triumph(Visual& /*where*/, bool /*goes*/ = false) {}
  // Obeys "open "PATH" type sequencer alias NAME", "play NAME", "close NAME".
  virtual void MediaCommand(const std::string& command) = 0;
};

class Platform : public Observer {
 public:
  explicit Platform(FrontEnd& front) : front(front), border(&front) {}

  FrontEnd& front;
  Border* border;             // the front end, or who stands before it
  Observer* trace = nullptr;  // told of everything, after the front end
  std::vector<Form*> forms;   // front first
  Timers timers;
  RandomSource random;
  std::string CommandLine;  // a saved game's file name, or ""
  // Told of a failure that no handler caught, with its description.
  std::function<void(const std::string&)> OnFailure;
  // Called when the session may be about to end: what closing the windows would keep is kept, nobody is asked
  // or told, and play goes on.
  std::function<void()> OnKeep;
  // Called when the program has to go at once, also in the middle of a handler: nobody is asked or told.
  std::function<void()> OnLeave;
  // Called behind each handler that wasn't started within another, unless the program has ended.
  std::function<void()> AfterHandler;

  // Carries out what has come from outside: the one entrance for deeds, answers and ticks.
  void Enter(const Event& event);
  // Serves events until the program has ended, or nothing will ever come any more.
  void Run();

  // The four ways in which a handler waits.
  void Sleep(int milliseconds);
  // Lets pending events through: the input that has waited, then each timer with a waiting tick, once.
  void DoEvents();
  Answer MsgBox(const std::string& text, const std::string& title, Icon icon = Icon::None,
                Buttons buttons = Buttons::OK);
  void RunModal(Form& form);
  // How many waits for events are under way, one within the other, that of `Run` among them; and whether what
  // the innermost one waits for is still to come.
  size_t WaitsUnderWay() const { return waits_.size(); }
  bool StillWaits() const { return !waits_.empty() && StillWaits(*waits_.back()); }

  void sndPlaySound(const std::string& path);
  void mciSendString(const std::string& command);
  bool ShellExecute(const std::string& browser, const std::string& url);
  long long Milliseconds() { return border->Milliseconds(); }
  DateTime Now() { return border->Now(); }
  Extent ScreenExtent() { return border->ScreenExtent(); }
  Extent TextExtent(const Label& label) { return border->TextExtent(label); }
  // The program ends after the handler that is running. A failure's description, or "".
  void End(const std::string& failure = "");
  bool HasEnded() const { return ended_; }

  // How many handlers are under way, one within the other.
  int HandlersUnderWay() const { return handlers_; }
  // Runs a handler of an event. A failure in it ends it and is told to `OnFailure`.
  void Dispatch(const std::function<void()>& handler);

  // The modal form in front, or null.
  Form* ModalForm() const { return modals_.empty() ? nullptr : modals_.back(); }
  // The message box that stands before everything; null if there is none, or if a timer has opened a modal
  // form over it.
  const MessageBox* StandingBox() const {
    return boxes_.empty() || boxes_.back().modals < modals_.size() ? nullptr : boxes_.back().box;
  }
  Form* FindForm(std::string_view name) const;  // loaded ones only

  void FormLoaded(Form&) override;
  void FormShown(Form&) override;
  void FormHidden(Form&) override;
  void FormUnloaded(Form&) override;
  void PropertyChanged(Control&, Prop) override;
  void OrderChanged(Visual&) override;
  void FocusMoved(Visual&) override;
  void TextSelected(TextBox&) override;
  void SurfaceCleared(PictureBox&) override;
  void SurfaceDrawn(PictureBox&, const Stroke&) override;

 private:
  bool StillWaits(const Wait& wait) const;
  void Await(Wait wait);
  Event Next(Wait::Serving serving, long long until);
  void Tick(Timer& timer);

  std::vector<Form*> modals_;
  struct Standing {
    const MessageBox* box;
    size_t modals;  // how many modal forms it stands before
    std::optional<Answer> answer = {};
  };
  std::vector<Standing> boxes_;
  std::vector<const Wait*> waits_;
  bool ended_ = false;
  int handlers_ = 0;  // under way, one within the other
};
