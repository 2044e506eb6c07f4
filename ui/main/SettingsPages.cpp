#include "ui/main/SettingsPages.h"

#include "core/ProjectFields.h"
#include "ui/model/main/ControlRules.h"
#include "ui/qt/QtText.h"

#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QSignalBlocker>
#include <algorithm>
#include <stdexcept>

namespace vantorium::ui {
namespace {

constexpr QSize kLayoutPictureSize{160, 120};

/// Keeps the space of a hidden control empty, so that nothing else moves.
void KeepRoom(QWidget& control) {
  QSizePolicy policy = control.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  control.setSizePolicy(policy);
}

}  // namespace

SettingsPages::SettingsPages(QWidget& form) : form_(form) {
  for (const ControlRule& rule : ControlRules()) {
    QWidget& control = Find<QWidget>(rule.control);
    controls_.push_back(&control);
    if (rule.property == ControlProperty::Visible) KeepRoom(control);
  }
}

template <typename Control>
Control& SettingsPages::Find(std::string_view name) const {
  auto* control = form_.findChild<Control*>(ToQt(name));
  if (control == nullptr) throw std::logic_error("no control " + std::string(name));
  return *control;
}

void SettingsPages::Refresh(const core::GalleryProject& project) {
  for (std::size_t i = 0; i < controls_.size(); ++i) {
    const ControlRule& rule = ControlRules()[i];
    QWidget& control = *controls_[i];
    if (rule.property == ControlProperty::Visible) {
      control.setVisible(rule.holds(project));
    } else {
      control.setEnabled(rule.holds(project));
    }
  }
  for (const UnitLabel& label : UnitLabels()) {
    Find<QLabel>(label.control).setText(ToQt(core::IsOn(project.*label.isPercent) ? label.inPercent : label.inPixels));
  }
  RefreshAlignments(project);
  RefreshLayoutPicture(project);
}

void SettingsPages::RefreshAlignments(const core::GalleryProject& project) const {
  for (const AlignmentList& list : AlignmentLists()) {
    auto& control = Find<QComboBox>(core::FieldOf(list.alignment).name);
    const core::ValueList texts = core::AlignmentTexts(IsAboveOrBelow(list, project));
    const QSignalBlocker quiet(control);
    for (int i = 0; i < control.count(); ++i) control.setItemText(i, ToQt(texts[static_cast<std::size_t>(i)]));
    control.setCurrentIndex(std::max<int>(project.*list.alignment, 0));
  }
}

void SettingsPages::RefreshLayoutPicture(const core::GalleryProject& project) {
  if (layoutPicture_ == LayoutPicture(project)) return;
  layoutPicture_ = LayoutPicture(project);
  auto& picture = Find<QLabel>("picLayoutType");
  const QIcon icon(QString(":/vantorium/layout-%1.svg").arg(layoutPicture_));
  picture.setPixmap(icon.pixmap(kLayoutPictureSize, picture.devicePixelRatioF()));
}

}  // namespace vantorium::ui
