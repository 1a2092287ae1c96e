#include "window/desktop/view/watch_bar.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "window/desktop/painting/style.h"
#include "window/desktop/view/managed.h"

namespace {

constexpr int kSpeeds[] = {1, 2, 4, 8};
constexpr int kTick = 100;  // milliseconds to a step of the slider

QString Clock(long long milliseconds) {
  const long long seconds = milliseconds / 1000;
  return QString("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0'));
}

QToolButton* Button(QWidget* parent, const char* name, const QString& text, const QString& tip) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setText(text);
  button->setToolTip(tip);
  button->setAccessibleDescription(tip);
  return button;
}

}  // namespace

WatchBar::WatchBar(const Recording& recording)
    : QWidget(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint), recording_(recording) {
  setObjectName("watchBar");
  setWindowTitle("Recording: " + QString::fromStdString(recording.title));
  comment_ = new QLabel(this);
  comment_->setObjectName("comment");
  comment_->setTextFormat(Qt::PlainText);
  comment_->setWordWrap(true);
  comment_->setAlignment(Qt::AlignCenter);
  comment_->setVisible(recording.hasComments);
  pause_ = Button(this, "pause", "Pause", "Space");
  pause_->setCheckable(true);
  auto* deed = Button(this, "deed", "Next Deed", "Right");
  connect(deed, &QToolButton::clicked, this, [this] { step_ = true; });
  slider_ = new QSlider(Qt::Horizontal, this);
  slider_->setObjectName("place");
  slider_->setAccessibleName("Round");
  slider_->setToolTip("Page Up and Page Down: the round before and the next one");
  slider_->setRange(0, static_cast<int>(std::max(1ll, recording.length / kTick)));
  slider_->setTracking(false);
  slider_->setMinimumWidth(240);
  connect(slider_, &QSlider::actionTriggered, this, &WatchBar::Slide);
  connect(slider_, &QSlider::sliderReleased, this, [this] {
    if (goTo && !recording_.rounds.empty())
      goTo(recording_.rounds[RoundAt(static_cast<long long>(slider_->sliderPosition()) * kTick)]);
  });
  place_ = new QLabel(this);
  place_->setObjectName("where");

  auto* row = new QHBoxLayout;
  row->addWidget(pause_);
  row->addWidget(deed);
  auto* group = new QButtonGroup(this);
  for (const int speed : kSpeeds) {
    auto* button = Button(this, qPrintable(QString("speed%1").arg(speed)), QString("x%1").arg(speed),
                          QString("%1 times as fast, key %1").arg(speed));
    button->setCheckable(true);
    group->addButton(button);
    row->addWidget(button);
    speeds_.push_back(button);
    connect(button, &QToolButton::clicked, this, [this, speed] { SetSpeed(speed); });
  }
  row->addWidget(slider_, 1);
  row->addWidget(place_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(comment_);
  column->addLayout(row);
  SetSpeed(1);
  Fit();
}

void WatchBar::Fit() {
  QFont letters = style::Letters(11, true);
  letters.setPixelSize(static_cast<int>(std::lround(letters.pixelSize() * style::ZoomOf(this))));
  comment_->setFont(letters);
  comment_->setMinimumHeight(2 * comment_->fontMetrics().height());
  ShowPlace(recording_.length);  // the longest text
  place_->setMinimumWidth(place_->sizeHint().width() + place_->fontMetrics().horizontalAdvance("00"));
  ShowPlace(0);
  adjustSize();
}

void WatchBar::SetSpeed(int speed) {
  speed_ = speed;
  for (size_t i = 0; i < speeds_.size(); ++i) speeds_[i]->setChecked(kSpeeds[i] == speed);
}

size_t WatchBar::RoundAt(long long at) const {
  size_t round = 0;
  while (round + 1 < recording_.rounds.size() && recording_.rounds[round + 1].at <= at) ++round;
  return round;
}

void WatchBar::GoBy(int rounds) {
  if (recording_.rounds.empty() || !goTo) return;
  constexpr long long kJustBegun = 3000;  // one back from there is the round before
  const auto now = static_cast<int>(RoundAt(at_));
  const bool restarts = rounds < 0 && at_ - recording_.rounds[static_cast<size_t>(now)].at > kJustBegun;
  const int last = static_cast<int>(recording_.rounds.size()) - 1;
  if (rounds > 0 && now == last) return;
  const auto& round =
      recording_.rounds[static_cast<size_t>(std::clamp(restarts ? now : now + rounds, 0, last))];
  goTo(round);
  at_ = round.at;  // for the next key
}

void WatchBar::Slide(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
    case QAbstractSlider::SliderPageStepAdd:
      GoBy(1);
      break;
    case QAbstractSlider::SliderSingleStepSub:
    case QAbstractSlider::SliderPageStepSub:
      GoBy(-1);
      break;
    case QAbstractSlider::SliderToMinimum:
      GoBy(-static_cast<int>(recording_.rounds.size()));
      break;
    default:
      return;
  }
  slider_->setSliderPosition(static_cast<int>(at_ / kTick));
}

void WatchBar::ShowPlace(long long at) {
  at_ = at;
  if (!slider_->isSliderDown()) {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(static_cast<int>(at / kTick));
  }
  QString text = Clock(at) + " of " + Clock(recording_.length);
  if (!recording_.rounds.empty() && at >= recording_.rounds.front().at)
    text = QString::fromStdString(recording_.rounds[RoundAt(at)].name) + ", " + text;
  if (place_->text() != text) place_->setText(text);
}

void WatchBar::ShowComment(const QString& comment) {
  comment_->setText(comment);
  if (comment.isEmpty() || !comment_->isHidden()) return;
  comment_->show();
  adjustSize();
}

void WatchBar::PlaceBelow(const QWidget& window) {
  adjustSize();
  if (!WindowsHavePlaces()) return;
  const QRect frame = window.frameGeometry(), room = window.screen()->availableGeometry();
  constexpr int kTitle = 32;
  const int left = frame.center().x() - width() / 2;
  const int top = std::min(frame.bottom() + kTitle, room.bottom() - height());
  move(std::clamp(left, room.left(), std::max(room.left(), room.right() - width())), top);
}

bool WatchBar::Take(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Space:
      pause_->toggle();
      return true;
    case Qt::Key_Right:
    case Qt::Key_Period:
      step_ = true;
      return true;
    case Qt::Key_PageDown:
      GoBy(1);
      return true;
    case Qt::Key_PageUp:
      GoBy(-1);
      return true;
    case Qt::Key_Home:
      GoBy(-static_cast<int>(recording_.rounds.size()));
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      SetSpeed(std::min(speed_ * 2, 8));
      return true;
    case Qt::Key_Minus:
      SetSpeed(std::max(speed_ / 2, 1));
      return true;
    case Qt::Key_Escape:
      close();
      return true;
    default:
      break;
  }
  const int digit = key.key() - Qt::Key_0;
  if (std::ranges::find(kSpeeds, digit) == std::end(kSpeeds)) return false;
  SetSpeed(digit);
  return true;
}

void WatchBar::keyPressEvent(QKeyEvent* event) {
  if (!Take(*event)) QWidget::keyPressEvent(event);
}

void WatchBar::closeEvent(QCloseEvent*) {
  if (left) left();
}
