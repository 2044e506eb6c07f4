#pragma once

#include "tests/fakes/RecordingMessageBox.h"
#include "ui/model/dialogs/BrowserEntry.h"

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::env {

inline std::ostream& operator<<(std::ostream& stream, const Browser& browser) {
  return stream << browser.Name << " at " << browser.Location;
}

}  // namespace vantorium::env

namespace vantorium::fakes {

/// A user of frmAddBrowser: performs the next action of the script each time the dialog is shown. Cancels after the end
/// of the script.
class ScriptedEntryDialog : public ui::BrowserEntryDialog {
 public:
  void Show(ui::BrowserEntry& entry) override {
    shown.push_back(entry.Title() + ": " + entry.Texts().Name + ", " + entry.Texts().Location);
    if (script.empty()) return entry.PressCancel();
    const auto act = script.front();
    script.pop_front();
    act(entry);
  }

  /// The user types both texts and presses OK.
  void Types(const std::string& name, const std::string& location) {
    script.emplace_back([=](ui::BrowserEntry& entry) {
      entry.ChangeName(name);
      entry.ChangeLocation(location);
      entry.PressOK();
    });
  }
  void Cancels() {
    script.emplace_back([](ui::BrowserEntry& entry) { entry.PressCancel(); });
  }

  std::vector<std::string> shown;  ///< title and texts, each time the dialog was shown
  std::deque<std::function<void(ui::BrowserEntry&)>> script;
};

}  // namespace vantorium::fakes

namespace vantorium::ui {

using Browsers = std::vector<env::Browser>;

/// Browsers named 1 to `count`.
inline Browsers Numbered(std::size_t count) {
  Browsers browsers;
  for (std::size_t n = 1; n <= count; ++n) {
    browsers.push_back({std::to_string(n), "C:\\" + std::to_string(n)});
  }
  return browsers;
}

/// Expects exactly one message box, of kind Critical, with this title and text.
inline void ExpectOneBox(const fakes::RecordingMessageBox& boxes, const std::string& title, const std::string& text) {
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(boxes.boxes[0].title, title);
  EXPECT_EQ(boxes.boxes[0].text, text);
}

}  // namespace vantorium::ui
