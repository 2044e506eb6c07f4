#pragma once

#include "env/MessageBoxPort.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmHTML;
}

namespace vantorium {

/// Custom code in front of something and behind it.
struct HeaderAndFooter {
  std::string header;
  std::string footer;
  bool operator==(const HeaderAndFooter&) const = default;
};

/// The editor of two texts of custom code. Its button refuses texts that a project file can't keep, the header first,
/// and so does Escape; the title bar closes it with the texts as they are.
class frmHTML : public QDialog {
  Q_OBJECT

 public:
  frmHTML(const std::string& caption, HeaderAndFooter texts, MessageBoxPort& boxes, QWidget* owner);
  ~frmHTML() override;

  /// As the user left them.
  [[nodiscard]] HeaderAndFooter Texts() const;

  /// What the button and Escape do.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::unique_ptr<Ui::frmHTML> ui_;
  HeaderAndFooter shown_;
  MessageBoxPort& boxes_;
};

/// Shows the editor and waits until it is closed. Returns the texts as the user left them, with CR LF.
[[nodiscard]] HeaderAndFooter EditHTML(const std::string& caption, const HeaderAndFooter& texts, MessageBoxPort& boxes,
                                       QWidget* owner);

}  // namespace vantorium
