#pragma once

#include "core/generation/GenerationMode.h"
#include "publish/FTPOptions.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// What a run does, and where: the user's choice in the dialog or on the command line. Folders and paths are path text;
/// remote ones have forward slashes.
struct RunOrder {
  GenerationMode Mode = GenerationMode::Create;
  bool CreateImages = true;
  bool CreateThumbnails = true;
  bool CreateHTML = true;
  bool Overwrite = true;  ///< false: an image or thumbnail that exists at the target is not produced again

  /// Whether files that an earlier run into the same target made are kept if this run would make the same bytes. The
  /// files there are then the same as after a run without it.
  bool OnlyChanges = false;
  bool RemoveUnused = false;  ///< with OnlyChanges: files of earlier runs that nothing uses any more are removed

  /// With a trailing backslash. Create: the gallery's folder; Upload: the folder to send. For Preview and Publish,
  /// GalleryCreator sets the temporary folder.
  std::string OutputFolder{};
  std::string IndexFileName{};  ///< inside OutputFolder; for Preview and Publish, GalleryCreator sets it

  std::string RemoteFolder{};         ///< on the server; empty or with a trailing slash
  std::string RemoteIndexFileName{};  ///< Publish
  std::string ServerAddress{};
  std::uint16_t Port = 21;
  std::string UserName{};
  std::string Password{};
  std::string BaseDirectory{};          ///< directory to change to after login; empty for none
  publish::FTPOptions ServerOptions{};  ///< how to talk to the server
};

/// Sets folder and name of a local gallery from the path text of its index file.
void SetIndexFile(RunOrder& order, const std::string& path);
/// Sets the folder on the server. Separators of either kind.
void SetRemoteFolder(RunOrder& order, const std::string& folder);
/// Sets folder and name of a gallery on the server. `file` may have folders too.
void SetRemoteIndexFile(RunOrder& order, const std::string& folder, const std::string& file);

}  // namespace vantorium::generation
