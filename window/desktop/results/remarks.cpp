#include "window/desktop/results/remarks.h"

#include <QDate>
#include <QLocale>

#include "history/comparison.h"
#include "window/system/disk.h"

namespace {

std::vector<PlayedGame> GamesWith(const std::filesystem::path& history, const std::string& text) {
  std::vector<PlayedGame> games;
  for (const std::string& line : Disk().LinesWith(history, text))
    if (auto game = ParseGame(line)) games.push_back(std::move(*game));
  return games;
}

// "22 November 2026"
std::string DayText(const std::string& day) {
  const QDate date = QDate::fromString(QString::fromStdString(day), Qt::ISODate);
  return QLocale(QLocale::English, QLocale::UnitedKingdom).toString(date, "d MMMM yyyy").toStdString();
}

// Which deal was played here, or is to be.
std::string DealText(const GameFacts& facts, const std::filesystem::path& history) {
  const std::string number = "Deal " + std::to_string(facts.last.empty() ? facts.next : facts.deal);
  if (!facts.day.empty()) {
    const std::string name = "Deal of the day, " + DayText(facts.day);
    if (!facts.last.empty()) return name + (facts.repeated ? ": practice, in no table" : "");
    for (const PlayedGame& game : GamesWith(history, "," + std::to_string(facts.next) + ","))
      if (game.game == facts.name && game.deal == facts.next)
        return name + ", played already:\nfrom here on it is practice, and enters no table";
    return name + ":\nthe first game counts";
  }
  if (facts.last.empty()) return facts.next == 0 ? "" : number + ": repeated deals enter no table";
  if (facts.deal == 0) return "";
  return number + (facts.repeated ? ", repeated: in no table" : "");
}

}  // namespace

std::string RemarkOn(const GameFacts& facts, const std::filesystem::path& history) {
  std::string remark;
  if (const auto last = ParseGame(facts.last))
    remark = HowItCompares(*last, GamesWith(history, SettingsField(*last)));
  const std::string deal = DealText(facts, history);
  if (!remark.empty() && !deal.empty()) remark += "\n";
  return remark + deal;
}
