#include "window/desktop/speech/access_names.h"

#include <QWidget>
#include <algorithm>
#include <limits>

#include "window/desktop/painting/canvas.h"

namespace {

constexpr int kNever = std::numeric_limits<int>::max();

bool HasLetter(const QString& text) {
  return std::ranges::any_of(text, [](QChar letter) { return letter.isLetter(); });
}

// A label that shows.
struct Lettered {
  const Label* label;
  QRect rect;
  QString text;
  bool isMessage;

  // Figures say nothing without what stands beside them.
  bool IsFigure() const { return !HasLetter(text); }
  // "Time: 45" has its own.
  bool IsTitle() const { return !IsFigure() && !(text.contains(':') && text.back().isDigit()) && !isMessage; }
};

std::vector<Lettered> LabelsOn(const Form& form, const Guide* guide = nullptr) {
  std::vector<Lettered> labels;
  for (const Control* each : form.Controls()) {
    if (each->kind != Control::Kind::Label) continue;
    const auto& label = static_cast<const Label&>(*each);
    if (const QString text = Spoken(label.Caption); !text.isEmpty() && IsShown(label))
      labels.push_back({&label, ModelRect(label), text, IsMessage(label, guide)});
  }
  return labels;
}

// How far a label stands from what it tells of, if it stands to the left of it or above.
int Distance(const QRect& label, const QRect& rect, int farthestLeft, int costAbove) {
  constexpr int kFarthestAbove = 60;
  const bool sameLine =
      std::abs(label.center().y() - rect.center().y()) <= std::max(label.height(), rect.height()) / 2;
  if (sameLine && label.left() < rect.left())
    return rect.left() - label.right() <= farthestLeft ? std::max(0, rect.left() - label.right()) : kNever;
  const int gap = rect.top() - label.bottom();
  const bool above = label.top() < rect.top() && label.left() < rect.right() && rect.left() < label.right();
  return above && gap <= kFarthestAbove ? costAbove + std::max(0, gap) : kNever;
}

template <class Fits>
const Lettered* Nearest(const std::vector<Lettered>& labels, const Visual& control, int farthestLeft,
                        int costAbove, Fits fits) {
  const QRect rect = ModelRect(control);
  const Lettered* nearest = nullptr;
  int least = kNever;
  for (const Lettered& each : labels) {
    // What stands on a picture belongs to what stands around it.
    const bool together =
        each.label->parent == control.parent || control.parent->kind == Control::Kind::PictureBox;
    if (each.label == &control || !together || !fits(each)) continue;
    if (const int here = Distance(each.rect, rect, farthestLeft, costAbove); here < least) {
      least = here;
      nearest = &each;
    }
  }
  return nearest;
}

QString WithoutColon(QString text) {
  text = text.trimmed();
  if (text.endsWith(':')) text.chop(1);
  return text;
}

QString NameOfBox(const Visual& control) {
  if (const QString label = LabelTextOf(control); !label.isEmpty()) return label;
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

QString LabelTextOf(const Visual& control) {
  const std::vector<Lettered> labels = LabelsOn(control.form);
  const Lettered* label =
      Nearest(labels, control, 400, 1000, [](const Lettered& each) { return !each.IsFigure(); });
  return label ? WithoutColon(label->text) : QString();
}

std::map<const Label*, QString> NamesOfLabels(const Form& form, const Guide* guide) {
  const std::vector<Lettered> labels = LabelsOn(form, guide);
  const bool board = IsBoard(form);
  std::map<const Label*, QString> names;
  for (const Lettered& each : labels) names[each.label] = each.text;
  if (!board) return names;
  std::vector<const Label*> told;
  for (const Lettered& each : labels) {
    if (const std::string said = guide ? guide->Says(*each.label) : ""; !said.empty()) {
      names[each.label] = Spoken(said);
    } else if (each.IsFigure()) {
      // In a frame figures may stand beside figures, as in a table.
      const bool framed = each.label->parent->kind == Control::Kind::Frame;
      const auto fits = [&](const Lettered& other) {
        return other.label->index < 0 &&
               (other.IsTitle() || (framed && other.rect.right() < each.rect.left()));
      };
      const Lettered* title = Nearest(labels, *each.label, 100, 30, fits);
      if (!title) continue;
      names[each.label] = WithoutColon(title->text) + ": " + each.text;
      told.push_back(title->label);
    }
  }
  for (const Label* label : told) names.erase(label);
  return names;
}

bool IsMessage(const Label& label, const Guide* guide) {
  constexpr int kLarge = 12;  // points
  return label.parent == &label.form && IsBoard(label.form) && label.index < 0 &&
         !QString::fromStdString(label.Caption).trimmed().endsWith(':') &&
         (label.FontSize >= kLarge || (guide && guide->IsMessage(label))) &&
         HasLetter(QString::fromStdString(label.Caption));
}

void NameWidgets(Canvas& board, const std::vector<Spot>& spots) {
  for (const Control* control : board.form.Controls()) {
    QWidget* widget = board.WidgetOf(*control);
    if (!widget) continue;
    const auto& visual = static_cast<const Visual&>(*control);
    QString name, description;
    switch (control->kind) {
      case Control::Kind::CommandButton: {
        const std::string& caption = static_cast<const CommandButton&>(*control).Caption;
        const QString spoken = Spoken(caption);
        if (spoken != QString::fromStdString(WithoutAccessKey(caption)))
          name = spoken;  // it has blanks around it
        for (const Spot& spot : spots)
          if (spot.control == control) name = spoken + ", " + QString::fromStdString(spot.text);
        break;
      }
      case Control::Kind::CheckBox:
        break;
      case Control::Kind::OptionButton:
        description = LabelTextOf(visual);
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
