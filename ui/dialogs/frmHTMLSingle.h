#pragma once

#include "env/MessageBoxPort.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmHTMLSingle;
}

namespace vantorium {

/// The editor of one text of custom code. Its button refuses a text that a project file can't keep, and so does Escape;
/// the title bar closes it with the text as it is.
class frmHTMLSingle : public QDialog {
  Q_OBJECT

 public:
  frmHTMLSingle(const std::string& caption, const std::string& text, MessageBoxPort& boxes, QWidget* owner);
  ~frmHTMLSingle() override;

  /// As the user left it.
  [[nodiscard]] std::string Text() const;

  /// What the button and Escape do.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::unique_ptr<Ui::frmHTMLSingle> ui_;
  std::string shown_;
  MessageBoxPort& boxes_;
};

/// Shows the editor and waits until it is closed. Returns the text as the user left it, with CR LF.
[[nodiscard]] std::string EditHTMLSingle(const std::string& caption, const std::string& text, MessageBoxPort& boxes,
                                         QWidget* owner);

}  // namespace vantorium
