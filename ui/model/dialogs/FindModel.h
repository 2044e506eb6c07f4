#pragma once

#include <string>

namespace vantorium::ui {

/// The dialog that asks for the name of an image to find. It lives as long as the list's page, so that it offers the
/// last text again.
class FindModel {
 public:
  /// Call when the dialog opens.
  void Open() { Result.clear(); }
  /// Sets the text of the field, converted by TypedName.
  void SetTitle(const std::string& title);
  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] bool CanFind() const { return !title_.empty(); }
  void Accept() { Result = title_; }
  void Cancel() { Result.clear(); }

  std::string Result;  ///< the name to find; empty for none

 private:
  std::string title_;
};

}  // namespace vantorium::ui
