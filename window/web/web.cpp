#include "window/web/web.h"

#include <cmath>
#include <cstdlib>

#include "window/moments.h"
#include "window/player.h"
#include "window/results/remarks.h"
#include "window/text.h"
#include "window/web/page.h"
#include "window/web/words.h"

namespace {

BoardKeys::Point MiddleOf(const Visual& control) {
  BoardKeys::Point middle{control.Left + control.Width / 2, control.Top + control.Height / 2};
  for (const Control* holder = control.parent; holder->kind != Control::Kind::Form; holder = holder->parent) {
    middle.x += static_cast<const Visual*>(holder)->Left;
    middle.y += static_cast<const Visual*>(holder)->Top;
  }
  return middle;
}

// What a key clicks on; null for nothing. With `far` an arrow goes to places that can't be played as well.
Control* ClickOf(BoardKeys& keys, const std::string& key, bool far, long long now) {
  keys.Settle();
  const int x = (key == "Right") - (key == "Left"), y = (key == "Down") - (key == "Up");
  if (x != 0 || y != 0) return keys.Walk(x, y, far), nullptr;
  if (key == "Space") return keys.ClickHere();
  const std::string clicks = keys.Hear(key, false, now).clicks;
  return clicks.empty() ? nullptr : keys.ClickFor(clicks);
}

}  // namespace

WebFrontEnd::WebFrontEnd(const PictureFiles& pictures, Guides guides, Played played)
    : guides_(std::move(guides)), played_(std::move(played)) {
  out_.Open('[');
  Json& json = Say("pictures").Key("files").Open('[');
  for (const PictureFile& picture : pictures)
    json.Open('[')
        .Write(picture.file)
        .Write(picture.width)
        .Write(picture.height)
        .Write(static_cast<int>(picture.kind))
        .Close(']');
  json.Close(']').Close('}');
}

// --- What the page is told -----------------------------------------------------------------------

Json& WebFrontEnd::Say(std::string_view what) {
  TellChanges();
  any_ = true;
  return out_.Open('{').Member("do", what);
}

void WebFrontEnd::SayForm(std::string_view what, const Form& form) {
  if (const int id = IdOf(form)) Say(what).Member("id", id * ids::kPerForm).Close('}');
}

int WebFrontEnd::IdOf(const Form& form) const {
  for (const auto& [id, window] : windows_)
    if (window.form == &form) return id;
  return 0;
}

// A window as a whole the first time, later on what is new of it.
void WebFrontEnd::TellChanges() {
  for (auto& [id, window] : windows_) {
    if (window.told) continue;
    window.told = true;
    any_ = true;
    out_.Open('{').Member("do", "window").Key("window");
    Describe(out_, id, *window.form, window.guide.get());
    out_.Close('}');
    std::erase_if(dirty_, [&](const Control* control) { return &control->form == window.form; });
  }
  for (const Control* control : dirty_) {
    const int id = IdOf(control->form);
    if (id == 0) continue;
    any_ = true;
    if (control->kind == Control::Kind::Form) {
      const Form& form = control->form;
      out_.Open('{').Member("do", "form").Member("id", id * ids::kPerForm).Member("text", form.Caption.get());
      out_.Member("width", Pixels(form.Width)).Member("height", Pixels(form.Height));
      out_.Member("pointer", form.MousePointer.get()).Close('}');
    } else {
      out_.Open('{').Member("do", "set").Key("control");
      Describe(out_, id, *control);
      out_.Close('}');
    }
  }
  dirty_.clear();
}

void WebFrontEnd::TellGuide(int id, Window& window) {
  if (!window.guide || !window.form->Loaded() || !window.form->Visible) return;
  if (window.keys) window.keys->Settle();
  LookBack(window);
  Json json;
  Describe(json, id, *window.form, *window.guide, window.keys ? window.keys->Cursor() : nullptr,
           window.outcome);
  if (json.Text() == window.guided) return;
  window.guided = json.Text();
  Say("guide").Key("guide").Plain(window.guided).Close('}');
}

// The history is read only where the remark on it is about to show.
void WebFrontEnd::LookBack(Window& window) const {
  auto facts = window.guide->Game();
  if (!facts) return;
  Outcome& outcome = window.outcome;
  if (facts != outcome.facts) {
    outcome = {facts, "", ResultToCopy(*facts, played_.games)};
    window.remarked.reset();
  }
  if (window.remarked || !window.guide->FirstStepsPlace()) return;
  window.remarked = outcome.facts;
  outcome.remark = RemarkOn(*outcome.facts, played_.history);
}

void WebFrontEnd::Flush(bool settled) {
  TellChanges();
  if (settled)
    for (auto& [id, window] : windows_) TellGuide(id, window);
  if (!any_) return;
  any_ = false;
  out_.Close(']');
  const Json told = std::exchange(out_, Json());
  out_.Open('[');
  page::Tell(told.Text().data(), told.Text().size());
}

// --- What the player does ------------------------------------------------------------------------

Event WebFrontEnd::Next(const Wait& wait) {
  const bool sleeps = wait.serving == Wait::Serving::Nothing;
  if (wait.serving == Wait::Serving::All)
    for (auto& [id, window] : windows_) ShowWholeBoard(window);
  Window* const idle = Idle(wait);
  Flush(!sleeps);
  constexpr long long kIdle = 60;  // milliseconds in which nothing has happened
  const long long until = idle ? std::min(wait.until, Milliseconds() + kIdle) : wait.until;
  const double left = until == Wait::kForever ? -1 : std::max(0ll, until - Milliseconds());
  const int length = page::Wait(left, static_cast<int>(wait.serving));
  if (length > 0) return Take(host::Taken(length), wait);
  if (wait.serving == Wait::Serving::All && wait.until <= Milliseconds()) return {Event::Kind::Tick};
  if (idle && !idle->chore()) idle->chore = nullptr;
  return {};
}

// The window for which there is something to be done in a wait; null if there is none.
WebFrontEnd::Window* WebFrontEnd::Idle(const Wait& wait) {
  if (wait.serving != Wait::Serving::All || wait.box) return nullptr;
  for (auto& [id, window] : windows_) {
    if (!window.hasChores || !window.form->Visible) continue;
    if (std::exchange(window.isOther, false)) {
      Say("unmark").Member("id", id * ids::kPerForm).Close('}');
      window.chore = choreFor(*window.form);
    }
    if (window.chore) return &window;
  }
  return nullptr;
}

void WebFrontEnd::Mark(const Label& score, size_t place, const std::string& record) {
  const int id = IdOf(score.form);
  if (id == 0) return;
  Say("mark").Member("id", ids::Of(id, score)).Member("place", place).Member("record", record).Close('}');
}

// "click 4100", "type 4101 text", "key 4096 0 P", "answer 2"
Event WebFrontEnd::Take(std::string_view line, const Wait& wait) {
  const std::string_view what = WordOf(line);
  if (what == "answer") {
    if (!wait.box) return {};
    const auto answers = AnswersOf(wait.box->buttons);
    const auto number = static_cast<size_t>(NumberOf(line));
    return {.kind = Event::Kind::Answer,
            .answer = number < answers.size() ? answers[number] : answers.back()};
  }
  const int id = NumberOf(line);
  const auto window = windows_.find(id / ids::kPerForm);
  Control* const control = window == windows_.end() ? nullptr : ids::Find(*window->second.form, id);
  if (!control) return {};
  if (what == "close" || what == "press" || what == "key" || what == "deal" || what == "resize") {
    if (player::WhyNot(*window->second.form).empty()) Do(what, window->second, *control, line);
  } else if (player::WhyNot(*control).empty()) {
    Do(what, window->second, *control, line);
  }
  return {};
}

void WebFrontEnd::Do(std::string_view what, Window& window, Control& control, std::string_view rest) {
  Form& form = *window.form;
  if (what == "click") {
    if (window.keys) window.keys->Press(&control);
    player::Click(control);
  } else if (what == "softly") {
    softly_ = true;
    player::Click(control);
    softly_ = false;
  } else if (what == "today" && window.guide) {
    window.guide->AskForToday();
    player::Click(control);
  } else if (what == "twice") {
    player::DblClick(control);
  } else if (what == "over") {
    player::MouseMove(control);
  } else if (what == "focus") {
    if (form.ActiveControl() != &control) player::Focus(control);
  } else if (what == "type" && control.kind == Control::Kind::TextBox) {
    player::Type(static_cast<TextBox&>(control), std::string(rest));
  } else if (what == "select") {
    player::Select(control, NumberOf(rest));
  } else if (what == "press") {
    player::Press(form, NumberOf(rest) == 0 ? Key::Return : Key::Escape);
  } else if (what == "close") {
    player::Close(form);
  } else if (what == "resize") {
    const int width = NumberOf(rest), height = NumberOf(rest);
    player::Resize(form, width * 15, height * 15);
  } else if (what == "key" && window.keys) {
    const bool far = NumberOf(rest) != 0;
    if (Control* const meant = ClickOf(*window.keys, std::string(rest), far, Milliseconds()))
      player::Click(*meant);
  } else if (what == "deal" && window.guide) {
    PlayDeal(*window.guide, NumberOf(rest));
  } else if (what == "pause" && window.guide) {
    // Puts the game on one side of the button: "1" pauses it.
    Control* const pause = window.guide->Pause();
    if (pause && window.guide->Paused() != (NumberOf(rest) != 0) && player::WhyNot(*pause).empty())
      player::Click(*pause);
  }
}

// Only where a game can begin; the window of a day has that day's deal alone.
void WebFrontEnd::PlayDeal(Guide& guide, int number) {
  const auto game = guide.Game();
  if (!game || game->inProgress || number < 1 || (!game->day.empty() && number != game->deal)) return;
  Control* const play = guide.Play();
  if (play && player::WhyNot(*play).empty() && guide.AskForDeal(number)) player::Click(*play);
}

void WebFrontEnd::Entered(const Event& event) {
  ++handler_;
  if (event.kind != Event::Kind::Click) clicked_ = nullptr;
}

void WebFrontEnd::Hidden() {
  if (platform.OnKeep) platform.OnKeep();
}

void WebFrontEnd::Leaving() {
  if (platform.OnLeave) platform.OnLeave();
}

std::string WebFrontEnd::Ask(std::string_view question) {
  const std::string_view what = WordOf(question);
  Json json;
  if (what == "days") {
    json.Open('{');
    const std::string today = UtcDay(Now());
    for (const KnownGame& game : played_.games)
      if (const auto score = ResultOfDay(today, game.name, played_.history))
        json.Member(game.name, FormatNumber(*score));
    json.Close('}');
  } else if (what == "games") {
    json.Open('[');
    for (const KnownGame& game : played_.games) json.Open('[').Write(game.name).Write(game.rounds).Close(']');
    json.Close(']');
  }
  return json.Text();
}

// --- The world -----------------------------------------------------------------------------------

long long WebFrontEnd::Milliseconds() { return static_cast<long long>(page::Now()); }

DateTime WebFrontEnd::Now() { return page::LocalTime(); }

uint64_t WebFrontEnd::Chance() { return static_cast<uint64_t>(page::Chance()); }

// As tall as the page draws lines: 1.17 times its letters.
Extent WebFrontEnd::TextExtent(const Label& label) {
  const int pixels = label.FontSize <= 10 ? 12 : label.FontSize <= 14 ? 16 : label.FontSize <= 20 ? 24 : 34;
  double width = 0;
  int lines = 0;
  std::string_view rest = label.Caption.get();
  do {
    const size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
    const double here = page::Breadth(rest.data(), end, pixels, label.FontBold || label.Remark);
    width = std::max(width, here);
    ++lines;
    const bool pair = rest.substr(end).starts_with("\r\n");
    rest.remove_prefix(std::min(end + (pair ? 2 : 1), rest.size()));
  } while (!rest.empty());
  return {static_cast<int>(std::ceil(width)) * 15, static_cast<int>(std::ceil(1.17 * pixels * lines)) * 15};
}

bool WebFrontEnd::OpenPage(const std::string&, const std::string& url) {
  Say("open").Member("url", url).Close('}');
  return true;
}

void WebFrontEnd::PlayWave(const std::string& path) {
  if (softly_) return;
  Say("wave").Member("path", path).Member("handler", handler_).Close('}');
}

void WebFrontEnd::MediaCommand(const std::string& command) {
  Say("tune").Member("command", command).Close('}');
}

void WebFrontEnd::Clicked(Control& control) {
  clicked_ = &control;
  if (const int id = IdOf(control.form)) Say("clicked").Member("id", ids::Of(id, control)).Close('}');
}

void WebFrontEnd::Refused() {
  if (!clicked_ || softly_) return;
  if (const int id = IdOf(clicked_->form)) Say("refused").Member("id", ids::Of(id, *clicked_)).Close('}');
}

// Only what has gone in the same breath is held up, that it can be seen.
void WebFrontEnd::Triumph(Visual& where, bool goes) {
  constexpr int kSeen = 900;
  const int id = IdOf(where.form);
  if (id == 0) return;
  Say("triumph").Member("id", ids::Of(id, where)).Close('}');
  if (!goes) return;
  Flush(false);
  Hold(kSeen);
}

void WebFrontEnd::Hold(int milliseconds) {
  page::Wait(milliseconds, static_cast<int>(Wait::Serving::Nothing));
}

// --- Windows -------------------------------------------------------------------------------------

void WebFrontEnd::FormLoaded(Form& form) {
  Window window{.form = &form, .guide = guides_ ? guides_(form) : nullptr, .keys = nullptr};
  if (window.guide && !window.guide->Keys().empty())
    window.keys = std::make_unique<BoardKeys>(form, *window.guide, MiddleOf);
  windows_.emplace(++nextForm_, std::move(window));
}

void WebFrontEnd::FormShown(Form& form) {
  const int id = IdOf(form);
  if (id == 0) return;
  Window& window = windows_.at(id);
  const auto& guide = window.guide;
  window.hasChores = window.isOther = choreFor && choreFor(form);
  Json& json = Say("show").Member("id", id * ids::kPerForm).Member("modal", form.Modal());
  if (TextBox* const box = guide ? guide->OffersAgain() : nullptr) json.Member("offer", ids::Of(id, *box));
  if (const Visual* const active = form.ActiveControl()) json.Member("focus", ids::Of(id, *active));
  json.Close('}');
}

// As long as the player has chosen no size all of the board is to be seen.
void WebFrontEnd::ShowWholeBoard(Window& window) {
  if (!window.isNew || !window.form->Visible) return;
  window.isNew = false;
  Form& form = *window.form;
  const int breadth = window.guide ? window.guide->Breadth() : 0;
  if (breadth > form.Width && form.Width == form.MinWidth && form.Height == form.MinHeight)
    player::Resize(form, breadth, form.Height);
}

void WebFrontEnd::FormHidden(Form& form) { SayForm("hide", form); }

void WebFrontEnd::FormUnloaded(Form& form) {
  if (clicked_ && &clicked_->form == &form) clicked_ = nullptr;
  SayForm("gone", form);
  std::erase_if(windows_, [&](const auto& each) { return each.second.form == &form; });
  std::erase_if(dirty_, [&](const Control* control) { return &control->form == &form; });
}

bool WebFrontEnd::IsChoice(const Form& form) const {
  const int id = IdOf(form);
  return id != 0 && windows_.at(id).guide && windows_.at(id).guide->IsChoice();
}

void WebFrontEnd::ForgetWindows() {
  for (const auto& [id, window] : windows_) Say("gone").Member("id", id * ids::kPerForm).Close('}');
  windows_.clear();
  dirty_.clear();
  clicked_ = nullptr;
}

void WebFrontEnd::PropertyChanged(Control& control, Prop) { Changed(control); }

// Nobody tells when a control of a window that isn't loaded goes.
void WebFrontEnd::Changed(Control& control) {
  const int id = control.kind == Control::Kind::Timer ? 0 : IdOf(control.form);
  if (id == 0) return;
  dirty_.insert(&control);
  if (control.kind == Control::Kind::Label) windows_.at(id).isOther = true;
}

void WebFrontEnd::FocusMoved(Visual& control) {
  if (const int id = IdOf(control.form)) Say("focus").Member("id", ids::Of(id, control)).Close('}');
}

void WebFrontEnd::TextSelected(TextBox& box) {
  if (const int id = IdOf(box.form)) Say("selectText").Member("id", ids::Of(id, box)).Close('}');
}

void WebFrontEnd::BoxShown(const MessageBox& box) {
  Json& json = Say("box").Member("text", box.text).Member("title", box.title);
  json.Member("icon", IconName(box.icon)).Key("answers").Open('[');
  for (const Answer answer : AnswersOf(box.buttons)) json.Write(AnswerName(answer));
  // A question is answered with No by who presses Return without reading it.
  const bool asks = box.buttons == Buttons::YesNo && box.icon == Icon::Question;
  json.Close(']').Member("first", asks ? 1 : 0).Close('}');
}

void WebFrontEnd::BoxGone(const MessageBox&) { Say("unbox").Close('}'); }

void WebFrontEnd::Ended(const std::string& failure) { Say("end").Member("failure", failure).Close('}'); }
