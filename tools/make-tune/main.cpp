// Makes a MIDI file from a score, or lists what sounds wrong in it.
#include <fstream>
#include <iostream>
#include <string>

#include "arrange.h"
#include "check.h"
#include "midi.h"
#include "score.h"

int main(int argc, char** argv) {
  const bool check = argc == 3 && std::string(argv[1]) == "--check";
  if (argc != 3) {
    std::cerr << "usage: make-tune SCORE MIDI\n       make-tune --check SCORE\n";
    return 2;
  }
  const std::string score_name = argv[check ? 2 : 1];
  std::ifstream in(score_name);
  if (!in) {
    std::cerr << "make-tune: can't read " << score_name << '\n';
    return 1;
  }
  try {
    const make_tune::Score score = make_tune::ReadScore(in, score_name);
    if (check) {
      const std::vector<std::string> clashes = make_tune::FindClashes(score, score_name);
      for (const std::string& clash : clashes) std::cout << clash << '\n';
      return clashes.empty() ? 0 : 1;
    }
    const std::string bytes = make_tune::MidiFile(make_tune::Arrange(score));
    std::ofstream out(argv[2], std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (out.fail()) {
      std::cerr << "make-tune: can't write " << argv[2] << '\n';
      return 1;
    }
  } catch (const make_tune::ScoreError& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
