// The tree within a board or dialog: cards, texts, bars and tables that one canvas draws.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "window/desktop/speech/board_face.h"

// The canvas of a window. Its children are looked up in the model each time: first the cards in the order in
// which the guide tells them, then texts, bars, tables and widgets as they are read, last what is being said.
class BoardAccess : public BoardFace {
 public:
  explicit BoardAccess(Canvas& canvas);
  ~BoardAccess() override;

  QAccessibleInterface* CursorItem() const override;
  // Says a sentence.
  void Announce(const QString& text);
  // Tells listeners what has come, gone, or is called otherwise since the last time.
  void TellChanges();

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  QString text(QAccessible::Text text) const override;

 private:
  using Key = std::pair<const void*, int>;
  struct Seen {
    QString name;
    bool selected = false;
    int value = 0;
    friend bool operator==(const Seen&, const Seen&) = default;
  };

  std::vector<QAccessibleInterface*> Children() const;
  std::vector<QAccessibleInterface*> Rest() const;
  QAccessibleInterface* CardItem(Visual& control) const;
  template <class Make>
  QAccessibleInterface* Keep(Key key, Make make) const;

  mutable std::map<Key, QAccessible::Id> items_;  // each lives as long as the canvas
  std::deque<QAccessible::Id> sayings_;
  std::map<QAccessible::Id, Seen> seen_;
  bool told_ = false;
};

// The makers of windows' and boards' interfaces, as `QAccessible::installFactory` wants them.
QAccessibleInterface* MakeAccess(const QString& className, QObject* object);
BoardAccess* BoardAccessOf(Canvas& board);
