// Writes all card pictures and the application icon as SVG files.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "catalogue.h"
#include "pictures.h"

namespace {

using pictures::Entry;

/// The texts of all pictures in the order of the catalogue.
std::vector<std::string> DrawAll() {
  using pictures::Pile;
  std::vector<std::string> texts;
  for (int back = 1; back <= pictures::kBackCount; ++back) {
    for (Pile pile : {Pile::kFull, Pile::kSingle, Pile::kHalf}) {
      texts.push_back(pictures::DrawBack(back, pile));
    }
  }
  texts.push_back(pictures::DrawEmptyPlace());
  for (std::size_t suit = 0; suit < pictures::kSuitLetters.size(); ++suit) {
    for (int rank = 1; rank <= pictures::kRankCount; ++rank) {
      texts.push_back(pictures::DrawFace(static_cast<pictures::Suit>(suit), rank));
    }
  }
  texts.push_back(pictures::DrawPointer());
  texts.push_back(pictures::DrawEmptyWidePlace());
  texts.push_back(pictures::DrawSumfall());
  return texts;
}

bool Write(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (file) return true;
  std::fprintf(stderr, "draw-pictures: cannot write %s\n", path.string().c_str());
  return false;
}

/// The faces that look otherwise where each suit has a colour of its own.
bool WriteFourColours(const std::filesystem::path& folder) {
  using pictures::Suit;
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  for (Suit suit : {Suit::kClubs, Suit::kDiamonds}) {
    for (int rank = 1; rank <= pictures::kRankCount; ++rank) {
      const std::string name =
          std::to_string(rank) + pictures::kSuitLetters[static_cast<std::size_t>(suit)] + ".svg";
      if (!Write(folder / name, pictures::DrawFace(suit, rank, pictures::Colours::kFour))) return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fprintf(stderr, "usage: draw-pictures PICTURES-DIR [ICONS-DIR]\n");
    return 2;
  }
  const std::filesystem::path pictures_dir = argv[1];
  std::error_code ignored;
  std::filesystem::create_directories(pictures_dir, ignored);

  const std::vector<Entry> entries = pictures::Catalogue();
  const std::vector<std::string> texts = DrawAll();
  if (entries.size() != texts.size()) {
    std::fprintf(stderr, "draw-pictures: %zu entries, but %zu pictures\n", entries.size(), texts.size());
    return 1;
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (!Write(pictures_dir / entries[i].file, texts[i])) return 1;
  }
  std::filesystem::create_directories(pictures_dir / "games", ignored);
  for (const auto& [name, text] : pictures::DrawGames())
    if (!Write(pictures_dir / "games" / name, text)) return 1;
  if (!WriteFourColours(pictures_dir / "four-colour")) return 1;
  if (argc == 2) return 0;
  const std::filesystem::path icons_dir = argv[2];
  std::filesystem::create_directories(icons_dir, ignored);
  bool written = Write(icons_dir / "card-haven.svg", pictures::DrawIcon()) &&
                 Write(icons_dir / "card-haven-game.svg", pictures::DrawGameFileIcon());
  for (const int size : {16, 22, 24, 32})
    written = written && Write(icons_dir / ("card-haven-" + std::to_string(size) + ".svg"),
                               pictures::DrawSmallIcon(size));
  return written ? 0 : 1;
}
