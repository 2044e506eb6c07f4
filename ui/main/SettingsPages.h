#pragma once

#include "core/GalleryProject.h"

#include <QObject>
#include <QWidget>
#include <string_view>
#include <vector>

namespace vantorium {

/// Shows, hides, enables and words the controls of the settings pages as the settings have it.
class SettingsPages : public QObject {
  Q_OBJECT

 public:
  /// Controls below `form`, which outlives this. Throws std::logic_error for one that is not there.
  explicit SettingsPages(QWidget& form);

  void Refresh(const GalleryProject& project);

 private:
  template <typename Control>
  [[nodiscard]] Control& Find(std::string_view name) const;
  void RefreshAlignments(const GalleryProject& project) const;
  void RefreshLayoutPicture(const GalleryProject& project);

  QWidget& form_;
  std::vector<QWidget*> controls_;  ///< of ControlRules, in its order
  int layoutPicture_ = 0;
};

}  // namespace vantorium
