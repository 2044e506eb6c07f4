#pragma once

#include "app/batch/BatchPorts.h"
#include "app/batch/Terminal.h"
#include "publish/ProgressWindow.h"

#include <string>

namespace vantorium {

/// The progress window of a batch run: its bar and texts on the terminal. Nobody reads it after a failure, so it closes
/// itself.
class TerminalProgress : public ProgressWindow {
 public:
  TerminalProgress(Terminal& terminal, InterruptLoop& loop) : terminal_(terminal), loop_(loop) {}
  ~TerminalProgress() override {
    loop_.Watch(nullptr);
    terminal_.EraseBar();
  }
  TerminalProgress(const TerminalProgress&) = delete;
  TerminalProgress& operator=(const TerminalProgress&) = delete;

  void Show() override;
  void SetCaption(const std::string& /*text*/) override {}
  void SetText1(const std::string& text) override { terminal_.ShowStatus(text); }
  void SetText2(const std::string& text) override { terminal_.ShowStatus(text); }
  void SetText3(const std::string& text, bool append) override;
  void SetMax(std::int32_t maximum) override { maximum_ = maximum; }
  [[nodiscard]] std::int32_t GetMax() const override { return maximum_; }
  void SetProgress(std::int32_t value) override;
  [[nodiscard]] std::int32_t GetProgress() const override { return value_; }
  void SetFileProgress(std::int16_t /*percentage*/) override {}
  [[nodiscard]] bool IsCancelled() const override { return cancelled_; }
  void SetIsCancelled(bool cancelled) override { cancelled_ = cancelled; }
  void ShowBusyPointer(bool /*busy*/) override {}
  void OfferClose() override { CloseRequested = true; }
  [[nodiscard]] std::string LogBoxText() const override { return log_; }
  void WriteLog(const std::string& /*text*/) override {}

 private:
  Terminal& terminal_;
  InterruptLoop& loop_;
  std::int32_t maximum_ = 0;
  std::int32_t value_ = 0;
  bool cancelled_ = false;
  std::string log_;
};

}  // namespace vantorium
