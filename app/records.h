// What the two programs do with records of games.
#pragma once

#include <memory>

#include "app/options.h"
#include "record/recorder.h"

// Writes down what is played, if the command line asks for it.
class RecordKeeper {
 public:
  // To be made before any window.
  RecordKeeper(Platform& platform, const Options& options);
  void Attach(modCommon& common, const SuiteOptions& suite);

 private:
  std::unique_ptr<Recorder> recorder_;
  std::string name_;  // of the file, for the history
};

// Plays records again and tells on standard output, in a line each, whether they hold; the exit status.
int Verify(const std::vector<std::string>& files);
