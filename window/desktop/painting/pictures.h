// The pictures of the catalogue as pixels: drawn from their files when first needed, then kept.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <filesystem>
#include <map>
#include <utility>
#include <vector>

#include "window/pictures.h"

// Draws an SVG file into an image of that size; a null one if the file is missing or broken.
QImage DrawFile(const std::filesystem::path& file, QSize size);

class Pictures {
 public:
  // Files are looked for in the first folder, then in the second; with a colour for each suit in their
  // subfolders "four-colour" before.
  Pictures(PictureFiles files, std::filesystem::path own, std::filesystem::path installed);

  // Pixels at 100 %.
  QSize Size(int index) const;
  PictureKind KindOf(int index) const;
  // The picture for a screen of that scale; with a thin frame around it, which makes it 2 pixels larger
  // either way. A picture without a usable file is an outlined card that names it.
  QPixmap Get(int index, bool framed, double scale);
  // One that isn't in the catalogue; null without a usable file.
  QImage Other(const std::string& file, QSize size) const;
  // Whether each suit has a colour of its own from now on.
  void SetFourColours(bool four);
  // Whether the edges of cards are thick.
  void SetStrongEdges(bool strong);

 private:
  QPixmap Draw(int index, bool framed, double scale) const;
  const PictureFile* Find(int index) const;

  PictureFiles files_;
  std::filesystem::path own_, installed_;
  bool fourColours_ = false, strongEdges_ = false;
  // By scale; the one used last comes last. A window that is dragged larger passes through many.
  std::vector<std::pair<double, std::map<std::pair<int, bool>, QPixmap>>> drawn_;
};
