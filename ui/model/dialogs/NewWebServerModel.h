#pragma once

#include <string>

namespace vantorium::ui {

/// The dialog that asks for the name of a new server.
class NewWebServerModel {
 public:
  void SetText(const std::string& text) { text_ = text; }
  [[nodiscard]] const std::string& Text() const { return text_; }
  [[nodiscard]] bool CanAccept() const { return !text_.empty(); }
  void Accept() {
    serverName_ = text_;
    isCancelled_ = false;
  }
  void Cancel() { isCancelled_ = true; }

  /// The confirmed name.
  [[nodiscard]] const std::string& GetServerName() const { return serverName_; }
  [[nodiscard]] bool IsCancelled() const { return isCancelled_; }

 private:
  std::string text_ = "Server";
  std::string serverName_;
  bool isCancelled_ = false;
};

}  // namespace vantorium::ui
