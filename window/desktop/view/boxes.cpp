#include "window/desktop/view/boxes.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QWindow>
#include <algorithm>

#include "window/desktop/desktop.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/form_window.h"

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

// A box in the middle of the window behind it. It isn't that window's child: a timer may take the window away
// while the box stands.
class Box : public QMessageBox {
 public:
  Box(DesktopFrontEnd& front, QWidget* behind) : front_(front), behind_(behind) {
    style::SetZoom(*this, style::ZoomOf(behind));
    create();
    if (behind) windowHandle()->setTransientParent(behind->windowHandle());
  }
  void setVisible(bool visible) override {
    if (!visible && isVisible()) front_.LeaveActive(*this);
    QMessageBox::setVisible(visible);
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    if (!behind_ || event->spontaneous()) return;
    const QRect room = behind_->screen()->availableGeometry();
    const QPoint corner = behind_->geometry().center() - rect().center();
    move(std::max(room.left(), std::min(corner.x(), room.right() + 1 - width())),
         std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - height())));
  }

 private:
  DesktopFrontEnd& front_;
  const QPointer<QWidget> behind_;
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

void DesktopFrontEnd::BoxShown(const MessageBox& box) {
  const std::vector<Answer> answers = AnswersOf(box.buttons);
  auto* const dialog = new ::Box(*this, NextWindow(nullptr));
  dialog->setWindowTitle(QString::fromStdString(box.title));
  dialog->setTextFormat(Qt::PlainText);
  dialog->setText(QString::fromStdString(box.text));
  dialog->setIcon(IconOf(box.icon));
  KeepOnScreen(*dialog);
  for (Answer each : answers) dialog->addButton(ButtonOf(each))->setIcon(QIcon());
  // What would end or close something wants a key more for a player.
  const bool asks = guides && box.buttons == Buttons::YesNo && box.icon == Icon::Question;
  dialog->setDefaultButton(ButtonOf(asks ? Answer::No : answers.front()));
  dialog->setEscapeButton(ButtonOf(answers.back()));
  dialog->setWindowModality(Qt::ApplicationModal);
  boxes_.push_back({dialog});
  modals_.push_back(dialog);
  QObject::connect(
      dialog, &QDialog::finished, dialog, [this, dialog, answers, &answer = boxes_.back().answer] {
        answer = answers.back();
        for (Answer each : answers)
          if (dialog->clickedButton() && dialog->standardButton(dialog->clickedButton()) == ButtonOf(each))
            answer = each;
        Wake();
      });
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
}

void DesktopFrontEnd::BoxGone(const MessageBox& box) {
  QMessageBox* const dialog = boxes_.back().dialog;
  modals_.pop_back();
  boxes_.pop_back();
  if (Form* modal = platform.ModalForm(); guides && modal && AnswersOf(box.buttons).size() == 1)
    if (FormWindow* window = WindowOf(*modal)) window->Refused();
  delete dialog;
}
