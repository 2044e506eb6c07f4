#pragma once

#include <string>

namespace vantorium::env {

enum class BoxKind { Plain, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

/// Shows messages to the user: in a message box on the desktop, on standard error without windows.
class MessageBoxPort {
 public:
  virtual ~MessageBoxPort() = default;

  /// Shows `text` under `title` and waits for the answer. Line breaks in `text` are CR, LF or CR LF.
  virtual BoxAnswer Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) = 0;

  void Critical(const std::string& title, const std::string& text) {
    Show(BoxKind::Critical, BoxButtons::Ok, title, text);
  }
  /// Informs about a list that may be long: `lines` in the order given, with a line break between two.
  virtual void ShowList(const std::string& title, const std::string& text, const std::string& lines) {
    Show(BoxKind::Information, BoxButtons::Ok, title, text + "\r\r" + lines);
  }
  [[nodiscard]] bool AskYesNo(const std::string& title, const std::string& text) {
    return Show(BoxKind::Question, BoxButtons::YesNo, title, text) == BoxAnswer::Yes;
  }
};

}  // namespace vantorium::env
