#include "env/BrowserEntry.h"

namespace vantorium {

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

}  // namespace vantorium
