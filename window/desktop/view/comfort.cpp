#include "window/desktop/view/comfort.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "window/desktop/desktop.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/view/canvas.h"
#include "window/desktop/view/form_window.h"
#include "window/player.h"

Comfort::Comfort(FormWindow& window, DesktopFrontEnd& front, Guide& guide)
    : window_(window), front_(front), guide_(guide) {
  for (const Control* control : window.form.Controls())
    if (QWidget* widget = window.WidgetOf(*control))
      ApplyToolTip(*widget, static_cast<const Visual&>(*control));
}

void Comfort::BeforeShow() {
  const auto& place = front_.GetView().selector;
  if (!shown_ && guide_.KeepsPlace() && place) {
    const QScreen* screen = QGuiApplication::screenAt(*place);
    // A screen that is gone would take the window with it.
    if (screen && screen->availableGeometry().contains(QRect(*place, QSize(64, 32)))) {
      window_.form.Left = place->x() * 15;
      window_.form.Top = place->y() * 15;
    }
  }
  if (!shown_) OfferAgain();
  shown_ = true;
}

void Comfort::Settle() {
  ShowNotes();
  if (const TextBox* box = guide_.OffersAgain()) written_ = box->Text;
  if (guide_.KeepsPlace() && window_.isVisible()) KeepPlace();
}

void Comfort::KeepPlace() {
  const QPoint place(Pixels(window_.form.Left), Pixels(window_.form.Top));
  if (front_.GetView().selector == place) return;
  View view = front_.GetView();
  view.selector = place;
  front_.SetView(view);
}

// What the box held last is in it, selected: a player who is somebody else just writes.
void Comfort::OfferAgain() {
  TextBox* box = guide_.OffersAgain();
  const std::string last = front_.GetView().lastName.toStdString();
  if (!box || last.empty()) return;
  front_.Deliver(window_.form, [box, last] {
    if (!player::WhyNot(*box).empty() || !box->Text.get().empty()) return;
    player::Type(*box, last);
    box->SelectAll();
  });
}

// The form may be half gone: nothing is asked of the guide.
void Comfort::Leave() {
  if (written_.find_first_not_of(' ') == std::string::npos) return;
  View view = front_.GetView();
  view.lastName = QString::fromStdString(written_);
  front_.SetView(view);
}

// Below the place that was told, or above it, or else before its lower part.
void Comfort::PlaceSheet(Note& sheet) const {
  constexpr int kGap = 180;
  const int height = NoteRect(sheet).height() * 15;
  const int below = sheet.top + sheet.height + kGap, above = sheet.top - kGap - height;
  const auto isFree = [&](int top) {
    sheet.top = top;
    const QRect area = NoteRect(sheet);
    return top >= 0 && std::ranges::none_of(window_.form.Controls(), [&](const Control* control) {
             if (control->parent != &window_.form) return false;
             if (!IsDrawn(control->kind) && !window_.WidgetOf(*control)) return false;
             const auto& visual = static_cast<const Visual&>(*control);
             return visual.Visible && ModelRect(visual).intersects(area);
           });
  };
  if (!isFree(below) && !isFree(above)) sheet.top = below - 2 * kGap - height;
}

// The first steps are read once a game has been played behind them.
void Comfort::ShowNotes() {
  std::vector<Note> notes = guide_.Notes();
  if (const QString name = window_.objectName(); !front_.GetView().seen.contains(name)) {
    std::optional<Note> sheet = guide_.FirstStepsPlace();
    if (sheet) {
      for (const std::string& line : guide_.FirstSteps())
        sheet->text += (sheet->text.empty() ? "" : "\n") + line;
      if (!sheet->text.empty()) {
        PlaceSheet(*sheet);
        notes.push_back(std::move(*sheet));
      }
    } else if (showsSteps_) {
      View view = front_.GetView();
      view.seen << name;
      front_.SetView(view);
    }
    showsSteps_ = sheet.has_value();
  }
  window_.Board().SetNotes(std::move(notes));
}

std::string Comfort::PanelText(const Panel& panel) const {
  const std::string text = panel.Text.get().empty() ? "" : guide_.PanelText(panel.index);
  return text.empty() ? panel.Text.get() : text;
}

void Comfort::ApplyToolTip(QWidget& widget, const Visual& control) const {
  if (!control.ToolTipText.get().empty()) return;
  if (const std::string text = guide_.ToolTip(control); !text.empty())
    widget.setToolTip(QString::fromStdString(text));
}
