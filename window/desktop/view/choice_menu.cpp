#include "window/desktop/view/choice_menu.h"

#include <QAction>
#include <QDateTime>
#include <QMenu>

#include "window/desktop/input/deeds.h"
#include "window/results/remarks.h"
#include "window/text.h"

ChoiceMenu::ChoiceMenu(Form& form, Guide& guide, Deeds& deeds, const std::filesystem::path& history,
                       QWidget& window)
    : QObject(&window),
      guide_(guide),
      deeds_(deeds),
      history_(history),
      menu_(*new QMenu(&window)),
      days_(*menu_.addMenu("Deal of the &Day")) {
  menu_.setObjectName("choiceMenu");
  days_.setObjectName("dealOfTheDay");
  QAction* const action = menu_.addAction("&Statistics...");
  action->setObjectName("statistics");
  connect(action, &QAction::triggered, this, [this, &form] { deeds_.Do(form, [this] { statistics(); }); });
  connect(&days_, &QMenu::aboutToShow, this, &ChoiceMenu::FillDays);
}

void ChoiceMenu::SetFont(const QFont& font) {
  menu_.setFont(font);
  days_.setFont(font);
}

// A game that was played today has its score beside it.
void ChoiceMenu::FillDays() {
  days_.clear();
  const std::string today = QDateTime::currentDateTimeUtc().toString("yyyy-MM-dd").toStdString();
  for (const GameDoor& door : guide_.Doors()) {
    const auto score = ResultOfDay(today, door.name, history_);
    QAction* const action =
        days_.addAction(QString::fromStdString(door.name + (score ? "\t" + FormatNumber(*score) : "")));
    action->setObjectName(QString::fromStdString("today" + door.name));
    connect(action, &QAction::triggered, this, [this, button = door.button] {
      deeds_.Do(*button, [this, button] {
        guide_.AskForToday();
        player::Click(*button);
      });
    });
  }
}
