#include "record/events.h"

#include <algorithm>
#include <charconv>
#include <climits>

#include "window/lists.h"
#include "window/player.h"

namespace record {

namespace {

using Kind = Event::Kind;

struct Name {
  Kind kind;
  std::string_view name;
};
constexpr Name kNames[] = {{Kind::Click, "click"},   {Kind::DblClick, "dblclick"}, {Kind::MouseMove, "move"},
                           {Kind::Focus, "focus"},   {Kind::Type, "type"},         {Kind::Select, "select"},
                           {Kind::Press, "key"},     {Kind::Close, "close"},       {Kind::Place, "place"},
                           {Kind::Resize, "resize"}, {Kind::State, "state"},       {Kind::Foresee, "random"},
                           {Kind::Answer, "answer"}, {Kind::Tick, "tick"}};

constexpr int kFarthest = 1'000'000;  // twips

Control* Find(const Platform& platform, std::string_view whole) {
  const size_t dot = whole.find('.');
  Form* const form = platform.FindForm(whole.substr(0, dot));
  if (!form || dot == std::string_view::npos) return form;
  std::string_view name = whole.substr(dot + 1);
  int index = -1;
  if (const size_t open = name.find('('); open != std::string_view::npos) {
    std::from_chars(name.data() + open + 1, name.data() + name.size(), index);
    name = name.substr(0, open);
  }
  return form->find(name, index);
}

// Whether such a thing can happen to such a control at all.
bool CanHappen(Kind kind, const Control& control) {
  const bool isForm = control.kind == Control::Kind::Form;
  switch (kind) {
    case Kind::Type:
      return control.kind == Control::Kind::TextBox;
    case Kind::Select:
      return control.kind == Control::Kind::DriveListBox || control.kind == Control::Kind::DirListBox ||
             control.kind == Control::Kind::FileListBox;
    case Kind::DblClick:
    case Kind::MouseMove:
    case Kind::Focus:
      return !isForm && control.kind != Control::Kind::Menu && control.kind != Control::Kind::Timer &&
             control.kind != Control::Kind::Panel;
    case Kind::Click:
      return !isForm;
    default:
      return isForm;
  }
}

// Windows are moved and sized by others than the player, too.
bool IsPlayers(Kind kind) {
  return kind != Kind::Place && kind != Kind::Resize && kind != Kind::State && kind != Kind::Focus;
}

}  // namespace

std::string_view NameOf(Kind kind) {
  const auto found = std::ranges::find(kNames, kind, &Name::kind);
  return found == std::end(kNames) ? "" : found->name;
}

Kind KindOf(std::string_view name) {
  const auto found = std::ranges::find(kNames, name, &Name::name);
  return found == std::end(kNames) ? Kind::None : found->kind;
}

std::string Told(const Event& event) {
  const auto number = [](int value) { return " " + std::to_string(value); };
  const std::string whom = event.control ? " " + event.control->FullName() : "";
  switch (event.kind) {
    case Kind::Type:
      return whom + " " + Quoted(event.text);
    case Kind::Select:
    case Kind::State:
      return whom + number(event.x);
    case Kind::Press:
      return whom + (event.key == Key::Return ? " Return" : " Escape");
    case Kind::Place:
    case Kind::Resize:
      return whom + number(event.x) + number(event.y);
    case Kind::Foresee:
      return event.x > event.y ? "" : number(event.x) + number(event.y) + number(event.z);
    case Kind::Answer:
      return " " + std::string(AnswerName(event.answer));
    case Kind::Tick:
      return "";
    default:
      return whom;
  }
}

Again ReadEvent(Line& line, Kind kind, const Platform& platform, std::string& whyNot) {
  Again again;
  Event& event = again.event;
  event.kind = kind;
  if (kind == Kind::Tick) {
    if (!platform.timers.Next()) whyNot = "no timer is on";
    return again;
  }
  if (kind == Kind::Foresee) {
    event.x = 1;
    if (line.AtEnd()) return again;
    event.x = static_cast<int>(line.Number(INT_MIN, INT_MAX));
    event.y = static_cast<int>(line.Number(event.x, INT_MAX));
    event.z = static_cast<int>(line.Number(event.x, event.y));
    return again;
  }
  const std::string whom = line.Word();
  if (kind == Kind::Answer) {
    const MessageBox* const box = platform.StandingBox();
    const auto answers = box ? AnswersOf(box->buttons) : std::vector<Answer>();
    const auto found = std::ranges::find(answers, whom, AnswerName);
    if (!box)
      whyNot = "no message box stands";
    else if (found == answers.end())
      whyNot = "the message box has no button " + whom;
    else
      event.answer = *found;
    return again;
  }
  switch (kind) {
    case Kind::Type:
      again.text = line.Word();
      break;
    case Kind::Select:
      event.x = static_cast<int>(line.Number(0, INT_MAX));
      break;
    case Kind::State:
      event.x = static_cast<int>(line.Number(0, 2));
      break;
    case Kind::Press: {
      const std::string key = line.Word();
      if (key != "Return" && key != "Escape") line.Wrong("there is no key " + key);
      event.key = key == "Return" ? Key::Return : Key::Escape;
      break;
    }
    case Kind::Place:
    case Kind::Resize:
      event.x = static_cast<int>(line.Number(kind == Kind::Resize ? 1 : -kFarthest, kFarthest));
      event.y = static_cast<int>(line.Number(kind == Kind::Resize ? 1 : -kFarthest, kFarthest));
      break;
    default:
      break;
  }
  event.control = Find(platform, whom);
  if (!event.control)
    whyNot = "there is no " + whom;
  else if (!CanHappen(kind, *event.control))
    whyNot = std::string(NameOf(kind)) + " means nothing to " + whom;
  else if (IsPlayers(kind))
    whyNot = player::WhyNot(*event.control);
  return again;
}

}  // namespace record
