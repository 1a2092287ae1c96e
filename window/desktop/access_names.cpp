#include "window/desktop/access_names.h"

#include <QWidget>
#include <algorithm>
#include <cctype>
#include <limits>

#include "window/desktop/access_board.h"
#include "window/desktop/form_window.h"
#include "window/desktop/native.h"
#include "window/desktop/scene.h"

namespace {

bool EndsWithColon(const Label& label) {
  return QString::fromStdString(label.Caption).trimmed().endsWith(':');
}

// Figures that say nothing without what stands beside them.
bool IsFigure(const Label& label) {
  const QString text = Spoken(label.Caption);
  return !text.isEmpty() && std::ranges::none_of(text, [](QChar letter) { return letter.isLetter(); });
}

// What can stand beside figures.
bool IsTitle(const Label& label) {
  const QString text = Spoken(label.Caption);
  return !IsFigure(label) && !text.isEmpty() && !text.back().isDigit();
}

bool HasLetter(const QString& text) {
  return std::ranges::any_of(text, [](QChar letter) { return letter.isLetter(); });
}

bool Shows(const Label& label) { return IsShown(label) && !Spoken(label.Caption).isEmpty(); }

// Whether `label` stands beside `rect` on the left, or above it, and how far away. Beside goes before above.
int Distance(const QRect& label, const QRect& rect) {
  constexpr int kFarthest = 400, kFarthestAbove = 60, kAbove = 1000;
  const bool sameLine =
      std::abs(label.center().y() - rect.center().y()) <= std::max(label.height(), rect.height()) / 2;
  if (sameLine && label.left() < rect.left() && rect.left() - label.right() <= kFarthest)
    return std::max(0, rect.left() - label.right());
  const int gap = rect.top() - label.bottom();
  if (label.top() < rect.top() && gap <= kFarthestAbove && label.left() < rect.right() &&
      rect.left() < label.right())
    return kAbove + std::max(0, gap);
  return std::numeric_limits<int>::max();
}

const Label* NearestLabel(const Visual& control, bool title) {
  const QRect rect = ModelRect(control);
  const Label* nearest = nullptr;
  int distance = std::numeric_limits<int>::max();
  for (const Control* each : control.form.Controls()) {
    if (each->kind != Control::Kind::Label || each == &control || each->parent != control.parent) continue;
    const auto& label = static_cast<const Label&>(*each);
    if (!Shows(label) || (title && (!IsTitle(label) || IsMessage(label)))) continue;
    if (const int here = Distance(ModelRect(label), rect); here < distance) {
      distance = here;
      nearest = &label;
    }
  }
  return nearest;
}

QString WithoutColon(QString text) {
  text = text.trimmed();
  if (text.endsWith(':')) text.chop(1);
  return text;
}

// "ColumnTotal" of an array of labels, spoken: "Column total 3".
QString SpokenPlace(const Label& label) {
  QString name;
  for (const char letter : label.name.starts_with("lbl") ? label.name.substr(3) : label.name)
    if (std::isupper(static_cast<unsigned char>(letter)) && !name.isEmpty())
      name += QStringLiteral(" ") + QChar(letter).toLower();
    else
      name += QChar(letter);
  if (name == "Col") name = "Column";
  int first = label.index;
  while (first > 0 && label.form.find(label.name, first - 1)) --first;
  return name + " " + QString::number(label.index - first + 1);
}

// The value that a label with a colon tells of; null if it stands for itself.
const Label* ValueOf(const Label& caption) {
  for (const Control* each : caption.form.Controls()) {
    if (each->kind != Control::Kind::Label || each == &caption || each->parent != caption.parent) continue;
    const auto& label = static_cast<const Label&>(*each);
    if (Shows(label) && !EndsWithColon(label) && label.index < 0 && NearestLabel(label, true) == &caption)
      return &label;
  }
  return nullptr;
}

QString NameOfBox(const Visual& control) {
  if (const Label* label = NearestLabel(control, false)) return WithoutColon(Spoken(label->Caption));
  switch (control.kind) {
    case Control::Kind::DriveListBox:
      return "Places";
    case Control::Kind::DirListBox:
      return "Folders";
    case Control::Kind::FileListBox:
      return "Files";
    default:
      return Spoken(control.form.Caption);
  }
}

}  // namespace

QString Spoken(const std::string& text) {
  return QString::fromStdString(WithoutAccessKey(text)).simplified();
}

const Label* LabelOf(const Visual& control) { return NearestLabel(control, false); }

QString NameOfLabel(const Label& label) {
  const QString text = Spoken(label.Caption);
  if (text.isEmpty()) return "";
  if (EndsWithColon(label)) return ValueOf(label) ? "" : text;
  if (label.index >= 0 && IsBoard(label.form)) return SpokenPlace(label) + ": " + text;
  if (IsMessage(label) || text.contains(':')) return text;
  const Label* caption = NearestLabel(label, true);
  return caption && ValueOf(*caption) == &label ? Spoken(caption->Caption) + " " + text : text;
}

bool IsMessage(const Label& label) {
  constexpr int kLarge = 12;  // points
  return label.parent == &label.form && IsBoard(label.form) && !EndsWithColon(label) && label.index < 0 &&
         (label.FontSize >= kLarge || label.name.starts_with("ScoringLabel")) &&
         HasLetter(QString::fromStdString(label.Caption));
}

void NameWidgets(FormWindow& window) {
  const BoardAccess& board = *BoardAccessOf(window);
  const std::vector<Spot> spots = board.Spots();
  for (const Control* control : window.form.Controls()) {
    if (!IsNative(control->kind)) continue;
    QWidget* widget = window.WidgetOf(*control);
    const auto& visual = static_cast<const Visual&>(*control);
    QString name, description;
    switch (control->kind) {
      case Control::Kind::CommandButton:
        for (const Spot& spot : spots)
          if (spot.control == control)
            name = Spoken(static_cast<const CommandButton&>(*control).Caption) + ", " +
                   QString::fromStdString(spot.text);
        break;
      case Control::Kind::CheckBox:
        break;
      case Control::Kind::OptionButton:
        if (const Label* label = NearestLabel(visual, true))
          description = WithoutColon(Spoken(label->Caption));
        break;
      default:
        name = NameOfBox(visual);
        break;
    }
    // Each call is told to all listeners.
    if (widget->accessibleName() != name) widget->setAccessibleName(name);
    if (widget->accessibleDescription() != description) widget->setAccessibleDescription(description);
  }
}
