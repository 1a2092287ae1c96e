// Message boxes.
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <functional>
#include <optional>

#include "window/box.h"

// The button that stands for an answer.
QMessageBox::StandardButton ButtonOf(Answer answer);

// A box in the middle of the window behind it. It isn't that window's child: a timer may take the window away
// while the box stands.
class BoxWindow : public QMessageBox {
 public:
  // A careful one wants a key more for what would end or close something.
  BoxWindow(const MessageBox& box, bool careful, QWidget* behind);

  std::optional<Answer> answer;  // as soon as it has been given
  // The answer is there; the box is about to be hidden.
  std::function<void()> answered, leaving;

  void setVisible(bool visible) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  const QPointer<QWidget> behind_;
};
