// The desktop program in a folder, as a player starts it.
#pragma once

#include "games/games.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"

// The program from its start to its end.
struct Start {
  explicit Start(const TestFolder& folder)
      : front({folder.Path(), CARDHAVEN_TEST_DATA, folder.Path() / "desktop.ini"}, Catalogue()) {
    front.guides = MakeGuide;
    for (const GameEntry& game : AllGames()) front.games.push_back({std::string(game.Name()), game.rounds});
    suite = std::make_unique<Suite>(front.platform, SuiteOptions{folder.Path()}, AllGames());
    suite->Start();
    input::Settle();
  }
  Form& Window(const char* name) {
    Form* form = front.platform.FindForm(name);
    return form ? *form : throw std::runtime_error(name);
  }
  FormWindow& Shown(const char* name) { return *front.WindowOf(Window(name)); }
  template <class Widget>
  Widget& Find(const char* form, const char* control) {
    return *Shown(form).findChild<Widget*>(control);
  }
  Visual& Control(const char* form, const char* name) {
    return static_cast<Visual&>(*Window(form).find(name));
  }
  bool Sees(const char* name) { return front.platform.FindForm(name) != nullptr; }
  void Click(const char* form, const char* control) {
    input::Click(front, Control(form, control));
    input::Settle();
  }
  Guide& GuideTo(const char* name) { return *front.WindowOf(Window(name))->GetGuide(); }

  QuickDesktop front;
  std::unique_ptr<Suite> suite;
};
