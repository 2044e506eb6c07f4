#pragma once

#include "core/ImageListOperations.h"
#include "core/generation/RunForecast.h"
#include "ui/model/dialogs/RenameModel.h"

#include <cstddef>
#include <string>

namespace vantorium::ui {

/// The rules of frmRunWarnings: what would go wrong in a run, and new names for the images that are the reason.
class RunWarningsModel {
 public:
  /// `forecast` has findings. The first one is chosen.
  RunWarningsModel(generation::RunForecast& forecast, core::Project& project, core::ImageListOperations& images)
      : forecast_(forecast), project_(project), images_(images) {}

  [[nodiscard]] const generation::Findings& Found() const { return forecast_.Found(); }
  /// The line of a finding: the image, if there is one, and what would go wrong.
  [[nodiscard]] std::string Line(std::size_t finding) const;

  void Choose(std::size_t finding) { chosen_ = finding; }
  [[nodiscard]] std::size_t Chosen() const { return chosen_; }
  /// Whether another name of the image could help.
  [[nodiscard]] bool CanRename() const;
  /// The model for frmRename, with the name of the chosen finding's image.
  [[nodiscard]] RenameModel NameToChange() const;
  /// Gives the image the accepted name, or all images if so chosen, and looks again. The image becomes the current and
  /// the only selected one. The finding in the place of the chosen one is chosen, or the last one.
  void Rename(const RenameModel& answer);

 private:
  [[nodiscard]] const generation::Finding& ChosenFinding() const { return Found().at(chosen_); }

  generation::RunForecast& forecast_;
  core::Project& project_;
  core::ImageListOperations& images_;
  std::size_t chosen_ = 0;
};

}  // namespace vantorium::ui
