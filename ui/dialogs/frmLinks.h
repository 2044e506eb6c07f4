#pragma once

#include "ui/model/dialogs/LinksModel.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <functional>
#include <memory>
#include <string>

namespace Ui {
class frmLinks;
}

namespace vantorium::ui {

/// The window of LinksModel. Closing it in any way does what its button does.
class frmLinks : public QDialog {
  Q_OBJECT

 public:
  /// `model` and `browser` must outlive the form. If `disabledGraphicLabel` is empty, the label keeps its own text.
  frmLinks(const std::string& title, const std::string& disabledGraphicLabel, LinksModel& model, FileBrowser& browser,
           QWidget* owner);
  ~frmLinks() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void done(int result) override;

 private:
  void Bind(QLineEdit& control, QAbstractButton& button, LinksModel::Graphic graphic, FileBrowser& browser);
  void ShowGraphics();

  std::unique_ptr<Ui::frmLinks> ui_;
  LinksModel& model_;
};

/// Lets the user edit a page link in a dialog over `owner`, which may be null. `disabledGraphicLabel` is the label
/// above the second graphic, empty if there is none. `graphicsFolder` is where the user last browsed for graphics.
/// `edited` is called at each change, because no change can be cancelled.
[[nodiscard]] core::LinkSettings EditLink(const std::string& title, const std::string& disabledGraphicLabel,
                                          const core::LinkSettings& link, std::string& graphicsFolder,
                                          FileBrowser& browser, const env::PathMap& paths,
                                          const std::function<void()>& edited, QWidget* owner);

}  // namespace vantorium::ui
