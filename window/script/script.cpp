#include "window/script/script.h"

#include <charconv>
#include <climits>
#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <stdexcept>

#include "window/lists.h"
#include "window/player.h"
#include "window/text.h"

using nlohmann::json;

void Hands::Click(Control& control) { player::Click(control); }
void Hands::DblClick(Control& control) { player::DblClick(control); }
void Hands::MouseMove(Control& control) { player::MouseMove(control); }
void Hands::Type(TextBox& box, const std::string& text) { player::Type(box, text); }
void Hands::Select(Control& list, int entry) { player::Select(list, entry); }
void Hands::Press(Form& form, Key key) { player::Press(form, key); }
void Hands::Close(Form& form) { player::Close(form); }
void Hands::Resize(Form& form, int width, int height) { player::Resize(form, width, height); }
void Hands::SetState(Form& form, int state) { player::SetState(form, state); }
std::string Hands::Screenshot(Form&, const std::string&) { return "there is no screen"; }

namespace {

// Why a command isn't carried out.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

void RefuseIf(const std::string& why) {
  if (!why.empty()) throw Refusal(why);
}

std::string Quoted(const std::string& text) {
  return json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

json ToJson(const Value& value) {
  return std::visit([](const auto& held) { return json(held); }, value);
}

std::string Written(const json& value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); }

// The first word of a text, which loses it and the blanks behind.
std::string TakeWord(std::string& text) {
  const size_t end = text.find(' ');
  const std::string word = text.substr(0, end);
  text = end == std::string::npos ? "" : std::string(Trim(text.substr(end)));
  return word;
}

int Number(const std::string& text, int lowest, int highest) {
  int value = 0;
  if (!ParseLong(text, value)) throw Refusal("a whole number is wanted, not \"" + text + "\"");
  if (value < lowest || value > highest)
    throw Refusal("the number must lie from " + std::to_string(lowest) + " to " + std::to_string(highest));
  return value;
}

std::string Text(const std::string& written) {
  const json value = json::parse(written, nullptr, false);
  if (!value.is_string()) throw Refusal("a text in double quotes is wanted");
  return value.get<std::string>();
}

Form& FindWindow(const Platform& platform, const std::string& name) {
  Form* form = platform.FindForm(name);
  if (!form) throw Refusal(name + " is not loaded");
  return *form;
}

// "name" or "name(3)" within a form; "" is the form itself.
Control& FindInForm(Form& form, const std::string& path) {
  if (path.empty()) return form;
  const size_t open = path.find('(');
  const std::string name = path.substr(0, open);
  int index = -1;
  if (open != std::string::npos) {
    if (path.back() != ')') throw Refusal("a \")\" is missing in " + path);
    index = Number(path.substr(open + 1, path.size() - open - 2), 0, INT_MAX);
  }
  Control* control = form.find(name, index);
  if (!control) throw Refusal(std::string(form.name) + " has no control named " + path);
  return *control;
}

Control& FindControl(const Platform& platform, const std::string& path) {
  const size_t dot = path.find('.');
  if (dot == std::string::npos) throw Refusal("a control is named window.control, not \"" + path + "\"");
  return FindInForm(FindWindow(platform, path.substr(0, dot)), path.substr(dot + 1));
}

template <class T>
T& Expect(Control& control, std::initializer_list<Control::Kind> kinds, const char* what) {
  for (Control::Kind kind : kinds)
    if (control.kind == kind) return static_cast<T&>(control);
  throw Refusal(control.FullName() + " is no " + what);
}

// Lets only those controls through that react to a mouse at all.
Control& Pointable(Control& control) {
  if (control.kind == Control::Kind::Form) throw Refusal("a control is named window.control");
  RefuseIf(player::WhyNot(control));
  return control;
}

json Properties(const Control& control) {
  json all = json::object();
  control.Visit([&](Prop prop, const Value& value) { all[std::string(PropName(prop))] = ToJson(value); });
  return all;
}

std::string Dump(const Form& form) {
  json all = json::object();
  all[""] = Properties(form);
  for (const Control* control : form.Controls()) all[control->NameInForm()] = Properties(*control);
  return Written(all);
}

std::string Windows(const Platform& platform) {
  json shown = json::array(), hidden = json::array();
  for (const Form* form : platform.forms) {
    if (!form->Loaded()) continue;
    (form->Visible ? shown : hidden)
        .push_back({{"name", std::string(form->name)},
                    {"caption", form->Caption.get()},
                    {"visible", form->Visible.get()},
                    {"modal", form->Modal()}});
  }
  for (const json& each : hidden) shown.push_back(each);
  return Written(shown);
}

// "frmSumfall.lblTime.Caption"
std::string GetProperty(const Platform& platform, const std::string& path) {
  const size_t first = path.find('.'), last = path.rfind('.');
  if (last == std::string::npos) throw Refusal("a property is named window.control.Property");
  Form& form = FindWindow(platform, path.substr(0, first));
  const Control& control = first == last ? form : FindInForm(form, path.substr(first + 1, last - first - 1));
  const std::string wanted = path.substr(last + 1);
  json found;
  control.Visit([&](Prop prop, const Value& value) {
    if (PropName(prop) == wanted) found = ToJson(value);
  });
  if (found.is_null()) throw Refusal(control.FullName() + " has no property " + wanted);
  return Written(found);
}

// "LO..HI N N ..."
std::string Foresee(RandomSource& random, const std::string& arguments) {
  std::istringstream words(arguments);
  std::string bounds, word;
  if (!(words >> bounds)) {
    random.ForgetForeseen();
    return "";
  }
  const size_t dots = bounds.find("..");
  if (dots == std::string::npos) throw Refusal("the bounds are written LO..HI");
  const int lower = Number(bounds.substr(0, dots), INT_MIN, INT_MAX);
  const int upper = Number(bounds.substr(dots + 2), lower, INT_MAX);
  std::vector<int> results;
  while (words >> word) results.push_back(Number(word, lower, upper));
  for (int result : results) random.Foresee(lower, upper, result);
  return std::to_string(random.CountForeseen(lower, upper));
}

Answer FindAnswer(const Platform& platform, const std::string& name) {
  const MessageBox* box = platform.StandingBox();
  if (!box) throw Refusal("no message box stands");
  for (Answer answer : AnswersOf(box->buttons))
    if (AnswerName(answer) == name) return answer;
  throw Refusal("the message box has no button \"" + name + "\"");
}

Key FindKey(const std::string& name) {
  if (name == "Return") return Key::Return;
  if (name == "Escape") return Key::Escape;
  throw Refusal("the keys are \"Return\" and \"Escape\"");
}

constexpr int kLargestTwips = 16383 * 15;

}  // namespace

Script::Script(Platform& platform, Hands& hands, std::ostream& out)
    : platform_(platform), hands_(hands), out_(out) {}

void Script::Execute(const std::string& line) {
  std::string rest(Trim(line));
  if (rest.empty() || rest[0] == '#') return;
  const std::string verb = TakeWord(rest);
  answerOpen_ = true;
  value_.clear();
  try {
    value_ = Run(verb, rest);
  } catch (const Refusal& refusal) {
    answerOpen_ = false;
    out_ << "error " << Quoted(refusal.what()) << std::endl;
  }
}

void Script::AnswerNow() {
  if (!answerOpen_ || quit_ || platform_.HasEnded()) return;
  answerOpen_ = false;
  out_ << (value_.empty() ? "ok" : "ok " + value_) << std::endl;
}

std::string Script::Run(const std::string& verb, const std::string& arguments) {
  std::string rest = arguments;
  if (verb == "click") {
    hands_.Click(Pointable(FindControl(platform_, rest)));
  } else if (verb == "dblclick") {
    hands_.DblClick(Pointable(FindControl(platform_, rest)));
  } else if (verb == "move") {
    hands_.MouseMove(Pointable(FindControl(platform_, rest)));
  } else if (verb == "type") {
    auto& box = Expect<TextBox>(FindControl(platform_, TakeWord(rest)), {Control::Kind::TextBox}, "text box");
    const std::string text = Text(rest);
    RefuseIf(player::WhyNot(box));
    if (box.Locked) throw Refusal(box.FullName() + " can't be written");
    hands_.Type(box, text);
  } else if (verb == "select") {
    auto& list = Expect<ListControl>(
        FindControl(platform_, TakeWord(rest)),
        {Control::Kind::DriveListBox, Control::Kind::DirListBox, Control::Kind::FileListBox}, "list");
    RefuseIf(player::WhyNot(list));
    const int entries = static_cast<int>(list.List.get().size());
    if (entries == 0) throw Refusal(list.FullName() + " is empty");
    hands_.Select(list, Number(rest, 0, entries - 1));
  } else if (verb == "key") {
    Form& form = FindWindow(platform_, TakeWord(rest));
    const Key key = FindKey(Text(rest));
    RefuseIf(player::WhyNot(form));
    hands_.Press(form, key);
  } else if (verb == "close") {
    Form& form = FindWindow(platform_, rest);
    RefuseIf(player::WhyNot(form));
    hands_.Close(form);
  } else if (verb == "resize") {
    Form& form = FindWindow(platform_, TakeWord(rest));
    RefuseIf(player::WhyNot(form));
    const int width = Number(TakeWord(rest), 1, kLargestTwips);
    const int height = Number(rest, 1, kLargestTwips);
    if (!form.Sizable) throw Refusal(std::string(form.name) + " has a fixed size");
    if (form.WindowState != window_state::kNormal)
      throw Refusal(std::string(form.name) + " isn't in its normal state");
    hands_.Resize(form, width, height);
  } else if (verb == "state") {
    Form& form = FindWindow(platform_, TakeWord(rest));
    RefuseIf(player::WhyNot(form));
    hands_.SetState(form, Number(rest, 0, form.Sizable ? 2 : 1));
  } else if (verb == "answer") {
    hands_.PressAnswer(FindAnswer(platform_, Text(rest)));
  } else if (verb == "advance") {
    hands_.Advance(Number(rest, 0, INT_MAX));
  } else if (verb == "get") {
    return GetProperty(platform_, rest);
  } else if (verb == "dump") {
    return Dump(FindWindow(platform_, rest));
  } else if (verb == "windows") {
    return Windows(platform_);
  } else if (verb == "time") {
    return std::to_string(platform_.front.Milliseconds());
  } else if (verb == "random") {
    return Foresee(platform_.random, rest);
  } else if (verb == "trace" && (rest == "on" || rest == "off")) {
    trace_ = rest == "on";
  } else if (verb == "screenshot") {
    Form& form = FindWindow(platform_, TakeWord(rest));
    const std::string file = Text(rest);
    RefuseIf(hands_.Screenshot(form, file));
  } else if (verb == "quit") {
    quit_ = true;
  } else {
    throw Refusal("there is no command \"" + verb + (rest.empty() ? "" : " " + rest) + "\"");
  }
  return "";
}

void Script::Say(const std::string& line) { out_ << "* " << line << '\n'; }

void Script::FormLoaded(Form& form) { Say("load " + std::string(form.name)); }
void Script::FormShown(Form& form) { Say("show " + std::string(form.name) + (form.Modal() ? " modal" : "")); }
void Script::FormHidden(Form& form) { Say("hide " + std::string(form.name)); }
void Script::FormUnloaded(Form& form) { Say("unload " + std::string(form.name)); }

void Script::PropertyChanged(Control& control, Prop prop) {
  Value value;
  if (trace_ && control.Get(prop, value))
    Say("set " + control.FullName() + "." + std::string(PropName(prop)) + " " + Written(ToJson(value)));
}

void Script::SurfaceCleared(PictureBox& surface) {
  if (trace_) Say("draw " + surface.FullName() + " clear");
}

void Script::SurfaceDrawn(PictureBox& surface, const Stroke& stroke) {
  if (!trace_ || stroke.kind != Stroke::Kind::Pie) return;
  Say("draw " + surface.FullName() + " pie " + std::to_string(std::lround(stroke.start)) + " " +
      std::to_string(std::lround(stroke.end)) + " " + std::to_string(stroke.colour));
}

void Script::BoxShown(const MessageBox& box) {
  json buttons = json::array();
  for (Answer answer : AnswersOf(box.buttons)) buttons.push_back(std::string(AnswerName(answer)));
  Say("msgbox {\"text\":" + Quoted(box.text) + ",\"title\":" + Quoted(box.title) +
      ",\"icon\":" + Quoted(std::string(IconName(box.icon))) + ",\"buttons\":" + buttons.dump() + "}");
}

void Script::Slept(int milliseconds) {
  if (trace_) Say("sleep " + std::to_string(milliseconds));
}

void Script::EventsLetThrough() {
  if (trace_) Say("doevents");
}

void Script::WavePlayed(const std::string& path) {
  if (trace_) Say("sound " + Quoted(path));
}

void Script::MediaCommanded(const std::string& command) {
  if (trace_) Say("mci " + Quoted(command));
}

void Script::BrowserOpened(const std::string& url) { Say("shell \"open\" " + Quoted(url)); }

void Script::Ended(const std::string& failure) {
  Say(failure.empty() ? "end" : "end " + Quoted(failure));
  out_.flush();
}
