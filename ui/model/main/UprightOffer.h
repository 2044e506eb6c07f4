#pragma once

#include "core/Project.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>
#include <unordered_set>
#include <vector>

namespace vantorium::ui {

/// Photographs to look at after some were added: native paths.
struct LyingSearch {
  std::vector<std::filesystem::path> added;
  std::vector<std::filesystem::path> earlier;
};

/// Returns whether photographs that lie were added for the first time: one of `added` says that it must be turned, and
/// none of `earlier` does. Reads only the headers of the files. Returns false after a stop.
[[nodiscard]] bool FindsFirstLying(const LyingSearch& search, const std::stop_token& stop);

/// Decides when to offer that the photographs of a project be turned upright: once, when photographs that lie are added
/// for the first time.
class UprightOffer {
 public:
  /// Both must outlive the offer.
  UprightOffer(const core::Project& project, const env::PathMap& paths) : project_(project), paths_(paths) {}

  /// Call around what adds photographs. AfterAdding returns what to look at; nullopt if the answer would not matter:
  /// nothing was added, the photographs are turned already, or the user was asked.
  void BeforeAdding();
  [[nodiscard]] std::optional<LyingSearch> AfterAdding() const;

  /// Asks, unless the photographs are turned by now or the user was asked. Returns whether the user said yes.
  [[nodiscard]] bool Ask(env::MessageBoxPort& boxes);
  /// The next project may be asked about.
  void ForgetProject() { asked_ = false; }

 private:
  [[nodiscard]] bool IsOpen() const { return !asked_ && project_.settings.checkImagesUpright != 1; }

  const core::Project& project_;
  const env::PathMap& paths_;
  std::unordered_set<std::string> names_;  // of the images before others were added
  bool asked_ = false;
};

}  // namespace vantorium::ui
