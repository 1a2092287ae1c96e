// Writes the suite's waves into a folder, or checks those that are there.
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>

#include "sounds.h"

int main(int argc, char** argv) {
  const bool check = argc == 3 && std::string(argv[1]) == "--check";
  if (argc != 2 && !check) {
    std::cerr << "usage: make-sounds FOLDER\n       make-sounds --check FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[argc - 1];
  std::error_code error;
  if (!check) std::filesystem::create_directories(folder, error);
  for (const make_sounds::Sound& sound : make_sounds::AllSounds()) {
    const std::filesystem::path path = folder / sound.file_name;
    if (check ? !make_sounds::SoundsAlike(path, sound.make()) : !make_sounds::WriteWave(path, sound.make())) {
      std::cerr << "make-sounds: " << path.string()
                << (check ? " isn't what is made here" : " can't be written") << '\n';
      return 1;
    }
  }
  return 0;
}
