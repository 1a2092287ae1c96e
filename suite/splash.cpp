#include "suite/splash.h"

Splash::Splash(GameControls& controls, modCommon& common, const GamePlan& plan)
    : controls_(controls), common_(common), plan_(plan) {
  controls.Timer4.Interval = plan.splashInterval;
  controls.Timer4.OnTimer = [this] { Timer4_Timer(); };
}

void Splash::Load() {
  controls_.lblCompanyProduct.Caption = "Quillmark Presents";
  controls_.lblVersion.Caption = "Version 4.0";
  controls_.lblProductName.Caption = common_.AppTitle;
  controls_.frmSplash.Visible = true;
}

void Splash::Show(bool visible) {
  controls_.frmSplash.Visible = visible;
  controls_.Timer4.Enabled = visible;
}

// Where the plan names a face, the frames of the pictures are left alone.
void Splash::Timer4_Timer() {
  Image& image = controls_.imgSplashImage(position_);
  image.ZOrder(1);
  if (forward_) {
    const char* face = plan_.names.splashFace;
    image.Picture = showBack_ ? common_.ImageList2("BACK")
                    : face    ? common_.ImageList2(face)
                              : common_.RandomInteger(kFirstFace, kLastFace);
    if (!face) image.BorderStyle = showBack_ ? 0 : 1;
    if (++position_ == 4) {
      forward_ = false;
      position_ = 3;
    }
  } else if (--position_ == -1) {
    forward_ = true;
    position_ = 0;
    showBack_ = !showBack_;
  }
}
