#include "window/desktop/view/comfort.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QMenu>
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
#include "window/desktop/painting/room.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/choice_menu.h"
#include "window/desktop/view/keys_window.h"
#include "window/desktop/view/looks.h"
#include "window/desktop/view/native.h"
#include "window/player.h"
#include "window/results/remarks.h"

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

Comfort::Comfort(Canvas& canvas, Deeds& deeds, Looks& looks, Guide& guide, std::filesystem::path history)
    : canvas_(canvas),
      window_(*canvas.parentWidget()),
      form_(canvas.form),
      deeds_(deeds),
      looks_(looks),
      guide_(guide),
      history_(std::move(history)) {
  for (const auto& [control, widget] : canvas.widgets)
    ApplyToolTip(*widget, static_cast<const Visual&>(*control)),
        ApplyPicture(*widget, static_cast<const Visual&>(*control));
  OfferHelp();
  OfferMenu();
  Zoom();
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
}

// Beside it; Alt and M, or F10.
void Comfort::OfferMenu() {
  if (!help_ || guide_.Doors().empty()) return;
  menuButton_ = new QPushButton("&Menu", &canvas_);
  menuButton_->setObjectName("menu");
  menuButton_->setFocusPolicy(Qt::NoFocus);
  menu_ = new ChoiceMenu(form_, guide_, deeds_, history_, window_);
  const auto show = [this] {
    menu_->SetFont(menuButton_->font());
    menu_->Shown().popup(menuButton_->mapToGlobal(QPoint(0, menuButton_->height())));
  };
  QObject::connect(menuButton_, &QPushButton::clicked, menuButton_, show);
  QObject::connect(new QShortcut(Qt::Key_F10, menuButton_), &QShortcut::activated, menuButton_, show);
}

void Comfort::Zoom() {
  if (!help_) return;
  constexpr int kGap = 8;
  QRect place = NoteRect(*guide_.HelpPlace());
  if (menuButton_) {
    const int breadth = (place.width() - kGap) / 2;
    menuButton_->setFont(style::Letters(canvas_.Zoom()));
    menuButton_->setGeometry(canvas_.ToWindow(QRect(place.topLeft(), QSize(breadth, place.height()))));
    place.setLeft(place.right() + 1 - breadth);
  }
  help_->setFont(style::Letters(canvas_.Zoom()));
  help_->setGeometry(canvas_.ToWindow(place));
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

// The text stands where there is room nearest to the button; where there is none, over cards that can't be
// played any more.
void Comfort::CallFor(const CommandButton& button, std::vector<Note>& notes) const {
  constexpr int kEdge = 90;
  const QRect marked = ModelRect(button);
  notes.push_back({&form_, button.Left - kEdge, button.Top - kEdge, button.Width + 2 * kEdge,
                   button.Height + 2 * kEdge, "", 0, Note::Look::Call});
  Note call{&form_,          0, 0, 0, 0, "No more moves.\n" + WithoutAccessKey(button.Caption.get()) + "?", 2,
            Note::Look::Call};
  const QSize size = NoteRect(call).size();
  QRect best;
  for (const Over over : {Over::Nothing, Over::Backs, Over::Cards})
    if (best.isNull()) best = FindRoom(canvas_, size, marked.center(), Taken(canvas_, over));
  call.left = best.center().x() * 15;
  call.top = best.top() * 15;
  notes.push_back(std::move(call));
}

// The same words in two lines that are equally long, or nearly so.
std::string Comfort::InTwoLines(std::string text) {
  std::ranges::replace(text, '\n', ' ');
  size_t best = text.find(' ');
  const auto aside = [&](size_t blank) { return std::max(blank, text.size() - blank); };
  for (size_t blank = best; blank != std::string::npos; blank = text.find(' ', blank + 1))
    if (aside(blank) < aside(best)) best = blank;
  if (best != std::string::npos) text[best] = '\n';
  return text;
}

// Below the place that was told, or above it; where there is less room, in two lines, or anywhere near.
void Comfort::PlaceSheet(Note& sheet, const std::vector<Note>& others) const {
  std::vector<QRect> taken = Taken(canvas_, Over::Nothing);
  for (const Note& other : others) taken.push_back(NoteRect(other));
  const int top = sheet.top;
  for (int lines = 3; lines > 1; --lines) {
    if (lines == 2) sheet.text = InTwoLines(sheet.text);
    const int height = NoteRect(sheet).height() * 15;
    for (const int gap : {180, 45})
      for (const int place : {top + sheet.height + gap, top - gap - height}) {
        sheet.top = place;
        const QRect area = NoteRect(sheet);
        const auto covers = [&](const QRect& each) { return each.intersects(area); };
        if (place >= 0 && std::ranges::none_of(taken, covers)) return;
      }
  }
  const QRect area = NoteRect(sheet),
              panel(Pixels(sheet.left), Pixels(top), Pixels(sheet.width), Pixels(sheet.height));
  const QRect room = FindRoom(canvas_, area.size(), panel.center(), taken);
  if (room.isNull()) {
    sheet.top = top + sheet.height - area.height() * 15;
  } else {
    sheet.left = room.center().x() * 15 - sheet.width / 2;
    sheet.top = room.top() * 15;
  }
}

std::string Comfort::Remark() {
  const auto facts = guide_.Game();
  if (!facts || history_.empty()) return "";
  if (facts_ != *facts) remark_ = RemarkOn(*facts, history_);
  facts_ = *facts;
  return remark_;
}

// A sheet by the splash panel, while that shows; none without a text.
bool Comfort::AddSheet(const std::string& text, std::vector<Note>& notes) const {
  std::optional<Note> sheet = guide_.FirstStepsPlace();
  if (!sheet || text.empty()) return sheet.has_value();
  sheet->text = text;
  PlaceSheet(*sheet, notes);
  notes.push_back(std::move(*sheet));
  return true;
}

// The first steps are read once a game has been played behind them.
void Comfort::ShowNotes() {
  std::vector<Note> notes = guide_.Notes();
  if (const QString name = window_.objectName(); !looks_.Now().seen.contains(name)) {
    std::string steps;
    for (const std::string& line : guide_.FirstSteps()) steps += (steps.empty() ? "" : "\n") + line;
    const bool shows = AddSheet(steps, notes);
    if (!shows && showsSteps_) looks_.Alter([&](View& view) { view.seen << name; });
    showsSteps_ = shows;
  }
  if (guide_.FirstStepsPlace()) AddSheet(Remark(), notes);
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
