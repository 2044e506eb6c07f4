#include "ui/main/MainStatusBar.h"

#include "ui/qt/QtText.h"

#include <QStyle>

namespace vantorium::ui {

MainStatusBar::MainStatusBar(QWidget* parent) : QStatusBar(parent) {
  status_.setObjectName("sbMainText");
  status_.setTextFormat(Qt::PlainText);
  imageCount_.setObjectName("sbMainCount");
  imageCount_.setContentsMargins(0, 0, style()->pixelMetric(QStyle::PM_LayoutRightMargin), 0);
  addWidget(&status_, 1);
  addPermanentWidget(&imageCount_);
  status_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long text must not widen the window
}

void MainStatusBar::ShowStatus(const std::string& text) {
  status_.setText(ToQt(text));
}

void MainStatusBar::ShowImageCount(const std::string& text) {
  imageCount_.setText(ToQt(text));
}

}  // namespace vantorium::ui
