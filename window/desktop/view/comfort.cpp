#include "window/desktop/view/comfort.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "window/desktop/input/deeds.h"
#include "window/desktop/input/keyboard.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/view/looks.h"
#include "window/player.h"

Comfort::Comfort(Canvas& canvas, Deeds& deeds, Looks& looks, Guide& guide)
    : canvas_(canvas),
      window_(*canvas.parentWidget()),
      form_(canvas.form),
      deeds_(deeds),
      looks_(looks),
      guide_(guide) {
  for (const auto& [control, widget] : canvas.widgets)
    ApplyToolTip(*widget, static_cast<const Visual&>(*control));
}

void Comfort::BeforeShow() {
  const auto& place = looks_.Now().selector;
  if (!shown_ && guide_.KeepsPlace() && place) {
    const QScreen* screen = QGuiApplication::screenAt(*place);
    // A screen that is gone would take the window with it.
    if (screen && screen->availableGeometry().contains(QRect(*place, QSize(64, 32))))
      player::Place(form_, place->x() * 15, place->y() * 15);
  }
  if (!shown_) OfferAgain();
  shown_ = true;
}

// A choice begins with what was chosen last.
void Comfort::Shown(const Keyboard& keyboard) const {
  if (!guide_.IsChoice()) return;
  const std::vector<Visual*> choices = keyboard.Choices();
  const std::string last = looks_.Now().lastGame.toStdString();
  const auto found = std::ranges::find(choices, last, [](const Visual* each) { return each->NameInForm(); });
  Visual* const start = found != choices.end() ? *found : choices.empty() ? nullptr : choices.front();
  if (start) deeds_.Deliver(form_, [start] { player::Focus(*start); });
}

void Comfort::Hidden(const Keyboard& keyboard) {
  if (!guide_.IsChoice()) return;
  const Visual* active = form_.ActiveControl();
  const std::vector<Visual*> choices = keyboard.Choices();
  if (std::ranges::find(choices, active) == choices.end()) return;
  looks_.Alter([&](View& view) { view.lastGame = QString::fromStdString(active->NameInForm()); });
}

void Comfort::Settle() {
  ShowNotes();
  if (const TextBox* box = guide_.OffersAgain()) written_ = box->Text;
  if (guide_.KeepsPlace() && window_.isVisible()) KeepPlace();
}

void Comfort::KeepPlace() {
  const QPoint place(Pixels(form_.Left), Pixels(form_.Top));
  looks_.Alter([&](View& view) { view.selector = place; });
}

// What the box held last is in it, selected: a player who is somebody else just writes.
void Comfort::OfferAgain() {
  TextBox* box = guide_.OffersAgain();
  const std::string last = looks_.Now().lastName.toStdString();
  if (!box || last.empty()) return;
  deeds_.Do(*box, [box, last] {
    if (!box->Text.get().empty()) return;
    player::Type(*box, last);
    box->SelectAll();
  });
}

// The form may be half gone: nothing is asked of the guide.
void Comfort::Leave() {
  if (written_.find_first_not_of(' ') == std::string::npos) return;
  looks_.Alter([&](View& view) { view.lastName = QString::fromStdString(written_); });
}

// Below the place that was told, or above it, or else before its lower part.
void Comfort::PlaceSheet(Note& sheet) const {
  constexpr int kGap = 180;
  const int height = NoteRect(sheet).height() * 15;
  const int below = sheet.top + sheet.height + kGap, above = sheet.top - kGap - height;
  const auto isFree = [&](int top) {
    sheet.top = top;
    const QRect area = NoteRect(sheet);
    return top >= 0 && std::ranges::none_of(form_.Controls(), [&](const Control* control) {
             if (control->parent != &form_) return false;
             if (!IsDrawn(control->kind) && !canvas_.WidgetOf(*control)) return false;
             const auto& visual = static_cast<const Visual&>(*control);
             return visual.Visible && ModelRect(visual).intersects(area);
           });
  };
  if (!isFree(below) && !isFree(above)) sheet.top = below - 2 * kGap - height;
}

// The first steps are read once a game has been played behind them.
void Comfort::ShowNotes() {
  std::vector<Note> notes = guide_.Notes();
  if (const QString name = window_.objectName(); !looks_.Now().seen.contains(name)) {
    std::optional<Note> sheet = guide_.FirstStepsPlace();
    if (sheet) {
      for (const std::string& line : guide_.FirstSteps())
        sheet->text += (sheet->text.empty() ? "" : "\n") + line;
      if (!sheet->text.empty()) {
        PlaceSheet(*sheet);
        notes.push_back(std::move(*sheet));
      }
    } else if (showsSteps_) {
      looks_.Alter([&](View& view) { view.seen << name; });
    }
    showsSteps_ = sheet.has_value();
  }
  canvas_.SetNotes(std::move(notes));
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
