#include "ui/model/dialogs/BrowserEntry.h"

#include <filesystem>
#include <system_error>

namespace vantorium::ui {

void BrowserEntry::ComeUp() {
  cancelled_ = true;
  EnableOK();
}

void BrowserEntry::ChangeName(const std::string& text) {
  texts_.Name = text;
  EnableOK();
}

void BrowserEntry::ChangeLocation(const std::string& text) {
  texts_.Location = text;
  EnableOK();
}

void BrowserEntry::LeaveLocation(const env::PathMap& paths) {
  std::error_code ignored;
  std::string& location = texts_.Location;
  if (location.find(' ') != std::string::npos && !std::filesystem::exists(location, ignored)) return;
  location = paths.ToTextIfNative(location);
}

void BrowserEntry::TakeExecutable(const std::string& path) {
  if (path.empty()) return;
  texts_.Location = path;
  isOKEnabled_ = true;
}

void BrowserEntry::PressOK() {
  if (isOKEnabled_) cancelled_ = false;
}

void BrowserEntry::EnableOK() {
  isOKEnabled_ = !texts_.Name.empty() && !texts_.Location.empty();
}

}  // namespace vantorium::ui
