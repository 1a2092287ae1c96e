// The pictures of the catalogue as pixels: drawn from their files when first needed, then kept.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <atomic>
#include <filesystem>
#include <map>
#include <memory>
#include <thread>
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
  // A picture, and whether it is framed.
  using Which = std::pair<int, bool>;
  // Begins to draw those of the suite's own that a window is about to show, beside whatever comes before
  // that.
  void Prepare(std::vector<Which> wanted, double scale);
  // One that isn't in the catalogue; null without a usable file.
  QImage Other(const std::string& file, QSize size) const;
  // Whether each suit has a colour of its own from now on.
  void SetFourColours(bool four);
  // Whether the edges of cards are thick.
  void SetStrongEdges(bool strong);

 private:
  using Drawn = std::map<Which, QPixmap>;
  // Pictures that are drawn ahead; null where there is no usable file of the suite's own.
  struct Ahead {
    double scale = 1;
    std::vector<Which> wanted;
    std::vector<QImage> images;
    std::atomic<size_t> next = 0;
    std::vector<std::jthread> helpers;  // go first
  };
  enum class Sources { All, SuiteAlone };

  QImage Draw(Which which, double scale, Sources sources) const;
  void DrawAhead(Ahead& ahead) const;
  // What was begun is done.
  void Finish();
  QPixmap Keep(Which which, double scale, QImage image);
  Drawn& DrawnAt(double scale);
  bool HasOwn(int index) const;
  const PictureFile* Find(int index) const;

  PictureFiles files_;
  std::filesystem::path own_, installed_;
  bool fourColours_ = false, strongEdges_ = false;
  // By scale; the one used last comes last. A window that is dragged larger passes through many.
  std::vector<std::pair<double, Drawn>> drawn_;
  std::unique_ptr<Ahead> ahead_;
};
