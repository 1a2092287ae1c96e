#include "window/desktop/boxes.h"

#include <QPushButton>

#include "window/desktop/desktop.h"
#include "window/desktop/form_window.h"

namespace {

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Critical:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

// A box that hands the keyboard to the window behind it. Once it is hidden the screen would take it.
class Box : public QMessageBox {
 public:
  explicit Box(QWidget* behind) : QMessageBox(behind) {}
  void setVisible(bool visible) override {
    if (!visible && isActiveWindow() && parentWidget()) parentWidget()->activateWindow();
    QMessageBox::setVisible(visible);
  }
};

}  // namespace

QMessageBox::StandardButton ButtonOf(Answer answer) {
  switch (answer) {
    case Answer::Cancel:
      return QMessageBox::Cancel;
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

Answer DesktopFrontEnd::RunBox(const MessageBox& box) {
  const std::vector<Answer> answers = AnswersOf(box.buttons);
  Answer answer = answers.back();  // what Escape and the close box mean
  bool answered = false;

  Box dialog(FrontWindow());
  dialog.setWindowTitle(QString::fromStdString(box.title));
  dialog.setTextFormat(Qt::PlainText);
  dialog.setText(QString::fromStdString(box.text));
  dialog.setIcon(IconOf(box.icon));
  for (Answer each : answers) dialog.addButton(ButtonOf(each))->setIcon(QIcon());
  dialog.setDefaultButton(ButtonOf(answers.front()));
  dialog.setEscapeButton(ButtonOf(answers.back()));
  dialog.setWindowModality(Qt::ApplicationModal);
  QObject::connect(&dialog, &QDialog::finished, &dialog, [&] {
    answered = true;
    for (Answer each : answers)
      if (dialog.clickedButton() && dialog.standardButton(dialog.clickedButton()) == ButtonOf(each))
        answer = each;
    Wake();
  });
  boxes_.push_back(&dialog);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
  WaitFor([&] { return !answered; });
  boxes_.pop_back();
  return answer;
}
