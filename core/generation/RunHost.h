#pragma once

#include "publish/ProgressWindow.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vantorium {

/// What the user chose in the dialog that starts a run.
struct CreateChoice {
  enum class Option { Cancelled, CreateGallery, Publish, UploadFolder };

  Option option = Option::Cancelled;
  bool CreateImages = true;
  bool CreateThumbnails = true;
  bool CreateHTMLFiles = true;
  bool Overwrite = true;
  std::string FilePath;            ///< CreateGallery: path text of the index file
  std::string UploadIndexPath;     ///< folder on the server
  std::string UploadIndexFile;     ///< Publish: name of the index file on the server
  std::string UploadServer;        //
  std::uint16_t UploadPort = 21;   //
  std::string UploadUser;          //
  std::string UploadPassword;      ///< for this run only
  std::string UploadJumpTo;        ///< directory to change to after login
  std::string UploadSourceFolder;  ///< UploadFolder: path text of the folder, with a trailing backslash
};

/// What a run asks of the main window. A face without windows answers from its command line.
class RunHost {
 public:
  virtual ~RunHost() = default;

  /// Shows the dialog that starts a run, modally.
  [[nodiscard]] virtual CreateChoice AskWhatToCreate() = 0;
  [[nodiscard]] virtual std::unique_ptr<ProgressWindow> CreateProgressWindow() = 0;
  /// Sets panel 1 of the status bar.
  virtual void ShowStatus(const std::string& text) = 0;
  virtual void ShowBusyPointer(bool busy) = 0;
  virtual void EnableMainWindow(bool enabled) = 0;
  /// Sets whether the tray icon responds.
  virtual void EnableTrayIcon(bool enabled) = 0;
};

}  // namespace vantorium
