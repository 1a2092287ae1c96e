// The line protocol and the clock, on a window made for the purpose.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/documents.h"
#include "window/console/console.h"

namespace {

class frmChild : public Form {
 public:
  explicit frmChild(Platform& platform) : Form(platform, "frmChild") {
    cmdDone.OnClick = [this] { Unload(); };
    cmdDone.Default = true;
  }
  CommandButton cmdDone{*this, "cmdDone"};
};

class frmTest : public Form {
 public:
  explicit frmTest(Platform& platform) : Form(platform, "frmTest") {
    Sizable = true;
    TimerA.Interval = 100;
    TimerB.Interval = 100;
    TimerA.OnTimer = [this] { Told("A"); };
    TimerB.OnTimer = [this] { Told("B"); };
    cmdAsk.OnClick = [this] {
      Told(this->platform.MsgBox("Go?", "Ask", Icon::Question, Buttons::YesNo) == Answer::Yes ? "yes" : "no");
    };
    cmdChild.OnClick = [this] {
      frmChild(this->platform).Show(true);
      Told("back");
    };
    cmdSleep.OnClick = [this] {
      TimerA.Enabled = TimerB.Enabled = true;
      this->platform.Sleep(350);
      Told("slept");
    };
    cmdPending.OnClick = [this] {
      TimerA.Enabled = TimerB.Enabled = true;
      this->platform.Sleep(250);
      this->platform.DoEvents();
      this->platform.DoEvents();
      Told("done");
    };
    cmdStart.OnClick = [this] { TimerA.Enabled = TimerB.Enabled = true; };
    cmdStop.OnClick = [this] { TimerA.Enabled = TimerB.Enabled = false; };
    cmdFail.OnClick = [] { RaiseOverflow(); };
    cmdEnd.OnClick = [this] { this->platform.End("worn out"); };
    cmdHidden.Visible = false;
    mnuEntry.OnClick = [this] { Told("entry"); };
    mnuMenu.Enabled = false;
    lblLog.OnChange = [this] { ++changes; };
  }
  void Form_QueryUnload(bool& cancel) override { cancel = !mayGo; }

  void Told(const std::string& what) {
    lblLog.Caption = lblLog.Caption.get() + what + "@" + std::to_string(platform.Milliseconds()) + " ";
  }

  Label lblLog{*this, "lblLog"};
  Timer TimerA{*this, "TimerA"}, TimerB{*this, "TimerB"};
  Frame frmBox{*this, "frmBox"};
  CommandButton cmdAsk{*this, "cmdAsk"}, cmdChild{*this, "cmdChild"}, cmdSleep{*this, "cmdSleep"},
      cmdPending{*this, "cmdPending"}, cmdStart{*this, "cmdStart"}, cmdStop{*this, "cmdStop"},
      cmdFail{*this, "cmdFail"}, cmdEnd{*this, "cmdEnd"}, cmdHidden{*this, "cmdHidden"},
      cmdInBox{frmBox, "cmdInBox"};
  TextBox txtName{*this, "txtName"}, txtFixed{*this, "txtFixed"};
  CheckBox chkOne{*this, "chkOne"};
  OptionButton optA{frmBox, "optA"}, optB{frmBox, "optB"};
  Shape shpLine{*this, "shpLine"};
  ControlArray<Image, 2> imgCard{*this, "imgCard"};
  StatusBar bar{*this, "bar"};
  Menu mnuMenu{*this, "mnuMenu"}, mnuEntry{mnuMenu, "mnuEntry"};
  int changes = 0;
  bool mayGo = true;
};

class Script : public ::testing::Test {
 protected:
  Script() {
    console.platform.OnFailure = [this](const std::string& what) { form.Told("failed: " + what); };
    console.platform.Dispatch([this] { form.Show(); });
    Do("");
  }
  std::string Do(const std::string& commands) {
    in.clear();
    in.str(commands);
    out.str("");
    console.Run();
    return out.str();
  }
  std::string Log() {
    const std::string log = form.lblLog.Caption;
    form.lblLog.Caption = "";
    return log;
  }

  std::istringstream in;
  std::ostringstream out;
  ConsoleFrontEnd console{ConsoleOptions{}, in, out};
  frmTest form{console.platform};
};

TEST_F(Script, RefusesWhatAPlayerCouldNotDo) {
  form.txtFixed.Locked = true;
  form.frmBox.Enabled = false;
  const std::pair<const char*, const char*> rows[] = {
      {"click frmNone.cmdAsk", "frmNone is not loaded"},
      {"click frmTest.cmdNone", "frmTest has no control named cmdNone"},
      {"click frmTest.imgCard(2)", "frmTest has no control named imgCard(2)"},
      {"click frmTest.imgCard", "frmTest has no control named imgCard"},
      {"click frmTest", "a control is named window.control, not \\\"frmTest\\\""},
      {"click frmTest.cmdHidden", "frmTest.cmdHidden is not visible"},
      {"click frmTest.cmdInBox", "frmTest.frmBox is disabled"},
      {"click frmTest.mnuEntry", "frmTest.mnuMenu is disabled"},
      {"click frmTest.shpLine", "frmTest.shpLine takes no part in what a player does"},
      {"click frmTest.TimerA", "frmTest.TimerA takes no part in what a player does"},
      {"type frmTest.cmdAsk \"x\"", "frmTest.cmdAsk is no text box"},
      {"type frmTest.txtName x", "a text in double quotes is wanted"},
      {"type frmTest.txtFixed \"x\"", "frmTest.txtFixed can't be written"},
      {"select frmTest.cmdAsk 0", "frmTest.cmdAsk is no list"},
      {"key frmTest \"F1\"", "the keys are \\\"Return\\\" and \\\"Escape\\\""},
      {"resize frmTest 0 100", "the number must lie from 1 to 245745"},
      {"resize frmTest x 100", "a whole number is wanted, not \\\"x\\\""},
      {"state frmTest 3", "the number must lie from 0 to 2"},
      {"answer \"Yes\"", "no message box stands"},
      {"advance -1", "the number must lie from 0 to 2147483647"},
      {"get frmTest.cmdAsk.Volume", "frmTest.cmdAsk has no property Volume"},
      {"random 5..1 3", "the number must lie from 5 to 2147483647"},
      {"random 1..5 6", "the number must lie from 1 to 5"},
      {"random 1-5", "the bounds are written LO..HI"},
      {"trace maybe", "there is no command \\\"trace maybe\\\""},
      {"trace", "there is no command \\\"trace\\\""},
      {"help dance", "there is no command \\\"dance\\\""},
      {"screenshot frmTest \"x.png\"", "there is no screen"},
      {"dance", "there is no command \\\"dance\\\""},
  };
  for (const auto& [command, why] : rows)
    EXPECT_EQ(Do(command), "error \"" + std::string(why) + "\"\n") << command;
  EXPECT_EQ(Do("\n# nothing\n   \n"), "") << "comments and empty lines have no answer";
  EXPECT_EQ(Log(), "") << "a refused command changes nothing";
}

TEST_F(Script, AnswersWithValues) {
  EXPECT_EQ(Do("get frmTest.cmdHidden.Visible"), "ok false\n");
  EXPECT_EQ(Do("get frmTest.WindowState"), "ok 0\n");
  EXPECT_EQ(Do("get frmTest.bar.Panels(1).Text"), "ok \"\"\n");
  EXPECT_EQ(Do("type frmTest.txtName \"a \\\"b\\\" \\u00e4\"\nget frmTest.txtName.Text"),
            "ok\nok \"a \\\"b\\\" \xc3\xa4\"\n");
  EXPECT_EQ(Do("click frmTest.chkOne\nget frmTest.chkOne.Value\nclick frmTest.chkOne"), "ok\nok 1\nok\n");
  EXPECT_EQ(Do("click frmTest.optA\nclick frmTest.optB\nget frmTest.optA.Value\nget frmTest.optB.Value"),
            "ok\nok\nok false\nok true\n");
  EXPECT_EQ(Do("random 1..6 3 4\nrandom 1..6\nrandom 1..7\nrandom\nrandom 1..6"),
            "ok 2\nok 2\nok 0\nok\nok 0\n");
  EXPECT_EQ(Do("advance 40\ntime"), "ok\nok 40\n");
  EXPECT_EQ(Do("windows"), "ok [{\"caption\":\"\",\"modal\":false,\"name\":\"frmTest\",\"visible\":true}]\n");
  const std::string dump = Do("dump frmTest");
  EXPECT_EQ(dump.rfind("ok {\"\":{", 0), 0u);
  for (const char* key : {"\"TimerA\":{\"Enabled\":false,\"Interval\":100}", "\"bar.Panels(3)\":{",
                          "\"mnuEntry\":{", "\"imgCard(1)\":{"})
    EXPECT_NE(dump.find(key), std::string::npos) << key;
}

TEST_F(Script, HelpTellsEachCommand) {
  EXPECT_EQ(Do("help time"),
            "* help \"time\" \"Tells how many milliseconds have passed since the start\"\nok\n");
  std::istringstream all(Do("help"));
  std::string line;
  for (const ::Script::Verb& verb : ::Script::Verbs()) {
    ASSERT_TRUE(std::getline(all, line));
    EXPECT_EQ(line + "\nok\n", Do("help " + std::string(verb.name)));
  }
  EXPECT_TRUE(std::getline(all, line) && line == "ok");
}

// Where they differ, paste what is expected.
TEST_F(Script, TheManualsTellTheSameCommands) {
  std::string markdown = "\n| Command | What it does |\n|---|---|\n", manual = "\n";
  for (const ::Script::Verb& verb : ::Script::Verbs()) {
    std::string usage = verb.Usage();
    const std::string meaning(verb.meaning);
    manual += ".TP\n.B " + InManual(usage) + "\n" + InManual(meaning) + "\n";
    if (const size_t bar = usage.find('|'); bar != std::string::npos) usage.insert(bar, "\\");
    markdown += "| `" + usage + "` | " + meaning + " |\n";
  }
  const std::filesystem::path root = CARDHAVEN_SOURCE;
  EXPECT_EQ(Between(root / "docs/console.md", "<!-- commands -->", "<!-- /commands -->"), markdown)
      << markdown;
  EXPECT_EQ(Between(root / "packaging/cardhaven-console.6", ".\\\" commands", ".\\\" /commands"), manual)
      << manual;
}

TEST_F(Script, TheManualTellsAllProperties) {
  const std::string page = ReadFile(std::filesystem::path(CARDHAVEN_SOURCE) / "docs/console.md");
  for (int prop = 0; prop <= static_cast<int>(Prop::WindowState); ++prop) {
    const std::string name(PropName(static_cast<Prop>(prop)));
    EXPECT_NE(page.find("`" + name + "`"), std::string::npos) << name;
  }
}

TEST_F(Script, TicksInTheOrderOfTheTimes) {
  Do("click frmTest.cmdStart\nadvance 50");
  form.TimerB.Interval = 70;  // begins anew at the last event, 0
  Do("advance 160");
  EXPECT_EQ(Log(), "B@70 A@100 B@140 A@200 B@210 ");
  form.TimerA.Enabled = true;  // is on already: goes on as it was
  Do("advance 90\nclick frmTest.cmdStop\nadvance 1000\nclick frmTest.cmdStart\nadvance 99");
  EXPECT_EQ(Log(), "B@280 A@300 B@1370 ") << "a timer that was off begins its interval anew";
}

TEST_F(Script, TiesGoToTheTimerMadeFirst) {
  Do("click frmTest.cmdStart\nadvance 200");
  EXPECT_EQ(Log(), "A@100 B@100 A@200 B@200 ");
}

TEST_F(Script, ASleepLeavesOneTickWaiting) {
  EXPECT_EQ(Do("trace on\nclick frmTest.cmdSleep\ntrace off").find("* sleep 350\n") != std::string::npos,
            true);
  EXPECT_EQ(Log(), "slept@350 ");
  Do("advance 0");
  EXPECT_EQ(Log(), "A@350 B@350 ");
  Do("advance 100");
  EXPECT_EQ(Log(), "A@400 B@400 ") << "after a late tick the next comes at the next multiple";
  Do("click frmTest.cmdStop\nadvance 100\nclick frmTest.cmdSleep\nclick frmTest.cmdStop\nadvance 500");
  EXPECT_EQ(Log(), "slept@900 ") << "a timer that is switched off forgets its tick";
}

TEST_F(Script, PendingEventsTickEachWaitingTimerOnce) {
  form.TimerA.OnTimer = [this] {
    form.Told("A");
    form.TimerB.Enabled = false;
  };
  Do("click frmTest.cmdPending");
  EXPECT_EQ(Log(), "A@250 done@250 ") << "the tick that waited for B is forgotten, A ticks once";
}

TEST_F(Script, ATimerNeverTicksInItsOwnTick) {
  form.TimerA.OnTimer = [this] {
    form.Told("A");
    if (form.changes > 1) return;
    console.platform.MsgBox("wait", "");
    form.Told("on");
  };
  form.TimerA.Enabled = true;
  // The box comes at 100, in the middle of `advance 250`: 350 ms pass under it, and then the other 150.
  EXPECT_EQ(
      Do("advance 250\nadvance 350\nanswer \"OK\"\ntime"),
      "* msgbox {\"text\":\"wait\",\"title\":\"\",\"icon\":\"none\",\"buttons\":[\"OK\"]}\nok\nok\nok\nok "
      "600\n");
  EXPECT_EQ(Log(), "A@100 on@450 A@450 A@500 A@600 ");
}

TEST_F(Script, ABoxTakesTheConsoleUntilItIsAnswered) {
  const std::string box =
      "* msgbox {\"text\":\"Go?\",\"title\":\"Ask\",\"icon\":\"question\",\"buttons\":[\"Yes\",\"No\"]}\n";
  EXPECT_EQ(
      Do("trace on\nclick frmTest.cmdAsk\nclick frmTest.cmdAsk\nclose frmTest\nanswer \"OK\"\nanswer \"No\""
         "\ntrace off"),
      "ok\n" + box +
          "ok\nerror \"a message box stands before it\"\nerror \"a message box stands before it\"\n"
          "error \"the message box has no button \\\"OK\\\"\"\n* set frmTest.lblLog.Caption \"no@0 "
          "\"\nok\nok\n")
      << "what the handler does after the answer stands under the answer";
}

TEST_F(Script, AModalWindowTakesThePlayerUntilItIsGone) {
  EXPECT_EQ(Do("click frmTest.cmdChild\nclick frmTest.cmdAsk\nresize frmTest 100 100\nwindows\n"
               "key frmChild \"Return\"\nwindows"),
            "* load frmChild\n* show frmChild modal\nok\n"
            "error \"frmChild stands before it\"\nerror \"frmChild stands before it\"\n"
            "ok [{\"caption\":\"\",\"modal\":true,\"name\":\"frmChild\",\"visible\":true},"
            "{\"caption\":\"\",\"modal\":false,\"name\":\"frmTest\",\"visible\":true}]\n"
            "* unload frmChild\nok\n"
            "ok [{\"caption\":\"\",\"modal\":false,\"name\":\"frmTest\",\"visible\":true}]\n");
  EXPECT_EQ(Log(), "back@0 ");
}

TEST_F(Script, ATimerStartedAfterABoxStartsAtThatMoment) {
  form.cmdAsk.OnClick = [this] {
    console.platform.MsgBox("wait", "");
    form.TimerA.Enabled = true;
  };
  Do("click frmTest.cmdAsk\nadvance 370\nanswer \"OK\"\nadvance 300");
  EXPECT_EQ(Log(), "A@470 A@570 A@670 ");
}

TEST_F(Script, AFailureEndsTheHandlerAndNotTheProgram) {
  EXPECT_EQ(Do("click frmTest.cmdFail\nclick frmTest.cmdAsk\nanswer \"Yes\"").find("error"),
            std::string::npos);
  EXPECT_EQ(Log(), "failed: Overflow@0 yes@0 ");
}

TEST_F(Script, WindowsRefuseToGoChangeStateAndEnd) {
  form.mayGo = false;
  EXPECT_EQ(Do("close frmTest"), "ok\n");
  EXPECT_EQ(
      Do("resize frmTest 3000 2000\nstate frmTest 2\nget frmTest.Width\nresize frmTest 1 1\nstate frmTest 0\n"
         "get frmTest.Width"),
      "ok\nok\nok 15360\nerror \"frmTest isn't in its normal state\"\nok\nok 3000\n");
  form.mayGo = true;
  EXPECT_EQ(Do("close frmTest\nclick frmTest.cmdAsk"),
            "* unload frmTest\nok\nerror \"frmTest is not loaded\"\n");
}

TEST_F(Script, TheEndOfTheProgramIsTheLastLine) {
  EXPECT_EQ(Do("click frmTest.cmdEnd\ntime"), "* end \"worn out\"\n");
}

TEST_F(Script, QuitAndTheEndOfInputEndWhateverWaits) {
  const std::string box = Do("click frmTest.cmdAsk");  // the input ends while the box stands
  EXPECT_EQ(box.substr(box.size() - 3), "ok\n");
  EXPECT_EQ(Log(), "") << "what came after the box is not run";
  EXPECT_EQ(console.platform.StandingBox(), nullptr);
  EXPECT_EQ(Do("click frmTest.cmdChild\nclick frmTest.cmdAsk\nquit\ntime"),
            "* load frmChild\n* show frmChild modal\nok\nerror \"frmChild stands before it\"\n");
}

}  // namespace
