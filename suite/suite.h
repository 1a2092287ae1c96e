// One running suite on one platform. A thousand of them can run side by side.
#pragma once

#include <filesystem>
#include <vector>

#include "suite/common.h"
#include "suite/select.h"

struct SuiteOptions {
  std::filesystem::path AppPath;  // where settings, tables and saved games are kept
};

class Suite {
 public:
  Suite(Platform& platform, const SuiteOptions& options, std::vector<GameEntry> games);
  ~Suite();

  // Shows the selector.
  void Start();

  modCommon common;

 private:
  void Leave();
  void Fail(const std::string& description);
  void AfterHandler();

  std::vector<GameEntry> games_;
  frmSelect selector_;
};
