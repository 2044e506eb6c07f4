#pragma once

#include "env/MessageBoxPort.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmHTMLSingle;
}

namespace vantorium::ui {

/// Edits one text of custom code. Its button and Escape refuse a text that a project file can't store; the title bar
/// closes it and keeps the text as it is.
class frmHTMLSingle : public QDialog {
  Q_OBJECT

 public:
  frmHTMLSingle(const std::string& caption, const std::string& text, env::MessageBoxPort& boxes, QWidget* owner);
  ~frmHTMLSingle() override;

  /// The text as the user left it.
  [[nodiscard]] std::string Text() const;

  /// Called by the button and by Escape.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::unique_ptr<Ui::frmHTMLSingle> ui_;
  std::string shown_;
  env::MessageBoxPort& boxes_;
};

/// Shows the editor and waits until it is closed. Returns the text as the user left it, with CR LF.
[[nodiscard]] std::string EditHTMLSingle(const std::string& caption, const std::string& text,
                                         env::MessageBoxPort& boxes, QWidget* owner);

}  // namespace vantorium::ui
