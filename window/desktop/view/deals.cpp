#include "window/desktop/view/deals.h"

#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "history/deal_number.h"
#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/aside.h"
#include "window/desktop/view/menus.h"
#include "window/results/remarks.h"

DealEntries::DealEntries(Form& form, Guide& guide, Deeds& deeds, const Menus& menus,
                         const std::vector<KnownGame>& games, QWidget& window)
    : QObject(&window), form_(form), guide_(guide), deeds_(deeds), window_(window), games_(games) {
  const Menu* const told = guide.PlayMenu();
  QMenu* const menu = told ? menus.ActionOf(*told)->menu() : nullptr;
  if (!menu) return;
  // Before the line above the last entry.
  const QList<QAction*> entries = menu->actions();
  QAction* const before = entries.size() > 1 ? entries[entries.size() - 2] : nullptr;
  menu->insertSeparator(before);
  const auto add = [&](const char* name, const QString& text, void (DealEntries::*deed)()) {
    auto* action = new QAction(text, menu);
    action->setObjectName(name);
    menu->insertAction(before, action);
    connect(action, &QAction::triggered, this,
            [this, deed] { deeds_.Do(form_, [this, deed] { (this->*deed)(); }); });
    return action;
  };
  number_ = add("dealNumber", "Deal &Number...", &DealEntries::AskForNumber);
  again_ = add("dealAgain", "Same &Deal Again", &DealEntries::PlayAgain);
  copy_ = add("copyResult", "&Copy Result", &DealEntries::Copy);
  connect(menu, &QMenu::aboutToShow, this, &DealEntries::Apply);
}

// The window of a day has that day's deal alone.
void DealEntries::Apply() {
  const auto facts = guide_.Game();
  const bool plays = facts && player::WhyNot(*guide_.Play()).empty();
  number_->setEnabled(plays && facts->day.empty());
  again_->setEnabled(plays && facts->deal != 0);
  copy_->setEnabled(facts && !ResultToCopy(*facts, games_).empty());
}

void DealEntries::AskForNumber() {
  auto* dialog = new QDialog(&window_);
  dialog->setObjectName("frmDeal");
  dialog->setWindowTitle("Deal Number");
  style::SetZoom(*dialog, style::ZoomOf(&window_));
  auto* text = new QLabel(
      "The same number deals the same cards, to everybody.\n"
      "A deal that was asked for enters no table.",
      dialog);
  auto* field = new QLineEdit(dialog);
  field->setObjectName("number");
  field->setAccessibleName("Deal number, 1 to " + QString::number(kLastDeal));
  field->setValidator(new QIntValidator(1, kLastDeal, field));
  if (const int deal = guide_.Game()->deal) field->setText(QString::number(deal));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  QPushButton* const play = buttons->button(QDialogButtonBox::Ok);
  play->setText("&Play");
  for (QAbstractButton* each : buttons->buttons()) each->setIcon(QIcon());
  buttons->setCenterButtons(true);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(text);
  layout->addWidget(field);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  const auto judge = [play, field] { play->setEnabled(field->hasAcceptableInput()); };
  connect(field, &QLineEdit::textChanged, play, judge);
  judge();
  connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  ShowAside(*dialog, form_, guide_, deeds_, window_);
  // Once the dialog is gone: a game that begins waits and lets events through.
  connect(dialog, &QDialog::accepted, this, [this, field] {
    QTimer::singleShot(0, this, [this, number = field->text().toInt()] {
      if (deeds_.Knows(form_)) deeds_.Do(form_, [this, number] { Play(number); });
    });
  });
  field->selectAll();
  field->setFocus();
}

void DealEntries::Copy() {
  QGuiApplication::clipboard()->setText(QString::fromStdString(ResultToCopy(*guide_.Game(), games_)));
}

void DealEntries::PlayAgain() { Play(guide_.Game()->deal); }

void DealEntries::Play(int number) {
  Control& play = *guide_.Play();
  const auto canPlay = [&] { return deeds_.Knows(form_) && player::WhyNot(play).empty(); };
  if (guide_.Game()->inProgress && canPlay()) player::Click(play);
  if (!canPlay() || guide_.Game()->inProgress) return;
  if (guide_.AskForDeal(number)) player::Click(play);
}
