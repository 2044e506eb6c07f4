#include "app/batch/TerminalProgress.h"

namespace vantorium {

TerminalProgress::~TerminalProgress() {
  loop_.Watch(nullptr);
  terminal_.EraseBar();
}

void TerminalProgress::OfferClose() {
  ProgressModel::OfferClose();
  CloseRequested = true;
}

void TerminalProgress::Draw(ProgressPart part) {
  switch (part) {
    case ProgressPart::Window:
      terminal_.StartClock();
      return loop_.Watch(this);
    case ProgressPart::Text1:
      return terminal_.ShowStatus(Text1());
    case ProgressPart::Text2:
      return terminal_.ShowStatus(Text2());
    case ProgressPart::Progress:
      return terminal_.ShowProgress(GetProgress(), GetMax());
    default:
      return;
  }
}

}  // namespace vantorium
