#include "window/script/script.h"

#include <algorithm>
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
void Hands::PressAnswer(Platform& platform, Answer answer) {
  platform.Enter({.kind = Event::Kind::Answer, .answer = answer});
}
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
  const std::string name = first == last ? "" : path.substr(first + 1, last - first - 1);
  const Control& control = first == last ? form : FindInForm(form, name);
  const std::string wanted = path.substr(last + 1);
  json found;
  control.Visit([&](Prop prop, const Value& value) {
    if (PropName(prop) == wanted) found = ToJson(value);
  });
  if (found.is_null()) throw Refusal(control.FullName() + " has no property " + wanted);
  return Written(found);
}

// "LO..HI N N ..."
std::string Foresee(Platform& platform, const std::string& arguments) {
  std::istringstream words(arguments);
  std::string bounds, word;
  if (!(words >> bounds)) {
    platform.Enter({.kind = Event::Kind::Foresee, .x = 1});
    return "";
  }
  const size_t dots = bounds.find("..");
  if (dots == std::string::npos) throw Refusal("the bounds are written LO..HI");
  const int lower = Number(bounds.substr(0, dots), INT_MIN, INT_MAX);
  const int upper = Number(bounds.substr(dots + 2), lower, INT_MAX);
  std::vector<int> results;
  while (words >> word) results.push_back(Number(word, lower, upper));
  for (int result : results) platform.Enter({Event::Kind::Foresee, nullptr, lower, upper, result});
  return std::to_string(platform.random.CountForeseen(lower, upper));
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

Refusal NoCommand(const std::string& name, const std::string& rest) {
  return Refusal("there is no command \"" + name + (rest.empty() ? "" : " " + rest) + "\"");
}

const Script::Verb& FindVerb(const std::string& name, const std::string& rest) {
  const auto verbs = Script::Verbs();
  const auto found = std::ranges::find(verbs, name, &Script::Verb::name);
  if (found == verbs.end()) throw NoCommand(name, rest);
  return *found;
}

}  // namespace

Script::Script(Platform& platform, Hands& hands, std::ostream& out)
    : platform_(platform), hands_(hands), out_(out) {}

void Script::Execute(const std::string& line) {
  std::string rest(Trim(line));
  if (rest.empty() || rest[0] == '#') return;
  const std::string name = TakeWord(rest);
  answerOpen_ = true;
  value_.clear();
  try {
    FindVerb(name, rest).run(*this, rest);
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

std::string Script::Verb::Usage() const {
  return std::string(name) + (arguments.empty() ? "" : " ") + std::string(arguments);
}

std::span<const Script::Verb> Script::Verbs() {
  static constexpr Verb kVerbs[] = {
      {"click", "C",
       "Clicks on a control: presses a button, picture or menu entry, ticks a box, chooses an option, goes to a "
       "text box",
       [](Script& script, std::string rest) {
         script.hands_.Click(Pointable(FindControl(script.platform_, rest)));
       }},
      {"dblclick", "C", "Clicks twice on a control",
       [](Script& script, std::string rest) {
         script.hands_.DblClick(Pointable(FindControl(script.platform_, rest)));
       }},
      {"move", "C", "Brings the pointer over a control",
       [](Script& script, std::string rest) {
         script.hands_.MouseMove(Pointable(FindControl(script.platform_, rest)));
       }},
      {"type", "C \"TEXT\"", "Goes to a text box and puts TEXT in place of what it holds",
       [](Script& script, std::string rest) {
         auto& box = Expect<TextBox>(FindControl(script.platform_, TakeWord(rest)), {Control::Kind::TextBox},
                                     "text box");
         const std::string text = Text(rest);
         RefuseIf(player::WhyNot(box));
         if (box.Locked) throw Refusal(box.FullName() + " can't be written");
         script.hands_.Type(box, text);
       }},
      {"select", "C N", "Chooses an entry of a list of files, folders or drives; N is 0 for the first",
       [](Script& script, std::string rest) {
         auto& list = Expect<ListControl>(
             FindControl(script.platform_, TakeWord(rest)),
             {Control::Kind::DriveListBox, Control::Kind::DirListBox, Control::Kind::FileListBox}, "list");
         RefuseIf(player::WhyNot(list));
         const int entries = static_cast<int>(list.List.get().size());
         if (entries == 0) throw Refusal(list.FullName() + " is empty");
         script.hands_.Select(list, Number(rest, 0, entries - 1));
       }},
      {"key", "W \"KEY\"", "Presses Return or Escape in a window",
       [](Script& script, std::string rest) {
         Form& form = FindWindow(script.platform_, TakeWord(rest));
         const Key key = FindKey(Text(rest));
         RefuseIf(player::WhyNot(form));
         script.hands_.Press(form, key);
       }},
      {"close", "W", "Presses a window's close box",
       [](Script& script, std::string rest) {
         Form& form = FindWindow(script.platform_, rest);
         RefuseIf(player::WhyNot(form));
         script.hands_.Close(form);
       }},
      {"resize", "W WIDTH HEIGHT", "Drags a window to another size, in twips",
       [](Script& script, std::string rest) {
         Form& form = FindWindow(script.platform_, TakeWord(rest));
         RefuseIf(player::WhyNot(form));
         const int width = Number(TakeWord(rest), 1, kLargestTwips);
         const int height = Number(rest, 1, kLargestTwips);
         if (!form.Sizable) throw Refusal(std::string(form.name) + " has a fixed size");
         if (form.WindowState != window_state::kNormal)
           throw Refusal(std::string(form.name) + " isn't in its normal state");
         script.hands_.Resize(form, width, height);
       }},
      {"state", "W N", "Restores (0), minimises (1) or maximises (2) a window",
       [](Script& script, std::string rest) {
         Form& form = FindWindow(script.platform_, TakeWord(rest));
         RefuseIf(player::WhyNot(form));
         script.hands_.SetState(form, Number(rest, 0, form.Sizable ? 2 : 1));
       }},
      {"answer", "\"BUTTON\"", "Presses a button of the message box that stands: Yes, No, OK or Cancel",
       [](Script& script, std::string rest) {
         script.hands_.PressAnswer(script.platform_, FindAnswer(script.platform_, Text(rest)));
       }},
      {"advance", "MS", "Lets so many milliseconds pass, in which timers tick as they fall due",
       [](Script& script, std::string rest) { script.hands_.Advance(Number(rest, 0, INT_MAX)); }},
      {"get", "C.PROPERTY", "Tells a property of a control, or, as W.PROPERTY, of a window",
       [](Script& script, std::string rest) { script.value_ = GetProperty(script.platform_, rest); }},
      {"dump", "W", "Tells all properties of a window and of everything in it",
       [](Script& script, std::string rest) { script.value_ = Dump(FindWindow(script.platform_, rest)); }},
      {"windows", "", "Tells which windows are loaded, front first, hidden ones last",
       [](Script& script, std::string) { script.value_ = Windows(script.platform_); }},
      {"time", "", "Tells how many milliseconds have passed since the start",
       [](Script& script, std::string) {
         script.value_ = std::to_string(script.platform_.front.Milliseconds());
       }},
      {"random", "[LO..HI [N...]]",
       "Decides what chance gives next when it is asked for LO to HI, and tells how many such numbers wait; alone "
       "forgets them all",
       [](Script& script, std::string rest) { script.value_ = Foresee(script.platform_, rest); }},
      {"trace", "on|off", "Switches the event lines on or off that tell what goes on inside",
       [](Script& script, std::string rest) {
         if (rest != "on" && rest != "off") throw NoCommand("trace", rest);
         script.trace_ = rest == "on";
       }},
      {"screenshot", "W \"FILE\"", "Writes a window as a picture, where there is a screen",
       [](Script& script, std::string rest) {
         Form& form = FindWindow(script.platform_, TakeWord(rest));
         const std::string file = Text(rest);
         RefuseIf(script.hands_.Screenshot(form, file));
       }},
      {"help", "[COMMAND]", "Tells how the commands are written and what they do",
       [](Script& script, std::string rest) {
         for (const Verb& each : rest.empty() ? Verbs() : std::span(&FindVerb(rest, ""), 1))
           script.Say("help " + Quoted(each.Usage()) + " " + Quoted(std::string(each.meaning)));
       }},
      {"quit", "", "Ends at once and writes nothing, as if the plug were pulled",
       [](Script& script, std::string) { script.quit_ = true; }},
  };
  return kVerbs;
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
