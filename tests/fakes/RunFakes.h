#pragma once

#include "core/generation/RunHost.h"
#include "env/RuntimeFailure.h"
#include "env/Shell.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FixedClock.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vantorium::fakes {

/// The calls of all ports of a run, in order.
using Journal = std::vector<std::string>;

/// Adds its calls to the run's journal. Can be told to fail.
class JournalingShell : public env::Shell {
 public:
  explicit JournalingShell(Journal& journal) : journal_(journal) {}

  void Beep(env::BeepKind kind) override {
    journal_.emplace_back(kind == env::BeepKind::Information ? "beep information" : "beep warning");
  }
  void OpenFile(const std::string& path) override {
    journal_.push_back("open " + path);
    if (fails) throw env::RuntimeFailure(env::FailureKind::FileNotFound);
  }
  void Start(const env::ShellCommand& command, const env::StartFailed& failed) override {
    std::string line = "start";
    for (const std::string& word : command.words) line += " " + word;
    journal_.push_back(line);
    if (startsThatFail-- <= 0) return;
    later = [failed, program = command.words.front()] {
      failed(env::RuntimeFailure(env::FailureKind::FileAccess, "\"" + program + "\" failed"));
    };
    if (!failsLater) LetFail();
  }
  /// Reports that the program that was started last has failed.
  void LetFail() { std::exchange(later, nullptr)(); }

  bool fails = false;           ///< whether OpenFile throws
  int startsThatFail = 0;       ///< number of calls of Start that fail before one succeeds
  bool failsLater = false;      ///< failures of Start wait for LetFail
  std::function<void()> later;  ///< what LetFail does

 private:
  Journal& journal_;
};

/// The calls of a ProgressWindow. The record outlives the window, which a run destroys at its end.
struct ProgressRecord {
  std::string caption;
  std::string text1;
  std::vector<std::string> texts2;
  std::string log;
  std::string written;
  std::int32_t maximum = 0;
  std::vector<std::int32_t> values;
  std::vector<std::int16_t> filePercentages;
  bool cancelled = false;
  bool logToFile = false;
  bool unloaded = false;
};

class RecordingProgress : public publish::ProgressWindow {
 public:
  RecordingProgress(ProgressRecord& record, Journal& journal) : record_(record), journal_(journal) {}
  ~RecordingProgress() override {
    record_.unloaded = true;
    journal_.emplace_back("progress unloaded");
  }
  RecordingProgress(const RecordingProgress&) = delete;
  RecordingProgress& operator=(const RecordingProgress&) = delete;

  void Show() override {
    record_.logToFile = LogToFile;
    journal_.emplace_back("progress shown");
  }
  void SetCaption(const std::string& text) override { record_.caption = text; }
  void SetText1(const std::string& text) override { record_.text1 = text; }
  void SetText2(const std::string& text) override { record_.texts2.push_back(text); }
  void SetText3(const std::string& text, bool append) override { record_.log = append ? record_.log + text : text; }
  void SetMax(std::int32_t maximum) override { record_.maximum = maximum; }
  [[nodiscard]] std::int32_t GetMax() const override { return record_.maximum; }
  void SetProgress(std::int32_t value) override { record_.values.push_back(value); }
  [[nodiscard]] std::int32_t GetProgress() const override { return record_.values.empty() ? 0 : record_.values.back(); }
  void SetFileProgress(std::int16_t percentage) override { record_.filePercentages.push_back(percentage); }
  [[nodiscard]] bool IsCancelled() const override { return record_.cancelled; }
  void SetIsCancelled(bool cancelled) override { record_.cancelled = cancelled; }
  void ShowBusyPointer(bool busy) override { journal_.emplace_back(busy ? "progress busy" : "progress idle"); }
  void OfferClose() override {
    journal_.emplace_back("close offered");
    CloseRequested = closesAtOnce;
  }
  [[nodiscard]] std::string LogBoxText() const override { return record_.log; }
  void WriteLog(const std::string& text) override { record_.written += text; }

  bool closesAtOnce = true;

 private:
  ProgressRecord& record_;
  Journal& journal_;
};

class RecordingRunHost : public generation::RunHost {
 public:
  explicit RecordingRunHost(Journal& journal) : journal_(journal) {}

  [[nodiscard]] std::optional<generation::RunOrder> AskWhatToCreate() override {
    journal_.emplace_back("asked");
    return order;
  }
  [[nodiscard]] bool MayStart(generation::RunForecast& forecast) override {
    for (const generation::Finding& finding : forecast.Found()) warnings.push_back(LineOf(finding));
    return startsAnyway;
  }
  [[nodiscard]] std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() override {
    auto window = std::make_unique<RecordingProgress>(progress, journal_);
    window->closesAtOnce = windowClosesAtOnce;
    openWindow = window.get();
    return window;
  }
  void SetStatusText(const std::string& text) override { statuses.push_back(text); }
  void ShowBusyPointer(bool busy) override { journal_.emplace_back(busy ? "busy" : "idle"); }
  void EnableMainWindow(bool enabled) override { journal_.emplace_back(enabled ? "window on" : "window off"); }
  void EnableTrayIcon(bool enabled) override { journal_.emplace_back(enabled ? "tray on" : "tray off"); }

  std::optional<generation::RunOrder> order;  ///< the user's answer
  ProgressRecord progress;
  std::vector<std::string> statuses;
  std::vector<std::string> warnings;  ///< what the user was warned of before runs
  bool startsAnyway = true;           ///< the user's answer to warnings
  bool windowClosesAtOnce = true;
  RecordingProgress* openWindow = nullptr;

 private:
  Journal& journal_;
};

}  // namespace vantorium::fakes
