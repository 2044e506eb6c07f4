#pragma once

#include "core/generation/GenerationMode.h"

#include <string>

namespace vantorium {

/// What a run does, and where. Folders and paths are path text; remote ones have forward slashes.
struct RunArguments {
  std::string OutputFolder;   ///< with a trailing backslash: the target, the temporary folder, or the folder to upload
  std::string IndexFileName;  ///< inside OutputFolder
  GenerationMode Mode = GenerationMode::Create;
  bool CreateImages = true;
  bool CreateThumbnails = true;
  bool CreateHTML = true;
  bool Overwrite = true;  ///< false: an image or thumbnail that exists at the target is not produced again
  std::string RemoteFolder;
  std::string RemoteIndexFileName;
  std::string ServerAddress;
  std::uint16_t Port = 21;
  std::string UserName;
  std::string Password;
  std::string BaseDirectory;  ///< directory to change to after login; empty for none
};

}  // namespace vantorium
