#pragma once

#include <string>

namespace vantorium::ui {

/// The version of the program; `revision` counts its builds.
struct ProgramVersion {
  int major = 0;
  int minor = 0;
  int revision = 0;

  /// As frmAbout shows it: "Version 3.0 (Build 0)".
  [[nodiscard]] std::string Text() const {
    return "Version " + std::to_string(major) + "." + std::to_string(minor) + " (Build " + std::to_string(revision) +
           ")";
  }
};

}  // namespace vantorium::ui
