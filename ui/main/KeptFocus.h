#pragma once

#include <QPointer>
#include <QWidget>
#include <array>
#include <utility>

namespace vantorium::ui {

/// Disables a window and enables it again. A disabled window loses its focus, and its dialogs do with it: gives it back
/// to the window and to one dialog, so that the user can type on after a save.
class KeptFocus {
 public:
  void Disable(QWidget& window, const QWidget& dialog) {
    if (window.isEnabled()) focus_ = {window.focusWidget(), dialog.focusWidget()};
    window.setEnabled(false);
  }
  void Enable(QWidget& window) {
    window.setEnabled(true);
    for (const QPointer<QWidget>& control : std::exchange(focus_, {})) {
      // The window itself is not visible yet while it starts.
      if (control != nullptr && control->isVisibleTo(control->window())) control->setFocus();
    }
  }

 private:
  std::array<QPointer<QWidget>, 2> focus_;
};

}  // namespace vantorium::ui
