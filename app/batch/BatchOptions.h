#pragma once

#include "env/CivilTime.h"
#include "publish/FTPOptions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::batch {

enum class BatchCommand { New, Show, Save, Create, Preview, Publish, Upload };

/// What the command line asks for. Paths are as typed.
struct BatchOptions {
  BatchCommand command = BatchCommand::Show;

  // For every command
  std::string programFolder;
  std::string tempFolder;
  std::optional<env::CivilTime> creationTime;
  unsigned jobs = 0;  ///< images processed at the same time; 0 for one per processor
  bool quiet = false;
  bool verbose = false;

  // For single commands
  std::string project;
  std::string output;  ///< OUT.gpj, or INDEX-FILE
  std::optional<std::string> title;
  std::string theme;  ///< the name of one that comes with the program, or a project; empty for none
  bool recursive = false;
  bool force = false;  ///< replace an existing project
  std::vector<std::string> paths;
  bool upright = false;
  bool trueColors = false;
  bool noImages = false;
  bool noThumbnails = false;
  bool noHtml = false;
  bool keepExisting = false;
  bool onlyChanges = false;
  bool removeUnused = false;
  bool json = false;    ///< the run's events on standard output
  bool strict = false;  ///< a run that has warnings does not start
  bool open = false;
  std::string folder;  ///< to upload
  std::string server;
  std::uint16_t port = 21;
  std::string user;
  std::string passwordFile;  ///< "-" is standard input
  std::string remote;        ///< FOLDER/INDEX-FILE for publish, FOLDER for upload
  std::string baseDirectory;
  publish::FTPOptions transfer;  ///< how to talk to the server
};

}  // namespace vantorium::batch
