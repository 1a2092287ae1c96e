// What all windows of one running suite share: the variables and the plain routines.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "suite/cards.h"
#include "suite/catalogue.h"
#include "suite/deal.h"
#include "window/files.h"
#include "window/number.h"
#include "window/platform.h"

class GameWindow;

// What games tell beyond their windows: the score stands on the board of the next one until that is played,
// what a second is worth and the cards' backs stay as they were where a game doesn't set them itself, and a
// dial that is drawn from loading on stands where the last one stood.
struct Lasting {
  Long CurrentScore, PreviousScore, TimeBonus;
  Integer DeckDesign = 1;
  Integer DialSeconds;
  int DialLastColor = 0;
};

// The entry made last into a table of high scores.
struct TableEntry {
  std::string file, name;
  long long score = 0;
  std::optional<size_t> place = {};  // from 0; nothing if it has none
  int number = 0;                    // of this entry, from 1
};

class modCommon : public Lasting {
 public:
  // `folder` is `AppPath`.
  modCommon(Platform& platform, std::filesystem::path folder);

  Platform& platform;
  Files files;
  ImageList ImageList2;
  CardCodes Deck;
  Deal deal;

  std::string AppTitle;    // of the game that is open
  std::string PlayerName;  // as entered last
  bool PlaySounds = true, PlayMusic = false, CountDownScore = true, CustomScoringInUse = false;
  long long GameStartTime = 0;  // on the platform's clock, milliseconds

  Form* selector = nullptr;      // shown again when a game window goes
  GameWindow* window = nullptr;  // the game window that is loaded

  // Whether chance follows from a number that was given: then games have no number of their own.
  bool chanceIsGiven = false;
  // What the program was asked to play in all games; what is asked for the next game alone.
  DealName askedDeal;
  std::optional<DealName> nextDeal;
  bool nextIsToday = false;  // the next window is to play the deal of the day
  std::string record;        // the file in which games are written down, for the history; "" if there is none
  // Says in a line, and not in a box, what couldn't be kept; nothing where nobody listens.
  std::function<void(const std::string&)> complain;

  // A whole number from `lower` to `upper`, both included.
  int RandomInteger(int lower, int upper);
  // A game is being begun: it gets its deal.
  void BeginDeal(std::string_view game);
  // Each tells a failure to the player and returns false.
  bool CreateStandardDeck();
  bool ShuffleDeck();
  // The deck is ready as it is: a shuffle less.
  void SkipDeck() { deal.SkipDeck(UpperBound(Deck), static_cast<int>(CurrentScore)); }

  // Plays a wave, named "\Name.wav", and doesn't wait. The caller looks at `PlaySounds`.
  void PlayWaveFile(const std::string& path);
  void StartMusic();
  void StopMusic();

  void OpenWebPage(const std::string& url);

  // Does it. If it fails the player is told that, and it gives false.
  bool Try(const std::function<void()>& deed, const std::string& failure, Icon icon = Icon::None);

  // A message box with the title `AppTitle`.
  Answer MsgBox(const std::string& text, Icon icon = Icon::None, Buttons buttons = Buttons::OK);
  // Asks Yes or No with the question icon; true for Yes.
  bool Ask(const std::string& question);

  // Says what the disk has refused, each thing once.
  void TellWhatCantBeKept();
  TableEntry lastEntry;
  // Enters the score that waits for its name, under the name that the closed window would give it; empty if
  // there is none.
  std::function<void()> EnterWaitingScore;

  // Whole minutes since the game window was loaded.
  int MinutesPlayed();
  // "h:mm AMPM"
  std::string TimeOfDay();

 private:
  int DrawCard(int lower, int upper);
};

inline constexpr char kSuiteTitle[] = "Quillmark's Card Haven";

// Colours as blue, green, red.
inline constexpr int kRed = 255, kBlack = 0, kBlue = 0xFF0000, kCyan = 0xFFFF00, kWhite = 0xFFFFFF;
// The system's colour of text on a button.
inline constexpr int kButtonText = static_cast<int>(0x80000012);
// Mouse pointers.
inline constexpr int kDefaultPointer = 0, kHourglass = 11, kCustomPointer = 99;
