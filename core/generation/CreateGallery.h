#pragma once

#include "core/generation/GenerateGallery.h"
#include "env/Preferences.h"
#include "env/TempFolderLock.h"

namespace vantorium::generation {

/// Carries out every command that previews, creates, publishes or uploads.
class GalleryCreator {
 public:
  /// Reads the location of the temporary folder from `preferences` and stores the last target there.
  GalleryCreator(core::Project& project, env::Preferences& preferences, std::string programFolder,
                 RunEnvironment environment)
      : project_(project),
        preferences_(preferences),
        programFolder_(std::move(programFolder)),
        environment_(std::move(environment)) {}

  /// Repairs empty settings, asks the user what to do unless `mode` is Preview, and runs like CarryOut. The dialog may
  /// change `mode` to another mode.
  RunEnd CreateGallery(GenerationMode& mode, std::int16_t browserIndex);
  /// Repairs empty settings and does what `order` says. A successful Preview is opened in browser `browserIndex`; 0 is
  /// the system's default. A run that makes its files in the temporary folder has exclusive use of it, or does not
  /// start.
  RunEnd CarryOut(RunOrder order, std::int16_t browserIndex);

 private:
  [[nodiscard]] bool RefuseEmptyList(const char* text);
  /// Returns true, after a message box, if the folder to upload cannot be read.
  [[nodiscard]] bool RefuseSource(const std::string& folder);
  void Repair();
  [[nodiscard]] RunEnd Start(RunOrder order, std::int16_t browserIndex);
  /// Completes `order`. Returns false, after a message box, if there is nothing to make.
  [[nodiscard]] bool Prepare(RunOrder& order);
  /// Asks the host if there is something that would go wrong.
  [[nodiscard]] bool MayStart(const RunOrder& order);
  void UseTempFolder(RunOrder& order, const std::string& indexFileName);
  void PrepareConnection(const publish::FTPOptions& options);
  void MakeTempFolder();
  [[nodiscard]] std::filesystem::path NativeTempFolder() const;
  /// Returns true, after a message box with the reason, if the run may not use the temporary folder.
  [[nodiscard]] bool RefuseTempFolder(const env::TempFolderLock& lock);
  [[nodiscard]] std::string TempFolder() const;
  void OpenInBrowser(const std::string& indexFile, std::int16_t browserIndex);
  [[nodiscard]] std::string BrowserLocation(std::int16_t browserIndex) const;

  core::Project& project_;
  env::Preferences& preferences_;
  std::string programFolder_;
  RunEnvironment environment_;
};

}  // namespace vantorium::generation
