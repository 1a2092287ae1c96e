#include "window/desktop/results/statistics_window.h"

#include <QApplication>
#include <QBuffer>
#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

#include "window/desktop/painting/baize.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/results/painter.h"
#include "window/system/disk.h"
#include "window/system/foreign_files.h"

namespace fs = std::filesystem;

namespace {

constexpr QSize kUsual(860, 640), kSmallest(520, 470);

std::chrono::sys_days DayOf(QDate date) {
  return std::chrono::sys_days(std::chrono::days(QDate(1970, 1, 1).daysTo(date)));
}

bool IsStrong() { return QApplication::palette().color(QPalette::Window) == style::kStrongGround; }

// A table whose second column takes what the others leave.
class Table : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;
  int least = 0;  // of that column

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTableWidget::resizeEvent(event);
    int others = 0;
    for (int column = 0; column < columnCount(); ++column)
      if (column != 1) others += columnWidth(column);
    setColumnWidth(1, std::max(least, viewport()->width() - others));
    if (QTableWidgetItem* const chosen = currentItem()) scrollToItem(chosen, PositionAtCenter);
  }
};

}  // namespace

// The page on the felt.
class StatisticsWindow::View : public QWidget {
 public:
  View(const results::Page& page, QWidget* parent) : QWidget(parent), page_(page) {
    setObjectName("page");
    const double zoom = style::ZoomOf(parent);
    setMinimumSize((QSizeF(results::kLeastWidth, results::kLeastHeight) * zoom).toSize());
  }

  void Show() {
    setAccessibleName(QString::fromStdString(results::InWords(page_)));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const bool strong = IsStrong();
    const double scale = devicePixelRatioF();
    if (!strong && ground_.size() != size() * scale) ground_ = Baize(size(), scale);
    strong ? painter.fillRect(rect(), style::kStrongGround) : painter.drawPixmap(0, 0, ground_);
    const double zoom = style::ZoomOf(this);
    painter.scale(zoom, zoom);
    results::Paint(painter, page_, QRectF(QPointF(), QSizeF(size()) / zoom), strong);
  }

 private:
  const results::Page& page_;
  QPixmap ground_;
};

StatisticsWindow::StatisticsWindow(const fs::path& history, const std::vector<KnownGame>& known,
                                   const std::string& game, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmStatistics");
  setWindowTitle("Statistics");
  FitScreen();
  std::string text, why;
  const bool read = !ReadForeignFile(history, kLargestHistory, text, why) || why.empty();
  games_ = ParseHistory(text);
  rows_ = OverviewOf(games_, known, DayOf(QDateTime::currentDateTimeUtc().date()));
  told_ = new QLabel(read ? "" : "The history can't be read: " + QString::fromStdString(why), this);
  told_->setObjectName("told");
  table_ = new Table(0, static_cast<int>(std::size(results::kColumns)), this);
  view_ = new View(page_, this);
  FillTable(game);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(told_, 1);
  const auto add = [&](const char* name, const QString& caption, auto press) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, press);
    buttons->addWidget(button);
    return button;
  };
  QPushButton* const picture = add("savePicture", "Save &Picture...", [this] {
    Ask("Save Picture", "statistics.png", {"Picture (*.png)", "Drawing (*.svg)"},
        &StatisticsWindow::SavePicture);
  });
  QPushButton* const table = add("saveTable", "Save &Table...", [this] {
    Ask("Save Table", "statistics.csv", {"Table (*.csv)"}, &StatisticsWindow::SaveTable);
  });
  add("close", "&Close", [this] { accept(); })->setDefault(true);
  picture->setEnabled(!rows_.empty());
  table->setEnabled(!rows_.empty());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(table_, 2);
  layout->addWidget(view_, 5);
  layout->addLayout(buttons);
  table_->setVisible(!rows_.empty());
  (rows_.empty() ? static_cast<QWidget*>(buttons->itemAt(3)->widget()) : table_)->setFocus();
  view_->Show();
}

// The zoom of the window before which it stands, as far as the screen has room.
void StatisticsWindow::FitScreen() {
  const QWidget& before = parentWidget() ? *parentWidget() : *static_cast<QWidget*>(this);
  const QSizeF room = before.screen()->availableGeometry().size() - QSize(20, 60);
  const double most = std::min(room.width() / kSmallest.width(), room.height() / kSmallest.height());
  const double zoom = std::min(style::ZoomOf(&before), most);
  style::SetZoom(*this, zoom);
  setMinimumSize((QSizeF(kSmallest) * zoom).toSize());
  resize((QSizeF(kUsual) * zoom).boundedTo(room).toSize());
}

void StatisticsWindow::FillTable(const std::string& game) {
  table_->setObjectName("table");
  table_->setAccessibleName("Statistics");
  const auto cell = [](int column, const std::string& text) {
    const bool isNumber = column >= static_cast<int>(results::kFirstNumber);
    auto* item = new QTableWidgetItem(QString::fromStdString(text));
    item->setTextAlignment((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return item;
  };
  for (int column = 0; column < table_->columnCount(); ++column)
    table_->setHorizontalHeaderItem(column, cell(column, results::kColumns[column]));
  table_->verticalHeader()->hide();
  table_->setShowGrid(false);
  table_->setAlternatingRowColors(true);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->setRowCount(static_cast<int>(rows_.size()));
  for (int i = 0; i < table_->rowCount(); ++i) {
    const std::vector<std::string> cells = results::CellsOf(rows_[static_cast<size_t>(i)]);
    for (int column = 0; column < table_->columnCount(); ++column)
      table_->setItem(i, column, cell(column, cells[static_cast<size_t>(column)]));
  }
  table_->resizeRowsToContents();
  table_->resizeColumnsToContents();
  const int room = static_cast<int>(std::lround(10 * style::ZoomOf(this)));
  for (int column = 0; column < table_->columnCount(); ++column)
    table_->setColumnWidth(column, table_->columnWidth(column) + room);
  static_cast<Table*>(table_)->least = table_->columnWidth(1);
  table_->setMinimumHeight(table_->horizontalHeader()->sizeHint().height() + 3 * table_->rowHeight(0));
  connect(table_, &QTableWidget::currentCellChanged, this, [this](int row) { Choose(row); });
  if (!rows_.empty()) table_->setCurrentCell(static_cast<int>(results::NewestRow(rows_, game)), 0);
}

void StatisticsWindow::Choose(int row) {
  if (row < 0) return;
  page_ = results::PageOf(rows_[static_cast<size_t>(row)], games_, DayOf(QDate::currentDate()));
  view_->Show();
}

// --- Saving --------------------------------------------------------------------------------------

void StatisticsWindow::Ask(const QString& title, const QString& name, const QStringList& kinds,
                           bool (StatisticsWindow::*save)(const fs::path&)) {
  auto* dialog =
      new QFileDialog(this, title, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  style::SetZoom(*dialog, style::ZoomOf(this));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setNameFilters(kinds);
  dialog->setDefaultSuffix(name.section('.', -1));
  dialog->selectFile(name);
  connect(dialog, &QFileDialog::filterSelected, dialog,
          [dialog](const QString& kind) { dialog->setDefaultSuffix(kind.section("*.", 1).chopped(1)); });
  connect(dialog, &QFileDialog::fileSelected, this, [this, save](const QString& file) {
    told_->setText(((this->*save)(file.toStdString()) ? "Saved: " : "Can't be written: ") + file);
  });
  dialog->open();
}

bool StatisticsWindow::SavePicture(const fs::path& file) {
  constexpr int kSharp = 2;
  const bool strong = IsStrong();
  const QSize size(results::kSavedWidth, results::kSavedHeight);
  const auto paint = [&](QPaintDevice& device, double scale) {
    QPainter painter(&device);
    painter.scale(scale, scale);
    painter.fillRect(QRect(QPoint(), size), strong ? style::kStrongGround : QColor(0x1f, 0x6c, 0x4a));
    results::Paint(painter, page_, QRect(QPoint(), size), strong);
  };
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  if (file.extension() == ".svg") {
    QSvgGenerator drawing;
    drawing.setOutputDevice(&bytes);
    drawing.setSize(size);
    drawing.setViewBox(QRect(QPoint(), size));
    drawing.setTitle(QString::fromStdString(page_.title));
    paint(drawing, 1);
  } else {
    QImage image(size * kSharp, QImage::Format_RGB32);
    paint(image, kSharp);
    if (!image.save(&bytes, "PNG")) return false;
  }
  return Disk().Replace(file, bytes.data().toStdString()) == WriteOutcome::Written;
}

bool StatisticsWindow::SaveTable(const fs::path& file) {
  return Disk().Replace(file, TableOf(rows_)) == WriteOutcome::Written;
}
