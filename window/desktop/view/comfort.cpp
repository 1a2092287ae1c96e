#include "window/desktop/view/comfort.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QWidget>
#include <algorithm>

#include "window/desktop/input/deeds.h"
#include "window/desktop/input/keyboard.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/keys_window.h"
#include "window/desktop/view/looks.h"
#include "window/desktop/view/native.h"
#include "window/player.h"

namespace {

// A picture drawn for the size at which it is shown.
class DrawnIcon : public QIconEngine {
 public:
  DrawnIcon(const Pictures& pictures, std::string file) : pictures_(pictures), file_(std::move(file)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    const QSize size = rect.size() * painter->device()->devicePixelRatioF();
    if (image_.size() != size) image_ = pictures_.Other(file_, size);
    painter->drawImage(rect, image_);
  }
  QIconEngine* clone() const override { return new DrawnIcon(pictures_, file_); }

 private:
  const Pictures& pictures_;
  const std::string file_;
  QImage image_;
};

}  // namespace

Comfort::Comfort(Canvas& canvas, Deeds& deeds, Looks& looks, Guide& guide)
    : canvas_(canvas),
      window_(*canvas.parentWidget()),
      form_(canvas.form),
      deeds_(deeds),
      looks_(looks),
      guide_(guide) {
  for (const auto& [control, widget] : canvas.widgets)
    ApplyToolTip(*widget, static_cast<const Visual&>(*control)),
        ApplyPicture(*widget, static_cast<const Visual&>(*control));
  OfferHelp();
}

void Comfort::ApplyPicture(QWidget& widget, const Visual& control) const {
  auto* button = qobject_cast<QPushButton*>(&widget);
  const std::string file = guide_.Picture(control);
  if (!button || file.empty()) return;
  button->setIcon(QIcon(new DrawnIcon(canvas_.GetPictures(), file)));
  ZoomNative(widget, control);
}

// A window without a menu has a button for it, and F1. It never takes the keyboard, which is the model's.
void Comfort::OfferHelp() {
  if (!guide_.HelpPlace()) return;
  help_ = new QPushButton(QString::fromStdString(guide_.HelpPlace()->text), &canvas_);
  help_->setObjectName("help");
  help_->setFocusPolicy(Qt::NoFocus);
  const auto show = [this] { deeds_.Do(form_, [this] { ShowKeys(form_, guide_, deeds_, window_); }); };
  QObject::connect(help_, &QPushButton::clicked, help_, show);
  QObject::connect(new QShortcut(Qt::Key_F1, help_), &QShortcut::activated, help_, show);
  Zoom();
}

void Comfort::Zoom() {
  if (!help_) return;
  const Note place = *guide_.HelpPlace();
  help_->setFont(style::Letters(canvas_.Zoom()));
  help_->setGeometry(canvas_.ToWindow(NoteRect(place)));
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

std::vector<QRect> Comfort::Taken(bool byCards) const {
  std::vector<QRect> taken;
  for (const Control* control : form_.Controls()) {
    if (control->parent != &form_ || !(IsDrawn(control->kind) || canvas_.WidgetOf(*control))) continue;
    const auto& visual = static_cast<const Visual&>(*control);
    if (visual.Visible && (byCards || visual.kind != Control::Kind::Image))
      taken.push_back(canvas_.ReachOf(visual));
  }
  return taken;
}

// The text stands where there is room nearest to the button; where there is none, over cards that can't be
// played any more.
void Comfort::CallFor(const CommandButton& button, std::vector<Note>& notes) const {
  constexpr int kEdge = 90, kStep = 4;
  const QRect marked = ModelRect(button);
  notes.push_back({&form_, button.Left - kEdge, button.Top - kEdge, button.Width + 2 * kEdge,
                   button.Height + 2 * kEdge, "", 0, Note::Look::Call});
  Note call{&form_,          0, 0, 0, 0, "No more moves.\n" + WithoutAccessKey(button.Caption.get()) + "?", 2,
            Note::Look::Call};
  const QSize size = NoteRect(call).size();
  const QRect board(QPoint(0, 0), canvas_.ToBoard(canvas_.rect().bottomRight()));
  QRect best;
  for (const bool byCards : {true, false}) {
    if (!best.isNull()) break;
    const std::vector<QRect> taken = Taken(byCards);
    for (int top = kStep; top + size.height() < board.bottom(); top += kStep)
      for (int left = kStep; left + size.width() < board.right(); left += kStep) {
        const QRect here({left, top}, size), around = here.adjusted(-kStep, -kStep, kStep, kStep);
        const auto far = [&](const QRect& place) {
          return (place.center() - marked.center()).manhattanLength();
        };
        if (!best.isNull() && far(here) >= far(best)) continue;
        if (std::ranges::none_of(taken, [&](const QRect& each) { return each.intersects(around); }))
          best = here;
      }
  }
  call.left = best.center().x() * 15;
  call.top = best.top() * 15;
  notes.push_back(std::move(call));
}

// Below the place that was told, or above it, or else before its lower part.
void Comfort::PlaceSheet(Note& sheet) const {
  constexpr int kGap = 180;
  const int height = NoteRect(sheet).height() * 15;
  const int below = sheet.top + sheet.height + kGap, above = sheet.top - kGap - height;
  const std::vector<QRect> taken = Taken(true);
  const auto isFree = [&](int top) {
    sheet.top = top;
    const QRect area = NoteRect(sheet);
    return top >= 0 && std::ranges::none_of(taken, [&](const QRect& each) { return each.intersects(area); });
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
  if (const CommandButton* button = guide_.WayOut()) CallFor(*button, notes);
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
