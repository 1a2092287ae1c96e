#include "window/web/watching.h"

#include <algorithm>
#include <cstdlib>

#include "window/web/page.h"

WatchingPage::WatchingPage(const PictureFiles& pictures, Guides guides, Recording recording)
    : WebFrontEnd(pictures, std::move(guides), {}), watching(std::move(recording), *this) {}

void WatchingPage::Play(const std::function<void()>& once) {
  Json& json = Say("recording").Member("title", watching.recording.title);
  json.Member("length", watching.recording.length).Member("comments", watching.recording.hasComments);
  json.Key("rounds").Open('[');
  for (const Recording::Round& round : watching.recording.rounds) json.Write(round.at);
  json.Close(']').Close('}');
  watching.Play(once);
  Say("left").Close('}');
  Flush(false);
}

void WatchingPage::Refuse(const std::string& why) {
  Say("unfit").Member("why", why).Close('}');
  Flush(false);
}

// --- Time ----------------------------------------------------------------------------------------

void WatchingPage::Rest(double milliseconds) {
  Flush(settled_);
  const int length = page::Wait(milliseconds, static_cast<int>(Wait::Serving::All));
  if (length == 0) return;
  // "watch key PageDown", "watch goto 12000"
  const std::string line = host::Taken(length);
  const size_t one = line.find(' '), two = line.find(' ', one + 1);
  if (two == line.npos || !line.starts_with("watch ")) return;
  const std::string what = line.substr(one + 1, two - one - 1), rest = line.substr(two + 1);
  if (what == "key") watching.Take(rest);
  if (what == "goto") watching.GoTo(std::atoll(rest.c_str()));
  if (what == "by") watching.GoBy(std::atoi(rest.c_str()));
}

void WatchingPage::HoldCards(bool held) { Say("still").Member("held", held).Close('}'); }

// --- What is shown -------------------------------------------------------------------------------

void WatchingPage::Point(const Event& next) {
  if (next.kind == Event::Kind::None) {
    if (std::exchange(points_, false)) Say("point").Close('}');
    return;
  }
  if (points_) return;
  const MessageBox* const box = platform.StandingBox();
  if (next.kind == Event::Kind::Answer && box) {
    const auto answers = AnswersOf(box->buttons);
    points_ = true;
    Say("point").Member("answer", std::ranges::find(answers, next.answer) - answers.begin()).Close('}');
  } else if ((next.kind == Event::Kind::Click || next.kind == Event::Kind::DblClick) && next.control) {
    const int id = IdOf(next.control->form);
    if (id == 0) return;
    points_ = true;
    Say("point").Member("id", ids::Of(id, *next.control)).Close('}');
  }
}

void WatchingPage::ShowBar() {
  Json bar;
  bar.Open('{').Member("at", watching.At()).Member("place", watching.Place(watching.At()));
  bar.Member("paused", watching.Paused()).Member("speed", watching.Speed());
  bar.Member("comment", watching.Comment()).Close('}');
  if (bar.Text() == bar_) return;
  bar_ = bar.Text();
  Say("bar").Key("bar").Plain(bar_).Close('}');
}

// From the selector the game was opened; here it already is.
void WatchingPage::FormShown(Form& form) {
  if (!IsChoice(form)) WebFrontEnd::FormShown(form);
}

void WatchingPage::FocusMoved(Visual& control) {
  if (!watching.IsFast()) WebFrontEnd::FocusMoved(control);
}
void WatchingPage::Clicked(Control& control) {
  if (!watching.IsFast()) WebFrontEnd::Clicked(control);
}
void WatchingPage::Triumph(Visual& where, bool goes) {
  if (!watching.IsFast()) WebFrontEnd::Triumph(where, goes);
}
void WatchingPage::PlayWave(const std::string& path) {
  if (!watching.IsFast()) WebFrontEnd::PlayWave(path);
}
