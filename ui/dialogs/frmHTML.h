#pragma once

#include "env/MessageBoxPort.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmHTML;
}

namespace vantorium::ui {

/// Custom code before and after something.
struct HeaderAndFooter {
  std::string header;
  std::string footer;
  bool operator==(const HeaderAndFooter&) const = default;
};

/// Edits two texts of custom code. Its button and Escape refuse texts that a project file can't store, and check the
/// header first; the title bar closes it and keeps the texts as they are.
class frmHTML : public QDialog {
  Q_OBJECT

 public:
  frmHTML(const std::string& caption, HeaderAndFooter texts, env::MessageBoxPort& boxes, QWidget* owner);
  ~frmHTML() override;

  /// The texts as the user left them.
  [[nodiscard]] HeaderAndFooter Texts() const;

  /// Called by the button and by Escape.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::unique_ptr<Ui::frmHTML> ui_;
  HeaderAndFooter shown_;
  env::MessageBoxPort& boxes_;
};

/// Shows the editor and waits until it is closed. Returns the texts as the user left them, with CR LF.
[[nodiscard]] HeaderAndFooter EditHTML(const std::string& caption, const HeaderAndFooter& texts,
                                       env::MessageBoxPort& boxes, QWidget* owner);

}  // namespace vantorium::ui
