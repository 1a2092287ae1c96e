#include "window/desktop/view/windows.h"

#include <QWindow>

#include "window/desktop/view/form_window.h"
#include "window/platform.h"

void Windows::Clear() {
  for (const auto& [form, window] : windows_) {
    window->Leave();
    delete window;
  }
  windows_.clear();
}

FormWindow* Windows::Of(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second;
}

// It may have been the window itself that has led to this.
void Windows::Remove(const Form& form) {
  FormWindow* const window = Of(form);
  if (!window) return;
  windows_.erase(&form);
  window->Forget();
  LeaveActive(*window);
  window->Leave();
  window->deleteLater();
}

FormWindow* Windows::Front() const {
  for (const Form* form : platform_.forms)
    if (FormWindow* window = Of(*form); window && form->Visible && window->isVisible()) return window;
  return nullptr;
}

QWidget* Windows::Next(const QWidget* going) const {
  for (auto modal = modals_.rbegin(); modal != modals_.rend(); ++modal)
    if (*modal && *modal != going && (*modal)->isVisible()) return *modal;
  return Front();
}

void Windows::LeaveActive(const QWidget& going) const {
  QWidget* below = Front();
  for (QWidget* modal : modals_) {
    if (!modal || modal == &going || !modal->isVisible()) continue;
    if (modal->windowHandle()->transientParent() == going.windowHandle())
      modal->windowHandle()->setTransientParent(below ? below->windowHandle() : nullptr);
    below = modal;
  }
  if (below && going.isActiveWindow()) below->activateWindow();
}
