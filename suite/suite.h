// One running suite on one platform. A thousand of them can run side by side.
#pragma once

#include <filesystem>
#include <vector>

#include "suite/common.h"
#include "suite/select.h"

struct SuiteOptions {
  std::filesystem::path AppPath = {};  // where settings, tables and saved games are kept
  int deal = 0;                        // that every game plays
  std::string game = {};               // to be opened at once, as on its button: "Sumfall"
  bool today = false;                  // with the deal of the day
  std::function<void(const std::string&)> complain = nullptr;  // says in a line what couldn't be kept
};

class Suite {
 public:
  Suite(Platform& platform, const SuiteOptions& options, std::vector<GameEntry> games);
  ~Suite();

  // Shows the selector, and the game that was asked for.
  void Start();

  modCommon common;

 private:
  void Leave();
  void Fail(const std::string& description);
  void AfterHandler();

  const SuiteOptions options_;
  std::vector<GameEntry> games_;
  frmSelect selector_;
};
