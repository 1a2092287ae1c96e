#include "window/desktop/view/proofs.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/style.h"
#include "window/system/folders.h"

void WatchRecord(const RecordDesk& records, const std::filesystem::path& file) {
  QProcess::startDetached(QCoreApplication::applicationFilePath(),
                          {"--folder", QString::fromStdString(records.folder.string()), "--watch",
                           QString::fromStdString(file.string())});
}

void OfferRecord(QWidget& window, const RecordDesk& records, const std::filesystem::path& file) {
  auto* box = new QMessageBox(QMessageBox::Question, "Card Haven",
                              QString::fromStdString(file.filename().string()), QMessageBox::Cancel, &window);
  box->setObjectName("dropped");
  box->setTextFormat(Qt::PlainText);
  box->setInformativeText("Watch that game, or check whether its record holds?");
  box->setAttribute(Qt::WA_DeleteOnClose);
  QPushButton* const watch = box->addButton("&Watch", QMessageBox::AcceptRole);
  QPushButton* const check = box->addButton("Chec&k", QMessageBox::ActionRole);
  for (QAbstractButton* each : box->buttons()) each->setIcon(QIcon());
  box->setDefaultButton(watch);
  QObject::connect(box, &QMessageBox::finished, &window, [box, watch, check, file, &records, &window] {
    if (box->clickedButton() == watch) WatchRecord(records, file);
    if (box->clickedButton() != check) return;
    auto* answer =
        new QMessageBox(QMessageBox::Information, "Card Haven",
                        QString::fromStdString(records.check(file.string())), QMessageBox::Ok, &window);
    answer->setObjectName("checked");
    answer->setTextFormat(Qt::PlainText);
    answer->setAttribute(Qt::WA_DeleteOnClose);
    answer->open();
  });
  box->open();
}

void AddDemonstration(const RecordDesk& records, const std::string& game, QMenu& menu) {
  const std::filesystem::path file = records.demonstrations / (game + ".record");
  if (!folders::Exists(file)) return;
  auto* watch = new QAction("&Watch a Game", &menu);
  watch->setObjectName("watchGame");
  const QList<QAction*> entries = menu.actions();
  menu.insertAction(entries.size() > 1 ? entries[1] : nullptr, watch);
  QObject::connect(watch, &QAction::triggered, &menu, [&records, file] { WatchRecord(records, file); });
}

// --- Marks ---------------------------------------------------------------------------------------

ProofMarks::ProofMarks(Canvas& canvas, const RecordDesk& records)
    : QObject(&canvas), canvas_(canvas), records_(records), table_(records.table(canvas.form)) {}

ProofMarks::~ProofMarks() { Stop(); }

void ProofMarks::Stop() {
  stop_ = true;
  if (thread_.joinable()) thread_.join();
  stop_ = false;
}

// A score that was just entered is told of when the program waits; until then nothing is looked for.
void ProofMarks::Settle() {
  std::string rows;
  for (const Label* row : table_.rows) rows += row->Caption.get() + "\n";
  if (rows == shown_) return;
  shown_ = rows;
  for (const auto& [row, mark] : marks_) delete mark;
  marks_.clear();
  const int search = ++search_;
  QTimer::singleShot(50, this, [this, search] {
    if (search == search_) Find();
  });
}

void ProofMarks::Find() {
  Stop();
  thread_ = std::thread([this, search = search_] {
    std::vector<std::string> files = table_.find(stop_);
    QMetaObject::invokeMethod(
        this,
        [this, search, files = std::move(files)] {
          if (search == search_) Show(files);
        },
        Qt::QueuedConnection);
  });
}

void ProofMarks::Show(const std::vector<std::string>& files) {
  for (size_t place = 0; place < files.size() && place < table_.rows.size(); ++place) {
    if (files[place].empty()) continue;
    auto* mark = new QPushButton("\u2713 &Watch", &canvas_);
    mark->setObjectName("proof" + QString::number(place + 1));
    mark->setAutoDefault(false);
    mark->setToolTip("The record of this game holds: that score came of it. Watch the game.");
    mark->setAccessibleName(QString("Watch the game of place %1, whose record holds").arg(place + 1));
    connect(mark, &QPushButton::clicked, this, [this, file = files[place]] { WatchRecord(records_, file); });
    marks_.emplace_back(table_.rows[place], mark);
    mark->show();
  }
  Zoom();
}

// Left of the scores, where few names end.
void ProofMarks::Zoom() {
  constexpr int kWidth = 70, kHeight = 22, kTwips = 15;
  for (const auto& [row, mark] : marks_) {
    const int right = row->Left / kTwips + 30, middle = (row->Top + row->Height / 3) / kTwips;
    mark->setFont(style::Letters(canvas_.Zoom()));
    mark->setGeometry(canvas_.ToWindow(QRectF(right - kWidth, middle - kHeight / 2, kWidth, kHeight)));
  }
}
