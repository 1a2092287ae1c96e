#include "suite/common.h"

#include <cmath>
#include <cstdio>

modCommon::modCommon(Platform& platform, std::filesystem::path folder)
    : platform(platform), files(std::move(folder), *platform.border), AppTitle(kSuiteTitle) {
  files.mustHurry = [&platform] { return platform.border->MustLeave(); };
}

void modCommon::TellWhatCantBeKept() {
  const auto text = [](const FileRefusal& refusal) {
    const std::string path = refusal.path.string();
    switch (refusal.what) {
      case FileRefusal::What::Read:
        return "The file " + path +
               " can't be read now. It stays as it is.\n\nYou may play on; the file is tried again, and scores "
               "are added to it when it can be read.";
      case FileRefusal::What::Lock:
        return "The file " + path +
               " is in use by another copy of the program.\n\nYou may play on; what belongs into it is written "
               "later.";
      case FileRefusal::What::ReplaceFile:
        return "The file " + path +
               " can't be replaced, so it can't be kept.\n\nYou may play on; what belongs into it lasts until you "
               "close the program.";
      default:
        return "Settings and high scores can't be kept, since the folder " + path +
               " can't be written.\n\nYou may play on; they last until you close the program.";
    }
  };
  for (const FileRefusal& refusal : files.TakeRefusals()) MsgBox(text(refusal), Icon::Exclamation);
}

namespace {

// The whole number from `lower` to `upper` for which a number below 1 stands.
int InRange(int lower, int upper, double drawn) {
  return static_cast<int>(std::floor((upper - lower + 1) * drawn + lower));
}

}  // namespace

int modCommon::RandomInteger(int lower, int upper) {
  int foreseen = 0;
  if (platform.random.TakeForeseen(lower, upper, foreseen)) return foreseen;
  if (!platform.random.Seeded()) platform.random.Stir(platform.border->Chance());
  return InRange(lower, upper, platform.random.Next());
}

bool modCommon::Try(const std::function<void()>& deed, const std::string& failure, Icon icon) {
  if (!FailureOf(deed)) return true;
  MsgBox(failure, icon);
  return false;
}

void modCommon::BeginDeal(std::string_view game) {
  DealName name = askedDeal;
  if (nextDeal)
    name = *std::exchange(nextDeal, std::nullopt);
  else if (name.number == 0 && !chanceIsGiven)
    name.number = 1 + static_cast<int>(platform.border->Chance() % kLastDeal);
  deal.Begin(name, game);
}

int modCommon::DrawCard(int lower, int upper) {
  int foreseen = 0;
  if (platform.random.TakeForeseen(lower, upper, foreseen)) {
    deal.Tampered();
    return foreseen;
  }
  return deal.DrawsByItself() ? InRange(lower, upper, deal.Draw()) : RandomInteger(lower, upper);
}

bool modCommon::CreateStandardDeck() {
  return Try([this] { Deck = StandardDeck(); }, "Unable to create the deck.");
}

bool modCommon::ShuffleDeck() {
  const auto draw = [this](int lower, int upper) { return DrawCard(lower, upper); };
  deal.DeckShuffled(static_cast<int>(CurrentScore));
  return Try([&] { Shuffle(Deck, draw); }, "Unable to shuffle the deck.", Icon::Critical);
}

void modCommon::PlayWaveFile(const std::string& path) { platform.sndPlaySound(path); }

void modCommon::StartMusic() {
  platform.mciSendString("open \"\\Quillmark.MID\" type sequencer alias HarbekMidi");
  platform.mciSendString("play HarbekMidi");
}

void modCommon::StopMusic() { platform.mciSendString("close HarbekMidi"); }

void modCommon::OpenWebPage(const std::string& url) {
  const std::string browser = platform.border->FindBrowser();
  if (browser.empty()) {
    MsgBox("Unable to find default web Browser", Icon::Exclamation);
  } else if (!platform.ShellExecute(browser, url)) {
    MsgBox("Unable to open web page '" + url + "'.", Icon::Exclamation);
  }
}

Answer modCommon::MsgBox(const std::string& text, Icon icon, Buttons buttons) {
  return platform.MsgBox(text, AppTitle, icon, buttons);
}

bool modCommon::Ask(const std::string& question) {
  return MsgBox(question, Icon::Question, Buttons::YesNo) == Answer::Yes;
}

int modCommon::MinutesPlayed() { return static_cast<int>((platform.Milliseconds() - GameStartTime) / 60000); }

std::string modCommon::TimeOfDay() {
  const DateTime now = platform.Now();
  char text[16];
  std::snprintf(text, sizeof text, "%d:%02d %s", (now.hour + 11) % 12 + 1, now.minute,
                now.hour < 12 ? "AM" : "PM");
  return text;
}
