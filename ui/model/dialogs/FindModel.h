#pragma once

#include <string>

namespace vantorium {

/// The question for the name of an image to look for. It lives as long as the list's page, so that the last text is
/// offered again.
class FindModel {
 public:
  /// The dialog comes up.
  void Open() { Result.clear(); }
  /// The text of the field, as TypedName makes it.
  void SetTitle(const std::string& title);
  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] bool CanFind() const { return !title_.empty(); }
  void Accept() { Result = title_; }
  void Cancel() { Result.clear(); }

  std::string Result;  ///< what to look for; empty: nothing

 private:
  std::string title_;
};

}  // namespace vantorium
