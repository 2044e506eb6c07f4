#pragma once

#include <QLabel>
#include <QStatusBar>
#include <string>

namespace vantorium::ui {

/// The main window's status bar: the running status text, and the number of images.
class MainStatusBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit MainStatusBar(QWidget* parent = nullptr);

  void ShowStatus(const std::string& text);
  void ShowImageCount(const std::string& text);

 private:
  QLabel status_;
  QLabel imageCount_;
};

}  // namespace vantorium::ui
