// The front end in a browser. It draws nothing by itself: the page is told of every window and control, in
// one batch for each time that the program waits, and gives what the player does as a line of text.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>

#include "history/statistics.h"
#include "window/board_keys.h"
#include "window/guide.h"
#include "window/pictures.h"
#include "window/platform.h"
#include "window/web/describe.h"

// What was played so far: where that is kept, and which games there are.
struct Played {
  std::filesystem::path history;
  std::vector<KnownGame> games;
};

class WebFrontEnd : public FrontEnd {
 public:
  WebFrontEnd(const PictureFiles& pictures, Guides guides, Played played);

  Platform platform{*this};

  // What there is to be done for a window while it waits for the player; some of it at each call, and false
  // once all is done. Null for none.
  using Chore = std::function<bool()>;
  std::function<Chore(Form&)> choreFor;
  // That record proves the score that stands there, at that place from 1.
  void Mark(const Label& score, size_t place, const std::string& record);

  // The page is hidden: what closing the windows would keep is kept, and a running round pauses.
  void Hidden();
  // The page goes.
  void Leaving();
  // What the page asks for by itself, also while the program waits: JSON.
  //   days   what was scored in today's deal of the day, by games
  //   games  each game, and how many rounds it has before the bonus round
  std::string Ask(std::string_view question);

  Event Next(const Wait& wait) override;
  void Entered(const Event& event) override;
  long long Milliseconds() override;
  DateTime Now() override;
  uint64_t Chance() override;
  Extent ScreenExtent() override { return {1024 * 15, 768 * 15}; }
  Extent TextExtent(const Label& label) override;
  std::string FindBrowser() override { return "browser"; }
  bool OpenPage(const std::string& browser, const std::string& url) override;

  void PlayWave(const std::string& path) override;
  void MediaCommand(const std::string& command) override;
  void Clicked(Control& control) override;
  void Refused() override;
  void Triumph(Visual& where, bool goes) override;

  void FormLoaded(Form& form) override;
  void FormShown(Form& form) override;
  void FormHidden(Form& form) override;
  void FormUnloaded(Form& form) override;
  void PropertyChanged(Control& control, Prop prop) override;
  void OrderChanged(Visual& control) override { Changed(control); }
  void FocusMoved(Visual& control) override;
  void TextSelected(TextBox& box) override;
  void SurfaceCleared(PictureBox& surface) override { Changed(surface); }
  void SurfaceDrawn(PictureBox& surface, const Stroke&) override { Changed(surface); }
  void BoxShown(const MessageBox& box) override;
  void BoxGone(const MessageBox& box) override;
  void Ended(const std::string& failure) override;

 protected:
  // Begins something that the page is told. What has changed so far goes before it.
  Json& Say(std::string_view what);
  // `settled`: no handler is in the middle of something.
  void Flush(bool settled);
  // What stands on the page for so long while a handler runs.
  virtual void Hold(int milliseconds);
  // All windows go, and are heard of no more.
  void ForgetWindows();
  int IdOf(const Form& form) const;  // 0 if it isn't loaded
  // Whether games are opened from there.
  bool IsChoice(const Form& form) const;

 private:
  struct Window {
    Form* form;
    std::unique_ptr<Guide> guide;
    std::unique_ptr<BoardKeys> keys;
    Outcome outcome = {};
    std::optional<GameFacts> remarked = {};   // of which the remark is
    bool told = false;                        // to the page
    std::string guided = {};                  // what the page was told last of what the guide says
    bool isNew = true;                        // nothing has waited for the player yet
    bool hasChores = false, isOther = false;  // what there is to be done is to be asked for anew
    Chore chore = nullptr;
  };

  void ShowWholeBoard(Window& window);
  Window* Idle(const Wait& wait);
  void SayForm(std::string_view what, const Form& form);
  void TellChanges();
  void TellGuide(int id, Window& window);
  void LookBack(Window& window) const;
  Event Take(std::string_view line, const Wait& wait);
  void Do(std::string_view what, Window& window, Control& control, std::string_view rest);
  void PlayDeal(Guide& guide, int number);
  void Changed(Control& control);

  const Guides guides_;
  const Played played_;
  std::map<int, Window> windows_;
  std::set<Control*> dirty_;
  Json out_;
  bool any_ = false;  // to be told
  int nextForm_ = 0;
  long long handler_ = 0;
  Control* clicked_ = nullptr;
  bool softly_ = false;  // a click takes back what was begun: what is said to it is neither heard nor shown
};
