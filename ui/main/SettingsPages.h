#pragma once

#include "core/GalleryProject.h"

#include <QObject>
#include <QWidget>
#include <string_view>
#include <vector>

namespace vantorium::ui {

/// Shows, hides, enables and labels the controls of the settings pages as the settings require.
class SettingsPages : public QObject {
  Q_OBJECT

 public:
  /// The controls are on `form`, which must outlive this. Throws std::logic_error if one is missing.
  explicit SettingsPages(QWidget& form);

  void Refresh(const core::GalleryProject& project);

 private:
  template <typename Control>
  [[nodiscard]] Control& Find(std::string_view name) const;
  void RefreshAlignments(const core::GalleryProject& project) const;
  void RefreshLayoutPicture(const core::GalleryProject& project);

  QWidget& form_;
  std::vector<QWidget*> controls_;  ///< those of ControlRules, in its order
  int layoutPicture_ = 0;
};

}  // namespace vantorium::ui
