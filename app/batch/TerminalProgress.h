#pragma once

#include "app/batch/BatchPorts.h"
#include "app/batch/Terminal.h"
#include "publish/ProgressModel.h"

namespace vantorium::batch {

/// The progress window of a batch run, which shows its bar and texts on the terminal. Nobody reads it after a failure,
/// so it closes itself.
class TerminalProgress : public publish::ProgressModel {
 public:
  TerminalProgress(publish::UploadLog& log, Terminal& terminal, InterruptLoop& loop)
      : publish::ProgressModel(log), terminal_(terminal), loop_(loop) {}
  ~TerminalProgress() override;
  TerminalProgress(const TerminalProgress&) = delete;
  TerminalProgress& operator=(const TerminalProgress&) = delete;

  void OfferClose() override;

 protected:
  void Draw(publish::ProgressPart part) override;

 private:
  Terminal& terminal_;
  InterruptLoop& loop_;
};

}  // namespace vantorium::batch
