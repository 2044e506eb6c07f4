#include "app/batch/TerminalProgress.h"

namespace vantorium {

void TerminalProgress::Show() {
  terminal_.StartClock();
  loop_.Watch(this);
}

void TerminalProgress::SetText3(const std::string& text, bool append) {
  if (!append) log_.clear();
  log_ += text;
}

void TerminalProgress::SetProgress(std::int32_t value) {
  value_ = value;
  terminal_.ShowProgress(value_, maximum_);
}

}  // namespace vantorium
