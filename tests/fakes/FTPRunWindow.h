#pragma once

#include "publish/CancelState.h"
#include "publish/ProgressWindow.h"

#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records what the FTP client reports to the window of its run.
class FTPRunWindow : public publish::ProgressWindow {
 public:
  void Show() override {}
  void SetCaption(const std::string& /*text*/) override {}
  void SetText1(const std::string& /*text*/) override {}
  void SetText2(const std::string& /*text*/) override {}
  void SetText3(const std::string& text, bool append) override {
    if (!append) log.clear();
    log += text;
  }
  void SetMax(std::int32_t /*maximum*/) override {}
  [[nodiscard]] std::int32_t GetMax() const override { return 0; }
  void SetProgress(std::int32_t /*value*/) override {}
  [[nodiscard]] std::int32_t GetProgress() const override { return 0; }
  void SetFileProgress(std::int16_t percentage) override { percentages.push_back(percentage); }
  [[nodiscard]] bool IsCancelled() const override { return false; }
  void SetIsCancelled(bool /*cancelled*/) override {}
  void ShowBusyPointer(bool /*busy*/) override {}
  void OfferClose() override {}
  [[nodiscard]] std::string LogBoxText() const override { return log; }
  void WriteLog(const std::string& /*text*/) override {}

  std::string log;
  std::vector<std::int16_t> percentages;
};

class CancelSwitch : public publish::CancelState {
 public:
  [[nodiscard]] bool CancelRequested() const override { return isRequested; }

  bool isRequested = false;
};

}  // namespace vantorium::fakes
