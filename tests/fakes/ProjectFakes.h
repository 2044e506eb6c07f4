#pragma once

#include "core/ImageListOperations.h"
#include "core/ProjectFields.h"
#include "core/ProjectSession.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::fakes {

/// The calls of all ports, in order.
using Calls = std::vector<std::string>;

class RecordingSessionHost : public core::ProjectSessionHost {
 public:
  explicit RecordingSessionHost(Calls& calls) : calls_(calls) {}

  void SetStatusText(const std::string& text) override { calls_.push_back("status " + text); }
  void ShowBusyPointer(bool busy) override { calls_.emplace_back(busy ? "wait pointer" : "pointer"); }
  void ShowInfoWindow(const std::string& text) override { calls_.push_back("info " + text); }
  void HideInfoWindow() override { calls_.emplace_back("info hidden"); }
  void EnableMainWindow(bool enabled) override { calls_.emplace_back(enabled ? "enabled" : "disabled"); }
  [[nodiscard]] std::vector<core::MovedFolder> AskForMovedFolders(const std::vector<std::string>& sources) override {
    for (const std::string& source : sources) calls_.push_back("no place " + source);
    return movedFolders;
  }
  void RefreshTitleBar() override { calls_.emplace_back("title bar"); }
  void RefreshPreview() override { calls_.emplace_back("preview"); }
  void RefreshCounts() override { calls_.emplace_back("counts"); }
  void RefreshPageCount() override { calls_.emplace_back("page count"); }
  void HideDescriptionsWindow() override { calls_.emplace_back("descriptions hidden"); }
  void SelectFirstTab() override { calls_.emplace_back("first tab"); }
  void FocusTitleField() override { calls_.emplace_back("title field"); }
  void RebuildCustomColors() override { calls_.emplace_back("custom colors"); }

  std::vector<core::MovedFolder> movedFolders;  ///< empty: the paths stay

 private:
  Calls& calls_;
};

/// Returns the paths in `answers`, in order, then empty texts.
class ScriptedProjectFileDialog : public core::ProjectFileDialog {
 public:
  explicit ScriptedProjectFileDialog(Calls& calls) : calls_(calls) {}

  std::string Choose(const Request& request) override {
    calls_.push_back("dialog " + request.title);
    requests.push_back(request);
    if (answers.empty()) return {};
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::vector<Request> requests;
  std::deque<std::string> answers;

 private:
  Calls& calls_;
};

/// A message box that also adds its title to the calls of the other ports.
class RecordedBoxes : public RecordingMessageBox {
 public:
  explicit RecordedBoxes(Calls& calls) : calls_(calls) {}

  env::BoxAnswer Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                      const std::string& text) override {
    calls_.push_back("box " + title);
    return RecordingMessageBox::Show(kind, buttons, title, text);
  }

 private:
  Calls& calls_;
};

/// A project, its session and a folder for its files.
struct ProjectHarness {
  TemporaryFolder folder;
  Calls calls;
  RecordedBoxes boxes{calls};
  ScriptedProjectFileDialog dialog{calls};
  RecordingSessionHost host{calls};
  CountingEventLoop events;
  env::PathMap paths{{{'C', "/"}, {'Z', "/"}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  core::ImageListDisplay display;
  core::Project project;
  core::ImageListOperations images{project, files, boxes, display};
  core::ProjectSession session{project, images, {paths, boxes, dialog, host, events}};

  /// Path text of a file in the folder. The file need not exist.
  [[nodiscard]] std::string PathOf(const std::string& name) const { return paths.ToText(folder.Path() / name); }

  /// Writes a file and returns its path text.
  std::string File(const std::string& name, std::string_view bytes = "bytes") const {
    return paths.ToText(folder.Write(name, bytes));
  }

  void AddImage(const std::string& name, const std::string& description = {}, const std::string& thumbnail = {}) {
    project.images.Insert(project.images.Count() + 1, {name, File(name), "", "", description, thumbnail});
  }
};

/// All settings by name, those of records as "ImageFilters.sliderFade". Comparing them shows which ones differ.
inline std::map<std::string, std::string> SettingTexts(const core::GalleryProject& project) {
  std::map<std::string, std::string> texts;
  const auto put = [&texts](const std::string& name, const auto& value) {
    if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
      texts[name] = std::to_string(value);
    } else {
      texts[name] = value;
    }
  };
  const auto putRecord = [&put](const std::string& name, const auto& record, const auto& fields) {
    for (const auto& field : fields) {
      std::visit([&](auto member) { put(name + "." + std::string(field.name), record.*member); }, field.member);
    }
  };
  for (const core::ProjectField& field : core::ProjectFields()) {
    const std::string name(field.name);
    std::visit(
        [&](auto member) {
          const auto& value = project.*member;
          using Value = std::decay_t<decltype(value)>;
          if constexpr (std::is_same_v<Value, image::ImageFilterSettings>) {
            putRecord(name, value, core::FilterFields());
          } else if constexpr (std::is_same_v<Value, image::WatermarkSettings>) {
            putRecord(name, value, core::WatermarkFields());
          } else if constexpr (std::is_same_v<Value, core::LinkSettings>) {
            putRecord(name, value, core::LinkFields());
          } else {
            put(name, value);
          }
        },
        field.member);
  }
  return texts;
}

}  // namespace vantorium::fakes
