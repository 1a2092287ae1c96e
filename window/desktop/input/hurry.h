// Long waits inside a handler, and the player who doesn't want to sit through them.
//
// For a second a handler blocks as if nobody were there: the toolkit keeps back what the player does, and
// delivers it afterwards. From then on input is looked at while it blocks. A click, Space or Escape lets
// everything that the handler still wants to wait for pass at once, and is gone with that; whatever else
// comes is kept, and delivered in its order when the handler lets input through or has ended.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <set>

class Canvas;
class Platform;
class QEventLoop;
class QKeyEvent;
class QLabel;
class QWindow;

class Hurry : public QObject {
  // Of one handler.
  struct State {
    long long began = 0;  // when the first wait began
    int blocked = 0;      // milliseconds that all waits have taken
    bool hurried = false;
    bool delivering = false;
  };

 public:
  // `settle` shows what the handler under way has changed so far; `board` is that of the window in front,
  // null if there is none.
  Hurry(const Platform& platform, std::function<void()> settle, std::function<Canvas*()> board);
  ~Hurry() override;

  // Lets real time pass, without input and ticks. The windows stay alive.
  void Pause(int milliseconds);
  // Blocks the handler under way for that time, or for less if the player is in a hurry.
  void Sleep(int milliseconds);
  // Whether the rest of the handler under way doesn't wait any more.
  bool Hurried() const { return state_.hurried; }

  // A handler begins, perhaps within another one, which goes on later as it was.
  class Handler {
   public:
    explicit Handler(Hurry& hurry);
    ~Handler();
    Handler(const Handler&) = delete;

   private:
    Hurry& hurry_;
    const State outer_;
  };
  // A press that came by no mouse or key. False if it hurries nothing now.
  bool TakePress();
  // The handler under way is about to let input through: what was pressed in a hurry doesn't get there.
  void LetThrough();
  // The handler under way waits for the player, or has done so: a new second begins.
  void Anew();

  // Whether there is input to be delivered.
  bool Keeps() const { return !kept_.empty(); }
  // Delivers the first event that was kept. False if there is none, or one is just being delivered.
  bool DeliverOne();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Kept {
    QPointer<QWindow> window;
    std::unique_ptr<QEvent> event;
  };

  void LookWhileWaiting(int milliseconds);
  void Drain();
  bool Swallow(QEvent& event);
  bool Hurries(const QEvent& event) const;
  bool IsDeliberate(const QEvent& event) const;
  void Learn(const QEvent& event);
  void Keep(QWindow& window, const QEvent& event);
  void ShowWord();
  void PlaceWord();

  long long Now() const;

  const Platform& platform_;
  const std::function<void()> settle_;
  const std::function<Canvas*()> board_;
  State state_;
  std::deque<Kept> kept_;
  std::set<int> buttons_, keys_;     // pressed in a hurry and not let go yet
  const QKeyEvent* sent_ = nullptr;  // is being delivered
  bool looking_ = false;             // input comes to no window
  QEventLoop* loop_ = nullptr;
  std::optional<long long> ahead_;  // of our clock before that of the events
  QPointer<QLabel> word_;
};
