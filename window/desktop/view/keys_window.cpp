#include "window/desktop/view/keys_window.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "window/desktop/painting/style.h"
#include "window/desktop/view/aside.h"

namespace {

QTableWidget* MakeTable(const std::vector<KeyRow>& rows, QWidget* parent) {
  auto* table = new QTableWidget(static_cast<int>(rows.size()), 2, parent);
  table->setObjectName("keys");
  table->setHorizontalHeaderLabels({"Key", "What it does"});
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table->horizontalHeader()->setHighlightSections(false);
  table->verticalHeader()->hide();
  table->setShowGrid(false);
  table->setAlternatingRowColors(true);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setTabKeyNavigation(false);
  table->setWordWrap(false);
  QFont bold = table->font();
  bold.setBold(true);
  for (int i = 0; i < table->rowCount(); ++i) {
    auto* keys = new QTableWidgetItem(QString::fromStdString(rows[i].keys));
    keys->setFont(bold);
    table->setItem(i, 0, keys);
    table->setItem(i, 1, new QTableWidgetItem(QString::fromStdString(rows[i].does)));
  }
  table->resizeColumnsToContents();
  table->resizeRowsToContents();
  table->setColumnWidth(0, table->columnWidth(0) + 16);
  table->horizontalHeader()->setStretchLastSection(true);
  return table;
}

// As large as its table, and no larger than the screen.
QSize SizeFor(const QTableWidget& table, const QScreen& screen) {
  const int border = 2 * table.frameWidth();
  const int width = table.columnWidth(0) + table.columnWidth(1) + border + 24;
  const int height =
      table.horizontalHeader()->sizeHint().height() + table.rowHeight(0) * table.rowCount() + border;
  const QSize room = screen.availableGeometry().size() - QSize(80, 160);
  return QSize(width, height).boundedTo(room);
}

// In a choice each key is told with what it opens.
std::vector<KeyRow> RowsOf(const Form& form, const Guide& guide) {
  std::vector<KeyRow> rows;
  for (const KeyRow& row : guide.Keys()) {
    const size_t before = rows.size();
    for (const KeyClick& click : row.clicks) {
      const Control* control = guide.IsChoice() ? form.find(click.control) : nullptr;
      const std::string what = control ? guide.ToolTip(*control) : "";
      if (what.empty() || control->kind != Control::Kind::CommandButton) continue;
      const std::string& caption = static_cast<const CommandButton&>(*control).Caption;
      rows.push_back({click.keys,
                      QString::fromStdString(WithoutAccessKey(caption)).trimmed().toStdString() + ": " + what,
                      {}});
    }
    if (rows.size() == before) rows.push_back(row);
  }
  return rows;
}

}  // namespace

void ShowKeys(Form& form, const Guide& guide, Deeds& deeds, QWidget& window) {
  const std::vector<KeyRow> rows = RowsOf(form, guide);
  auto* dialog = new QDialog(&window);
  dialog->setObjectName("frmKeys");
  style::SetZoom(*dialog, style::ZoomOf(&window));
  dialog->setWindowTitle(guide.IsChoice() ? "Help" : "Keys");
  auto* table = MakeTable(rows, dialog);
  table->setMinimumSize(SizeFor(*table, *window.screen()));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, dialog);
  buttons->button(QDialogButtonBox::Ok)->setIcon(QIcon());
  buttons->setCenterButtons(true);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(table);
  layout->addWidget(buttons);
  ShowAside(*dialog, form, guide, deeds, window);
  if (table->rowCount() > 0) table->setCurrentCell(0, 0);
  table->setFocus();
}
