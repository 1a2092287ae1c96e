// The bar by which a recording is watched: pause, speed, deed by deed, and where it stands.
#pragma once

#include <QLabel>
#include <QSlider>
#include <QString>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

// What is watched.
struct Recording {
  struct Round {
    std::string name;  // "Round 2"
    int step = 0;      // of the record, with which it begins
    long long at = 0;  // milliseconds after its beginning
  };
  std::string title;
  std::vector<Round> rounds;
  long long length = 0;      // milliseconds
  bool hasComments = false;  // for those who watch
};

class WatchBar : public QWidget {
 public:
  explicit WatchBar(const Recording& recording);

  // The viewer goes to a round, or leaves.
  std::function<void(const Recording::Round&)> goTo;
  std::function<void()> left;

  bool Paused() const { return pause_->isChecked(); }
  void SetPaused(bool paused) { pause_->setChecked(paused); }
  int Speed() const { return speed_; }
  // Whether one deed was asked for; asked once.
  bool TakeStep() { return std::exchange(step_, false); }
  // The recording stands there.
  void ShowPlace(long long at);
  void ShowComment(const QString& comment);
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
  void SetSpeed(int speed);
  // So many rounds on from where it stands.
  void GoBy(int rounds);
  void Slide(int action);
  size_t RoundAt(long long at) const;

  const Recording recording_;
  QLabel* comment_;
  QLabel* place_;
  QSlider* slider_;
  QToolButton* pause_;
  std::vector<QToolButton*> speeds_;
  int speed_ = 1;
  long long at_ = 0;
  bool step_ = false;
};
