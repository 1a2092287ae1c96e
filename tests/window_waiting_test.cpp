// The one way of waiting, with a front end of a few lines: a list of what is going to happen.
#include <gtest/gtest.h>

#include <deque>
#include <exception>

#include "window/player.h"

namespace {

using Serving = Wait::Serving;

class Listed : public FrontEnd {
 public:
  Platform platform{*this};
  std::deque<std::function<Event()>> input;  // comes one by one, as soon as it is served
  std::vector<Wait> waits;                   // that were asked for
  long long now = 0;
  bool ticks = true;  // whether time passes when there is no input

  Event Next(const Wait& wait) override {
    waits.push_back(wait);
    if (wait.serving == Serving::Nothing) now = wait.until;
    if (wait.serving != Serving::Nothing && !input.empty()) {
      const auto next = input.front();
      input.pop_front();
      return next();
    }
    if (wait.serving != Serving::All) return {};
    if (!ticks || wait.until == Wait::kForever) return {Event::Kind::Over};
    now = std::max(now, wait.until);
    return {Event::Kind::Tick};
  }
  long long Milliseconds() override { return now; }
  DateTime Now() override { return {}; }
  Extent ScreenExtent() override { return {}; }
  Extent TextExtent(const Label&) override { return {}; }
  std::string FindBrowser() override { return ""; }
  bool OpenPage(const std::string&, const std::string&) override { return false; }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
};

class frmChild : public Form {
 public:
  explicit frmChild(Platform& platform) : Form(platform, "frmChild") {}
};

class frmMain : public Form {
 public:
  explicit frmMain(Platform& platform) : Form(platform, "frmMain") { Timer1.Interval = 100; }
  CommandButton cmdGo{*this, "cmdGo"}, cmdOther{*this, "cmdOther"};
  Timer Timer1{*this, "Timer1"};
};

class Waiting : public ::testing::Test {
 protected:
  Waiting() {
    form.Show();
    form.cmdOther.OnClick = [this] { Tell("other"); };
    platform.OnFailure = [this](const std::string& what) { Tell("failed: " + what); };
  }
  void Tell(const std::string& what) { told += what + "@" + std::to_string(front.now) + " "; }
  std::string Told() { return std::exchange(told, ""); }
  void Ask(const char* text) {
    Tell(text + std::string(AnswerName(platform.MsgBox(text, "", Icon::Question, Buttons::YesNo))));
  }
  void RunsInOne(std::initializer_list<std::function<Event()>> input) {
    front.input = input;
    platform.Run();
  }
  std::function<Event()> Click(CommandButton& button) {
    return [&] { return Event{Event::Kind::Click, &button}; };
  }
  static std::function<Event()> Answered(Answer answer) {
    return [=] { return Event{.kind = Event::Kind::Answer, .answer = answer}; };
  }
  void NothingIsUnderWay() {
    EXPECT_EQ(platform.StandingBox(), nullptr);
    EXPECT_EQ(platform.ModalForm(), nullptr);
    EXPECT_EQ(platform.HandlersUnderWay(), 0);
    EXPECT_EQ(platform.WaitsUnderWay(), 0u);
  }

  Listed front;
  Platform& platform = front.platform;
  frmMain form{platform};
  std::string told;
};

TEST_F(Waiting, ASleepServesNobody) {
  form.cmdGo.OnClick = [this] {
    form.Timer1.Enabled = true;
    platform.Sleep(250);
    Tell("slept");
    form.Timer1.Enabled = false;
    form.Timer1.Enabled = true;
  };
  form.Timer1.OnTimer = [this] {
    Tell("tick");
    form.Timer1.Enabled = false;
  };
  RunsInOne({Click(form.cmdGo), Click(form.cmdOther)});
  EXPECT_EQ(Told(), "slept@250 other@250 tick@350 ") << "what starts behind a sleep starts at that moment";
  EXPECT_EQ(front.waits[1].serving, Serving::Nothing);
  EXPECT_EQ(front.waits[1].until, 250);
}

TEST_F(Waiting, PendingEventsAreTheInputAndThenOneTickEach) {
  form.cmdGo.OnClick = [this] {
    form.Timer1.Enabled = true;
    platform.Sleep(330);
    platform.DoEvents();
    Tell("done");
    platform.End();
  };
  form.Timer1.OnTimer = [this] { Tell("tick"); };
  form.cmdOther.OnClick = [this] { Ask("sure? "); };
  RunsInOne({Click(form.cmdGo), Click(form.cmdOther), Answered(Answer::Yes), [] { return Event{}; }});
  EXPECT_EQ(Told(), "sure? Yes@330 tick@330 done@330 ")
      << "no tick before the input, unless that waits itself";
}

TEST_F(Waiting, ABoxServesTicksAndBoxesOverItUntilItIsAnswered) {
  form.cmdGo.OnClick = [this] { Ask("first? "); };
  int ticks = 0;
  form.Timer1.Enabled = true;
  form.Timer1.OnTimer = [this, &ticks] {
    Tell("tick");
    if (++ticks == 2) Ask("second? ");
    if (ticks == 2) form.Timer1.Enabled = false;
  };
  const auto late = [this] { return front.now = 230, Event{Event::Kind::Tick}; };
  RunsInOne({Click(form.cmdGo), [this] { return front.now = 130, Event{Event::Kind::Tick}; }, late,
             Answered(Answer::No), Answered(Answer::Yes)});
  EXPECT_EQ(Told(), "tick@130 tick@230 second? No@230 first? Yes@230 ");
  EXPECT_EQ(front.waits[1].until, 100) << "the next tick is when the platform wants to be asked again";
  EXPECT_EQ(front.waits[3].until, Wait::kForever) << "no timer ticks within its own tick";
}

TEST_F(Waiting, AModalWindowThatATickOpensStandsBeforeTheBox) {
  frmChild child(platform);
  form.Timer1.Enabled = true;
  form.Timer1.OnTimer = [&] {
    form.Timer1.Enabled = false;
    child.Show(true);
    Tell("back");
  };
  form.cmdGo.OnClick = [this] { Ask("first? "); };
  const auto close = [&] {
    EXPECT_EQ(platform.StandingBox(), nullptr);
    EXPECT_TRUE(platform.StillWaits());
    player::Close(child);  // handed on, instead of given back
    EXPECT_FALSE(platform.StillWaits()) << "the handler that waits goes first";
    return Event{};
  };
  const auto time = [this] { return front.now = 100, Event{Event::Kind::Tick}; };
  RunsInOne({Click(form.cmdGo), time, Answered(Answer::Yes), close, Answered(Answer::No)});
  EXPECT_EQ(Told(), "back@100 first? No@100 ") << "a box that nobody can reach takes no answer";
  NothingIsUnderWay();
}

TEST_F(Waiting, TheEndOfTheProgramEndsEachWait) {
  frmChild child(platform);
  form.Timer1.Enabled = true;
  form.Timer1.OnTimer = [this] {
    Ask("really? ");
    platform.End();
  };
  form.cmdGo.OnClick = [&] {
    child.Show(true);
    Ask("first? ");
  };
  const auto tick = [this] { return front.now = 100, Event{Event::Kind::Tick}; };
  RunsInOne({Click(form.cmdGo), tick, Answered(Answer::Yes), Click(form.cmdOther)});
  EXPECT_EQ(Told(), "really? Yes@100 first? No@100 ") << "what is asked then is answered as by the close box";
  EXPECT_EQ(front.input.size(), 1u) << "nobody is served any more";
}

TEST_F(Waiting, WhereNothingComesAnyMoreTheHandlersThatWaitGoAway) {
  frmChild child(platform);
  form.cmdGo.OnClick = [&] {
    child.Show(true);
    Tell("never");
  };
  form.cmdOther.OnClick = [this] { Ask("never? "); };
  front.ticks = false;
  // A modal window that a deed under a box has opened.
  form.Timer1.Enabled = true;
  form.Timer1.OnTimer = form.cmdGo.OnClick;
  RunsInOne({Click(form.cmdOther), [this] { return front.now = 100, Event{Event::Kind::Tick}; }});
  EXPECT_EQ(Told(), "");
  NothingIsUnderWay();
  child.Hide();

  front.now = 200;
  form.Timer1.OnTimer = [this] { Tell("tick"); };
  RunsInOne({[] { return Event{Event::Kind::Tick}; }});
  EXPECT_EQ(Told(), "tick@200 ")
      << "and the next run goes on, with a timer whose tick was left in the middle";

  platform.Dispatch(form.cmdOther.OnClick);  // that waits in no run at all
  EXPECT_EQ(Told(), "");
  NothingIsUnderWay();
}

TEST_F(Waiting, AFailureIsToldOfWhenItIsOver) {
  platform.OnFailure = [this](const std::string& what) {
    // A stack that is suspended while it handles an exception can't be handed over.
    EXPECT_FALSE(std::current_exception());
    Ask((what + "? ").c_str());
  };
  form.cmdGo.OnClick = [] { RaiseOverflow(); };
  RunsInOne({Click(form.cmdGo), Answered(Answer::Yes)});
  EXPECT_EQ(Told(), "Overflow? Yes@0 ");
}

// Stands before the front end, and sees all that comes in.
class Witness : public Border {
 public:
  explicit Witness(Platform& platform) : inner_(*platform.border) { platform.border = this; }
  Event Next(const Wait& wait) override {
    seen += "(";
    const Event event = inner_.Next(wait);
    seen += ")";
    return event;
  }
  void Entered(const Event& event) override {
    seen += event.control ? event.control->FullName() : AnswerName(event.answer);
  }
  long long Milliseconds() override { return inner_.Milliseconds(); }
  DateTime Now() override { return inner_.Now(); }
  Extent ScreenExtent() override { return inner_.ScreenExtent(); }
  Extent TextExtent(const Label& label) override { return inner_.TextExtent(label); }
  std::string FindBrowser() override { return inner_.FindBrowser(); }
  bool OpenPage(const std::string& browser, const std::string& url) override {
    return inner_.OpenPage(browser, url);
  }
  std::string seen;

 private:
  Border& inner_;
};

TEST_F(Waiting, WhoStandsAtTheBorderSeesAllThatComes) {
  Witness witness(platform);
  form.Timer1.Enabled = true;
  form.Timer1.OnTimer = [this] { form.Timer1.Enabled = false; };
  form.cmdGo.OnClick = [this] {
    Ask("first? ");
    platform.Sleep(20);
  };
  const auto handed = [this] { return player::Click(form.cmdOther), Event{}; };
  RunsInOne({Click(form.cmdGo), [this] { return front.now = 100, Event{Event::Kind::Tick}; },
             Answered(Answer::Yes), handed});
  EXPECT_EQ(witness.seen, "()frmMain.cmdGo()frmMain.Timer1()Yes()(frmMain.cmdOther)()");
}

}  // namespace
