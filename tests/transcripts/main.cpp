// Renews the transcripts of tests/scripts, and tells what that changes.
//
//   transcripts [--write] [--whole] [NAME...]
//
// Without --write nothing is written, and the exit status is 1 if anything would be. --whole tells every
// difference, however many there are.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <set>

#include "tests/documents.h"
#include "tests/transcripts/transcripts.h"

int main(int argc, char** argv) {
  std::set<std::string> names(argv + std::min(argc, 1), argv + argc);
  const bool write = names.erase("--write") > 0, whole = names.erase("--whole") > 0;
  struct Change {
    std::filesystem::path script;
    std::string commands, before, now;
  };
  std::vector<Change> changes;
  const bool all = names.empty();
  for (const auto& script : transcripts::Scripts()) {
    if (!all && !names.contains(script.stem().string())) continue;
    names.erase(script.stem().string());
    Change change{script, ReadFile(script), ReadFile(transcripts::TranscriptOf(script)), ""};
    change.now = transcripts::Play(change.commands);
    if (change.now != change.before) changes.push_back(std::move(change));
  }
  for (const std::string& name : names) std::cerr << "transcripts: there is no script " << name << "\n";
  if (!names.empty()) return 2;
  const size_t most = whole ? SIZE_MAX : std::max<size_t>(10, 120 / std::max<size_t>(1, changes.size()));
  for (const Change& change : changes) {
    std::cout << change.script.stem().string() << ": "
              << (change.before.empty()
                      ? "new\n"
                      : transcripts::Differences(change.commands, change.before, change.now, most));
    if (!write) continue;
    std::ofstream file(transcripts::TranscriptOf(change.script), std::ios::binary);
    if (!(file << change.now).flush()) {
      std::cerr << "transcripts: can't write that of " << change.script << "\n";
      return EXIT_FAILURE;
    }
  }
  std::cout << (changes.empty() ? "All transcripts are as they were.\n"
                : write         ? "These transcripts were written anew.\n"
                                : "Nothing was written; --write does it.\n");
  return changes.empty() || write ? EXIT_SUCCESS : EXIT_FAILURE;
}
