#pragma once

#include "core/generation/GenerateGallery.h"
#include "env/Preferences.h"
#include "env/TempFolderLock.h"

namespace vantorium {

/// The operation in which every command for previewing, creating, publishing and uploading ends.
class GalleryCreator {
 public:
  /// `preferences`: the temporary folder's place is read from them, the last target is remembered in them.
  GalleryCreator(Project& project, Preferences& preferences, std::string programFolder, RunEnvironment environment)
      : project_(project),
        preferences_(preferences),
        programFolder_(std::move(programFolder)),
        environment_(environment) {}

  /// Repairs empty settings, asks what to do when `mode` is Create, and runs. A Preview that went well is opened in
  /// browser `browserIndex`, 0 being the system's own. The dialog may turn the mode from Create into another one. A run
  /// that makes its files in the temporary folder has that to itself, or does not start.
  RunEnd CreateGallery(GenerationMode& mode, std::int16_t browserIndex);

 private:
  [[nodiscard]] bool RefuseEmptyList(const char* text);
  [[nodiscard]] bool PreparePreview(RunArguments& arguments);
  [[nodiscard]] bool PrepareCreate(const CreateChoice& choice, RunArguments& arguments);
  [[nodiscard]] bool PreparePublish(const CreateChoice& choice, RunArguments& arguments);
  void PrepareUpload(const CreateChoice& choice, RunArguments& arguments);
  void TakeServer(const CreateChoice& choice, RunArguments& arguments);
  [[nodiscard]] bool Prepare(GenerationMode& mode, RunArguments& arguments);
  [[nodiscard]] RunEnd Run(const RunArguments& arguments);
  void MakeTempFolder();
  [[nodiscard]] std::filesystem::path NativeTempFolder() const;
  /// True after a box that says why the run may not put its files there.
  [[nodiscard]] bool RefuseTempFolder(const TempFolderLock& lock);
  [[nodiscard]] std::string TempFolder() const;
  void OpenInBrowser(const std::string& indexFile, std::int16_t browserIndex);
  [[nodiscard]] std::string BrowserLocation(std::int16_t browserIndex) const;

  Project& project_;
  Preferences& preferences_;
  std::string programFolder_;
  RunEnvironment environment_;
};

}  // namespace vantorium
