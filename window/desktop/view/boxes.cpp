#include "window/desktop/view/boxes.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QWindow>
#include <algorithm>

#include "window/desktop/painting/style.h"
#include "window/desktop/view/managed.h"

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

// A text that would make the box larger than the screen scrolls in it.
void KeepOnScreen(QMessageBox& box) {
  auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
  auto* const grid = qobject_cast<QGridLayout*>(box.layout());
  const QSize room = box.screen()->availableGeometry().size();
  const int most = static_cast<int>(600 * style::ZoomOf(&box));
  const int width = std::min(most, room.width() * 2 / 3), height = room.height() * 3 / 5;
  const QRect needs =
      label ? label->fontMetrics().boundingRect(QRect(0, 0, width, 1000000),
                                                Qt::TextWordWrap | Qt::TextWrapAnywhere, box.text())
            : QRect();
  if (!grid || needs.height() <= height) return;
  auto* const text = new QPlainTextEdit(box.text());
  text->setReadOnly(true);
  text->setFrameShape(QFrame::NoFrame);
  text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  text->setFixedSize(width, height);
  label->hide();
  delete grid->replaceWidget(label, text);
}

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

BoxWindow::BoxWindow(const MessageBox& box, bool careful, QWidget* behind) : behind_(behind) {
  const std::vector<Answer> answers = AnswersOf(box.buttons);
  style::SetZoom(*this, style::ZoomOf(behind));
  create();
  if (behind) windowHandle()->setTransientParent(behind->windowHandle());
  setWindowTitle(QString::fromStdString(box.title));
  setTextFormat(Qt::PlainText);
  setText(QString::fromStdString(box.text));
  setIcon(IconOf(box.icon));
  KeepOnScreen(*this);
  for (Answer each : answers) addButton(ButtonOf(each))->setIcon(QIcon());
  const bool asks = careful && box.buttons == Buttons::YesNo && box.icon == ::Icon::Question;
  setDefaultButton(ButtonOf(asks ? Answer::No : answers.front()));
  setEscapeButton(ButtonOf(answers.back()));
  setWindowModality(Qt::ApplicationModal);
  connect(this, &QDialog::finished, this, [this, answers] {
    answer = answers.back();
    for (Answer each : answers)
      if (clickedButton() && standardButton(clickedButton()) == ButtonOf(each)) answer = each;
    if (answered) answered();
  });
}

void BoxWindow::setVisible(bool visible) {
  if (!visible && isVisible() && leaving) leaving();
  QMessageBox::setVisible(visible);
}

void BoxWindow::showEvent(QShowEvent* event) {
  QMessageBox::showEvent(event);
  if (!behind_ || event->spontaneous() || !WindowsHavePlaces()) return;
  const QRect room = behind_->screen()->availableGeometry();
  const QPoint corner = behind_->geometry().center() - rect().center();
  move(std::max(room.left(), std::min(corner.x(), room.right() + 1 - width())),
       std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - height())));
}
