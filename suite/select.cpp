#include "suite/select.h"

#include <algorithm>

#include "window/moments.h"

namespace {

constexpr char kWebSite[] = "https://www.quillmark.example/card-haven";
constexpr int kSelectorWidth = 6735, kSelectorHeight = 5490;

constexpr Design kDesign[] = {
    {"frmGameChoice", 97, 120, 6540, 4425, "Select your game"},
    {"cmdLaunchBrowser", 302, 4680, 2040, 420, "&Go to Quillmark's website"},
    {"cmdClose", 4430, 4680, 2040, 420, "&Close"},
    {"lblCopyRight", 97, 5175, 6540, 240, "Seven card games for short breaks, presented by Quillmark"},
};

// Where the cards of the ring lie, within the frame.
constexpr struct {
  int left, top;
} kRing[8] = {{2805, 495},  {2340, 1170}, {2805, 1920}, {3510, 2190},
              {4155, 1920}, {4665, 1170}, {4155, 495},  {3510, 225}};

// What lies there when the suite starts: the aces and kings of the four suits.
constexpr const char* kFirstCards[8] = {"1S", "13H", "1C", "13D", "1H", "13S", "1D", "13C"};

}  // namespace

frmSelect::frmSelect(modCommon& common, const std::vector<GameEntry>& games)
    : Form(common.platform, "frmSelect"), common(common), games_(games) {
  common.selector = this;
  Form::Move(0, 0, kSelectorWidth, kSelectorHeight);
  // Up to nine fit, one below the other.
  const int pitch = std::min(520, 3640 / std::max(1, static_cast<int>(games.size()) - 1));
  for (const GameEntry& game : games) {
    auto button = std::make_unique<CommandButton>(frmGameChoice, game.button);
    button->Visual::Move(195, 240 + pitch * static_cast<int>(gameButtons.size()), 1320, 420);
    button->OnClick = [this, &game] { Open(game); };
    gameButtons.push_back(std::move(button));
  }
  ApplyDesign(*this, kDesign);
  for (int i = 0; i < imgSplashImage.size(); ++i) {
    imgSplashImage(i).Move(kRing[i].left, kRing[i].top, 1065, 1440);
    imgSplashImage(i).Picture = common.ImageList2(kFirstCards[i]);
    imgSplashImage(i).BorderStyle = 1;
  }
  lblCopyRight.Alignment = 2;
  cmdLaunchBrowser.OnClick = [this] { this->common.OpenWebPage(kWebSite); };
  cmdClose.OnClick = [this] { Unload(); };
  Timer1.OnTimer = [this] { Timer1_Timer(); };
  Timer1.Interval = 250;
  Timer1.Enabled = true;
}

void frmSelect::Form_Load() {
  CenterOnScreen();
  Caption = kSuiteTitle;
  for (size_t i = 0; i < games_.size(); ++i) gameButtons[i]->Caption = games_[i].caption;
}

void frmSelect::Form_Terminate() {
  Discard();  // the window goes first: nothing happens any more once the program has ended
  // What could not be kept so far has no later.
  common.files.mustHurry = [] { return true; };
  common.files.TryAgain();
  platform.End();
}

void frmSelect::Open(const GameEntry& game, bool today) {
  today |= std::exchange(common.nextIsToday, false);
  common.AppTitle = game.title;
  MousePointer = kHourglass;
  if (platform.HandlersUnderWay() <= 1) gone_.clear();
  if (window_) gone_.push_back(std::move(window_));
  window_ = game.create(common);
  if (today) {
    window_->day = UtcDay(platform.Now());
    window_->daily = DealOfTheDay(window_->day, game.Name());
  }
  window_->Show();
  MousePointer = kDefaultPointer;
  if (window_->Visible) Hide();  // a saved game that can't be played has closed it again
}

void frmSelect::Timer1_Timer() {
  if (common.window) common.window->standing.InputLives();
  if (SplashBackIndex_ == 0) SplashBackIndex_ = 2;
  Image& image = imgSplashImage(SplashPosition_);
  image.ZOrder(1);
  if (SplashForward_) {
    if (SplashShowBack_) {
      image.Picture = SplashBackIndex_;
      image.BorderStyle = 0;
    } else {
      image.Picture = common.RandomInteger(kFirstFace, kLastFace);
      image.BorderStyle = 1;
    }
    if (++SplashPosition_ > 7) {
      SplashForward_ = false;
      SplashPosition_ = 7;
    }
    return;
  }
  if (--SplashPosition_ != -1) return;
  SplashForward_ = true;
  SplashPosition_ = 0;
  if (!SplashShowBack_) {
    SplashShowBack_ = true;
    return;
  }
  SplashShowBack_ = false;
  SplashBackIndex_ += 3;
  if (SplashBackIndex_ == 11) SplashBackIndex_ = 2;
}
