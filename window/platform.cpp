#include "window/platform.h"

#include <algorithm>

std::string_view IconName(Icon icon) {
  static constexpr std::string_view kNames[] = {"none", "information", "question", "exclamation", "critical"};
  return kNames[static_cast<int>(icon)];
}

std::string_view AnswerName(Answer answer) {
  static constexpr std::string_view kNames[] = {"OK", "Cancel", "Yes", "No"};
  return kNames[static_cast<int>(answer)];
}

std::vector<Answer> AnswersOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OKCancel:
      return {Answer::OK, Answer::Cancel};
    case Buttons::YesNo:
      return {Answer::Yes, Answer::No};
    default:
      return {Answer::OK};
  }
}

void Platform::Sleep(int milliseconds) {
  if (trace) trace->Slept(milliseconds);
  front.Sleep(milliseconds);
  timers.now = front.Milliseconds();  // a timer that is started now starts from now
}

void Platform::DoEvents() {
  if (trace) trace->EventsLetThrough();
  front.Sleep(0);  // shows what has changed
  front.ServeInput();
  timers.now = front.Milliseconds();
  for (Timer* timer : timers.Waiting(timers.now))
    if (timers.Take(*timer, timers.now)) Tick(*timer);
}

Answer Platform::MsgBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) {
  const MessageBox box{text, title, icon, buttons};
  boxes_.push_back({&box, modals_.size()});
  if (trace) trace->BoxShown(box);
  struct Guard {
    std::vector<Standing>& boxes;
    ~Guard() { boxes.pop_back(); }
  } guard{boxes_};
  const Answer answer = front.RunBox(box);
  timers.now = front.Milliseconds();  // the handler goes on at this moment
  return answer;
}

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
  return front.OpenPage(browser, url);
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
  timers.now = front.Milliseconds();
  {
    const Depth within(handlers_);
    try {
      handler();
    } catch (const std::exception& error) {
      if (OnFailure) OnFailure(error.what());
    }
  }
  if (handlers_ == 0 && AfterHandler && !ended_) AfterHandler();
}

bool Platform::ServeTimer() {
  timers.now = front.Milliseconds();
  Timer* timer = timers.TakeDue(timers.now);
  if (!timer) return false;
  Tick(*timer);
  return true;
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

void Platform::RunModal(Form& form) {
  modals_.push_back(&form);
  struct Guard {
    std::vector<Form*>& modals;
    ~Guard() { modals.pop_back(); }
  } guard{modals_};
  front.RunModal(form);
  timers.now = front.Milliseconds();
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
