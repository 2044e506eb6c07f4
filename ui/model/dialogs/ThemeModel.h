#pragma once

#include "core/Project.h"
#include "core/Theme.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::ui {

/// The rules of frmApplyTheme: the choice of a theme, whose settings the project takes over.
class ThemeModel {
 public:
  /// `themes`: at least one; the first one is chosen.
  ThemeModel(std::vector<core::ThemeFile> themes, core::Project& project, const env::PathMap& paths,
             env::MessageBoxPort& boxes, env::EventLoop& events)
      : themes_(std::move(themes)), project_(project), paths_(paths), boxes_(boxes), events_(events) {}

  [[nodiscard]] const std::vector<core::ThemeFile>& Themes() const { return themes_; }
  /// The name under the theme's picture: that of its file, beginning with a capital.
  [[nodiscard]] std::string Caption(std::size_t theme) const;

  void Choose(std::size_t theme) { chosen_ = theme; }
  [[nodiscard]] std::size_t Chosen() const { return chosen_; }

  /// Reads the chosen theme and, if the user confirms it, gives the project its settings. Returns false if the theme
  /// cannot be read, after message boxes that say why, or if the user says no; the project is then unchanged.
  [[nodiscard]] bool Accept();

 private:
  std::vector<core::ThemeFile> themes_;
  core::Project& project_;
  const env::PathMap& paths_;
  env::MessageBoxPort& boxes_;
  env::EventLoop& events_;
  std::size_t chosen_ = 0;
};

}  // namespace vantorium::ui
