#include "app/batch/TerminalProgress.h"

namespace vantorium::batch {

TerminalProgress::~TerminalProgress() {
  loop_.Watch(nullptr);
  terminal_.EraseBar();
}

void TerminalProgress::OfferClose() {
  publish::ProgressModel::OfferClose();
  CloseRequested = true;
}

void TerminalProgress::Draw(publish::ProgressPart part) {
  switch (part) {
    case publish::ProgressPart::Window:
      terminal_.StartClock();
      return loop_.Watch(this);
    case publish::ProgressPart::Text1:
      return terminal_.ShowStatus(Text1());
    case publish::ProgressPart::Text2:
      return terminal_.ShowStatus(Text2());
    case publish::ProgressPart::Progress:
      return terminal_.ShowProgress(GetProgress(), GetMax());
    default:
      return;
  }
}

}  // namespace vantorium::batch
