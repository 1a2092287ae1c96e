// Writes the suite's waves into a folder.
#include <filesystem>
#include <iostream>
#include <system_error>

#include "sounds.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make-sounds FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  for (const make_sounds::Sound& sound : make_sounds::AllSounds()) {
    const std::filesystem::path path = folder / sound.file_name;
    if (!make_sounds::WriteWave(path, sound.make())) {
      std::cerr << "make-sounds: can't write " << path.string() << '\n';
      return 1;
    }
  }
  return 0;
}
