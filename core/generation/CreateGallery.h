#pragma once

#include "core/generation/GenerateGallery.h"
#include "env/Preferences.h"
#include "env/TempFolderLock.h"

namespace vantorium {

/// Carries out every command that previews, creates, publishes or uploads.
class GalleryCreator {
 public:
  /// Reads the location of the temporary folder from `preferences` and stores the last target there.
  GalleryCreator(Project& project, Preferences& preferences, std::string programFolder, RunEnvironment environment)
      : project_(project),
        preferences_(preferences),
        programFolder_(std::move(programFolder)),
        environment_(environment) {}

  /// Repairs empty settings, asks the user what to do if `mode` is Create, and runs. The dialog may change `mode` from
  /// Create to another mode. A successful Preview is opened in browser `browserIndex`; 0 is the system's default. A run
  /// that makes its files in the temporary folder has exclusive use of it, or does not start.
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
  /// Returns true, after a message box with the reason, if the run may not use the temporary folder.
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
