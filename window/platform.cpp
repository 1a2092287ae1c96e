#include "window/platform.h"

#include <algorithm>

#include "window/number.h"
#include "window/player.h"

namespace {

// Nothing will ever come any more: the handlers that wait go away as they stand.
struct Over {};

// Holds a place in a stack for as long as it stands.
template <class Place>
class Held {
 public:
  Held(std::vector<Place>& places, Place place) : places_(places) { places.push_back(std::move(place)); }
  ~Held() { places_.pop_back(); }
  Held(const Held&) = delete;

 private:
  std::vector<Place>& places_;
};

}  // namespace

// --- Waiting -------------------------------------------------------------------------------------

void Platform::Enter(const Event& event) {
  switch (event.kind) {
    case Event::Kind::None:
    case Event::Kind::Over:
      return;
    case Event::Kind::Tick:
      if (Timer* timer = timers.Next()) border->Entered({Event::Kind::Tick, timer});
      timers.now = Milliseconds();
      if (Timer* timer = timers.TakeDue(timers.now)) Tick(*timer);
      return;
    case Event::Kind::Foresee:
      border->Entered(event);
      return event.x > event.y ? random.ForgetForeseen() : random.Foresee(event.x, event.y, event.z);
    case Event::Kind::Answer:
      if (!StandingBox()) return;
      border->Entered(event);
      boxes_.back().answer = event.answer;
      return;
    default:
      border->Entered(event);
      player::CarryOut(event);
  }
}

void Platform::Run() {
  try {
    Await({});
  } catch (const Over&) {
  }
}

bool Platform::StillWaits(const Wait& wait) const {
  if (ended_) return false;
  if (wait.box) return !boxes_.back().answer;
  return !wait.modal || wait.modal->Visible;
}

void Platform::Await(Wait wait) {
  const Held under(waits_, static_cast<const Wait*>(&wait));
  while (StillWaits(wait)) {
    wait.until = timers.NextDue().value_or(Wait::kForever);
    const Event event = border->Next(wait);
    if (event.kind == Event::Kind::Over) throw Over();
    Enter(event);
  }
}

void Platform::Sleep(int milliseconds) {
  if (trace) trace->Slept(milliseconds);
  border->Next({Wait::Serving::Nothing, Milliseconds() + milliseconds});
  timers.now = Milliseconds();  // a timer that is started now starts from now
}

void Platform::DoEvents() {
  if (trace) trace->EventsLetThrough();
  while (true) {
    const Event event = border->Next({Wait::Serving::Input, Milliseconds()});
    if (event.kind == Event::Kind::None || event.kind == Event::Kind::Over) break;
    Enter(event);
  }
  timers.now = Milliseconds();
  for (Timer* timer : timers.Waiting(timers.now)) {
    if (!timers.Take(*timer, timers.now)) continue;
    border->Entered({Event::Kind::Tick, timer});
    Tick(*timer);
  }
}

Answer Platform::MsgBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) {
  const MessageBox box{text, title, icon, buttons};
  const Held standing(boxes_, Standing{&box, modals_.size()});
  if (trace) trace->BoxShown(box);
  front.BoxShown(box);
  struct Guard {
    FrontEnd& front;
    const MessageBox& box;
    ~Guard() { front.BoxGone(box); }
  } guard{front, box};
  Await({.box = &box});
  timers.now = Milliseconds();  // the handler goes on at this moment
  return boxes_.back().answer.value_or(AnswersOf(buttons).back());
}

void Platform::RunModal(Form& form) {
  const Held standing(modals_, &form);
  Await({.modal = &form});
  timers.now = Milliseconds();
}

// --- What is asked of the front end --------------------------------------------------------------

void Platform::sndPlaySound(const std::string& path) {
  if (trace) trace->WavePlayed(path);
  front.PlayWave(path);
}

void Platform::mciSendString(const std::string& command) {
  if (trace) trace->MediaCommanded(command);
  front.MediaCommand(command);
}

bool Platform::ShellExecute(const std::string& browser, const std::string& url) {
  if (trace) trace->BrowserOpened(url);
  return border->OpenPage(browser, url);
}

void Platform::End(const std::string& failure) {
  if (ended_) return;
  ended_ = true;
  if (trace) trace->Ended(failure);
  front.Ended(failure);
}

void Platform::Dispatch(const std::function<void()>& handler) {
  struct Depth {
    int& depth;
    explicit Depth(int& depth) : depth(++depth) {}
    ~Depth() { --depth; }
  };
  timers.now = Milliseconds();
  {
    const Depth within(handlers_);
    std::optional<std::string> failure;
    try {
      failure = FailureOf<std::exception>(handler);
    } catch (const Over&) {
      if (handlers_ > 1 || !waits_.empty()) throw;
    }
    if (failure && OnFailure) OnFailure(*failure);
  }
  if (handlers_ == 0 && AfterHandler && !ended_) AfterHandler();
}

void Platform::Tick(Timer& timer) {
  struct Guard {
    Timers& timers;
    Timer& timer;
    ~Guard() { timers.EndTick(&timer); }
  } guard{timers, timer};
  timers.BeginTick(timer);
  Dispatch([&] {
    if (timer.OnTimer) timer.OnTimer();
  });
}

Form* Platform::FindForm(std::string_view name) const {
  for (Form* form : forms)
    if (form->Loaded() && form->name == name) return form;
  return nullptr;
}

void Platform::FormLoaded(Form& form) {
  if (trace) trace->FormLoaded(form);
  front.FormLoaded(form);
}

void Platform::FormShown(Form& form) {
  if (trace) trace->FormShown(form);
  front.FormShown(form);
}

void Platform::FormHidden(Form& form) {
  if (trace) trace->FormHidden(form);
  front.FormHidden(form);
}

void Platform::FormUnloaded(Form& form) {
  if (trace) trace->FormUnloaded(form);
  front.FormUnloaded(form);
}

void Platform::PropertyChanged(Control& control, Prop prop) {
  front.PropertyChanged(control, prop);
  if (trace) trace->PropertyChanged(control, prop);
}

void Platform::OrderChanged(Visual& control) { front.OrderChanged(control); }
void Platform::FocusMoved(Visual& control) { front.FocusMoved(control); }
void Platform::TextSelected(TextBox& box) { front.TextSelected(box); }

void Platform::SurfaceCleared(PictureBox& surface) {
  front.SurfaceCleared(surface);
  if (trace) trace->SurfaceCleared(surface);
}

void Platform::SurfaceDrawn(PictureBox& surface, const Stroke& stroke) {
  front.SurfaceDrawn(surface, stroke);
  if (trace) trace->SurfaceDrawn(surface, stroke);
}
