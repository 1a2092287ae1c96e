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

constexpr int kTick = 100;  // milliseconds to a step of the slider

QToolButton* Button(QWidget* parent, const char* name, const QString& text, const QString& tip) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setText(text);
  button->setToolTip(tip);
  button->setAccessibleDescription(tip);
  return button;
}

}  // namespace

WatchBar::WatchBar(Watching& watching)
    : QWidget(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint), watching_(watching) {
  const Recording& recording = watching.recording;
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
  connect(pause_, &QToolButton::clicked, this, [this](bool paused) { watching_.SetPaused(paused); });
  auto* deed = Button(this, "deed", "Next Deed", "Right");
  connect(deed, &QToolButton::clicked, this, [this] { watching_.NextDeed(); });
  slider_ = new QSlider(Qt::Horizontal, this);
  slider_->setObjectName("place");
  slider_->setAccessibleName("Round");
  slider_->setToolTip("Page Up and Page Down: the round before and the next one");
  slider_->setRange(0, static_cast<int>(std::max(1ll, recording.length / kTick)));
  slider_->setTracking(false);
  slider_->setMinimumWidth(240);
  connect(slider_, &QSlider::actionTriggered, this, &WatchBar::Slide);
  connect(slider_, &QSlider::sliderReleased, this,
          [this] { watching_.GoTo(static_cast<long long>(slider_->sliderPosition()) * kTick); });
  place_ = new QLabel(this);
  place_->setObjectName("where");

  auto* row = new QHBoxLayout;
  row->addWidget(pause_);
  row->addWidget(deed);
  auto* group = new QButtonGroup(this);
  for (const int speed : Watching::kSpeeds) {
    auto* button = Button(this, qPrintable(QString("speed%1").arg(speed)), QString("x%1").arg(speed),
                          QString("%1 times as fast, key %1").arg(speed));
    button->setCheckable(true);
    group->addButton(button);
    row->addWidget(button);
    speeds_.push_back(button);
    connect(button, &QToolButton::clicked, this, [this, speed] { watching_.SetSpeed(speed); });
  }
  row->addWidget(slider_, 1);
  row->addWidget(place_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(comment_);
  column->addLayout(row);
  Fit();
}

void WatchBar::Fit() {
  QFont letters = style::Letters(11, true);
  letters.setPixelSize(static_cast<int>(std::lround(letters.pixelSize() * style::ZoomOf(this))));
  comment_->setFont(letters);
  comment_->setMinimumHeight(2 * comment_->fontMetrics().height());
  place_->setText(QString::fromStdString(watching_.Place(watching_.recording.length)));  // the longest text
  place_->setMinimumWidth(place_->sizeHint().width() + place_->fontMetrics().horizontalAdvance("00"));
  Show();
  adjustSize();
}

void WatchBar::Show() {
  pause_->setChecked(watching_.Paused());
  for (size_t i = 0; i < speeds_.size(); ++i)
    speeds_[i]->setChecked(Watching::kSpeeds[i] == watching_.Speed());
  if (!slider_->isSliderDown()) {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(static_cast<int>(watching_.At() / kTick));
  }
  const QString text = QString::fromStdString(watching_.Place(watching_.At()));
  if (place_->text() != text) place_->setText(text);
  const QString comment = QString::fromStdString(watching_.Comment());
  if (comment_->text() != comment) ShowComment(comment);
}

void WatchBar::Slide(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
    case QAbstractSlider::SliderPageStepAdd:
      watching_.GoBy(1);
      break;
    case QAbstractSlider::SliderSingleStepSub:
    case QAbstractSlider::SliderPageStepSub:
      watching_.GoBy(-1);
      break;
    case QAbstractSlider::SliderToMinimum:
      watching_.Take("Home");
      break;
    default:
      return;
  }
  slider_->setSliderPosition(static_cast<int>(watching_.At() / kTick));
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
      return watching_.Take("Space");
    case Qt::Key_Right:
      return watching_.Take("Right");
    case Qt::Key_PageDown:
      return watching_.Take("PageDown");
    case Qt::Key_PageUp:
      return watching_.Take("PageUp");
    case Qt::Key_Home:
      return watching_.Take("Home");
    case Qt::Key_Escape:
      close();
      return true;
    default:
      break;
  }
  const int letter = key.key();
  return letter < 0x7f && watching_.Take(std::string(1, static_cast<char>(letter)));
}

void WatchBar::keyPressEvent(QKeyEvent* event) {
  if (!Take(*event)) QWidget::keyPressEvent(event);
}

void WatchBar::closeEvent(QCloseEvent*) { watching_.Leave(); }
