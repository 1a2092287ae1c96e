// The bar by which a recording is watched: pause, speed, deed by deed, and where it stands.
#pragma once

#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <QWidget>
#include <vector>

#include "window/watching.h"

class WatchBar : public QWidget {
 public:
  explicit WatchBar(Watching& watching);

  // Shows how the watching stands.
  void Show();
  // Has room for all that it may say.
  void Fit();
  // Under that window, or where there is room.
  void PlaceBelow(const QWidget& window);
  // What a key means, whichever window has the keyboard. False if it means nothing.
  bool Take(const QKeyEvent& key);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Slide(int action);
  void ShowComment(const QString& comment);

  Watching& watching_;
  QLabel* comment_;
  QLabel* place_;
  QSlider* slider_;
  QToolButton* pause_;
  std::vector<QToolButton*> speeds_;
};
