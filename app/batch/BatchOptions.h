#pragma once

#include "env/CivilTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorium {

enum class BatchCommand { New, Show, Save, Create, Preview, Publish, Upload };

/// What the command line asks for. Paths are as they were typed.
struct BatchOptions {
  BatchCommand command = BatchCommand::Show;

  // Of every command
  std::string programFolder;
  std::string tempFolder;
  std::optional<CivilTime> creationTime;
  unsigned jobs = 0;  ///< images worked on at a time; 0 for all processors
  bool quiet = false;
  bool verbose = false;

  // Of single commands
  std::string project;
  std::string output;  ///< OUT.gpj, or INDEX-FILE
  std::optional<std::string> title;
  bool recursive = false;
  bool force = false;  ///< a project that exists is replaced
  std::vector<std::string> paths;
  bool noImages = false;
  bool noThumbnails = false;
  bool noHtml = false;
  bool keepExisting = false;
  bool open = false;
  std::string folder;  ///< to upload
  std::string server;
  std::uint16_t port = 21;
  std::string user;
  std::string passwordFile;  ///< "-" is standard input
  std::string remote;        ///< FOLDER/INDEX-FILE of publish, FOLDER of upload
  std::string baseDirectory;
};

}  // namespace vantorium
