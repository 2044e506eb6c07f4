#include "app/batch/CommandLine.h"

#include "app/batch/Terminal.h"
#include "publish/ServerCertificate.h"

#include <chrono>
#include <sstream>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace vantorium::batch {
namespace {

const char kDescription[] =
    "Turns a list of JPEG photographs into a web gallery: HTML pages, resized images and thumbnails.\n"
    "Works on the project files of Vantorium, without a window.";

const char kFooter[] =
    "Paths are native (/home/me/photos) or Windows path text (C:\\photos).\n"
    "Ctrl+C cancels; a second one ends the program at once.\n"
    "Exit code: 0 success, 1 failure, 2 wrong command line, 130 cancelled.";

/// Parses "YYYY-MM-DD HH:MM:SS". Returns nullopt for any other form, and for a time that does not exist.
std::optional<env::CivilTime> ParseTime(const std::string& text) {
  env::CivilTime time;
  int read = 0;
  const int fields = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.year, &time.month, &time.day,
                                 &time.hour, &time.minute, &time.second, &read);
  const std::string again = fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", time.year, time.month, time.day,
                                        time.hour, time.minute, time.second);
  const std::chrono::year_month_day date{std::chrono::year(time.year), std::chrono::month(unsigned(time.month)),
                                         std::chrono::day(unsigned(time.day))};
  const bool inTheCalendar = time.year > 0 && date.ok();
  const bool onTheClock = time.hour < 24 && time.minute < 60 && time.second < 60;
  if (fields != 6 || again != text || !inTheCalendar || !onTheClock) return std::nullopt;
  return time;
}

void AddCommonOptions(CLI::App& app, BatchOptions& options) {
  app.add_option("--program-folder", options.programFolder, "Folder of the preferences, server list and upload log")
      ->type_name("DIR");
  app.add_option("--temp-folder", options.tempFolder, "Folder in which VANTORIUM_TEMP lies")->type_name("DIR");
  app.add_option_function<std::string>(
         "--creation-time",
         [&options](const std::string& text) {
           options.creationTime = ParseTime(text);
           if (!options.creationTime) throw CLI::ValidationError("--creation-time", "no time YYYY-MM-DD HH:MM:SS");
         },
         "Creation time that the gallery states")
      ->type_name("\"YYYY-MM-DD HH:MM:SS\"");
  app.add_option("--jobs", options.jobs, "Images worked on at a time; all processors unless given")
      ->type_name("N")
      ->check(CLI::Range(1, 1024));
  app.add_flag("--quiet", options.quiet, "No progress");
  app.add_flag("--verbose", options.verbose, "Each status text on a line of its own");
}

void AddChangesSwitches(CLI::App& command, BatchOptions& options) {
  CLI::Option* changes =
      command.add_flag("--only-changes", options.onlyChanges, "Keep what the last run to the same place made or sent");
  command.add_flag("--remove-unused", options.removeUnused, "Remove files of earlier runs that nothing uses any more")
      ->needs(changes);
}

void AddRunSwitches(CLI::App& command, BatchOptions& options) {
  command.add_flag("--no-images", options.noImages, "Make no images");
  command.add_flag("--no-thumbnails", options.noThumbnails, "Make no thumbnails");
  command.add_flag("--no-html", options.noHtml, "Make no pages");
  command.add_flag("--keep-existing", options.keepExisting, "Keep images and thumbnails that exist");
  AddChangesSwitches(command, options);
}

void AddJson(CLI::App& command, BatchOptions& options) {
  command.add_flag("--json", options.json, "Print the run's events on standard output, one JSON object a line");
}

void AddStrict(CLI::App& command, BatchOptions& options) {
  command.add_flag("--strict", options.strict, "Make nothing if something would go wrong, but say what");
}

/// The options say how to talk to a server.
void AddTransfer(CLI::App& command, publish::FTPOptions& transfer) {
  command.add_flag("--passive", transfer.passive, "Open the data connections from here");
  CLI::Option* tls = command.add_flag("--tls", transfer.encrypted, "Encrypt both connections");
  command
      .add_option_function<std::string>(
          "--tls-fingerprint",
          [&transfer](const std::string& text) {
            const auto fingerprint = publish::NormalizedFingerprint(text);
            if (!fingerprint) throw CLI::ValidationError("--tls-fingerprint", "no SHA-256 fingerprint (64 hex digits)");
            transfer.fingerprint = *fingerprint;
          },
          "Accept the server's certificate only if it has this fingerprint")
      ->type_name("SHA256")
      ->needs(tls);
}

void AddServer(CLI::App& command, BatchOptions& options, const char* remote) {
  command.add_option("--server", options.server, "Host of the FTP server")->type_name("HOST")->required();
  command.add_option("--user", options.user, "Name to log in with")->type_name("NAME")->required();
  command
      .add_option("--password-file", options.passwordFile,
                  "File with the password in its first line; - is standard input")
      ->type_name("FILE")
      ->required();
  command.add_option("--remote", options.remote, "Where it goes on the server")->type_name(remote)->required();
  command.add_option("--base-directory", options.baseDirectory, "Directory to change to after login")->type_name("DIR");
  command.add_option("--port", options.port, "Port of the server; 21 unless given")
      ->type_name("N")
      ->check(CLI::Range(1, 65535));
  AddTransfer(command, options.transfer);
}

CLI::App& AddCommand(CLI::App& app, BatchOptions& options, BatchCommand command, const char* name, const char* about) {
  CLI::App* added = app.add_subcommand(name, about);
  added->callback([&options, command] { options.command = command; });
  AddCommonOptions(*added, options);  // so that they are accepted after the command, and its help lists them
  return *added;
}

void AddProject(CLI::App& command, BatchOptions& options) {
  command.add_option("PROJECT.gpj", options.project, "The project file")->required();
}

std::string RefuseEmpty(const std::string& text) {
  return text.empty() ? "it is empty" : "";
}

std::string RefuseFolder(const std::string& path) {
  const std::string name = path.substr(path.find_last_of("/\\") + 1);  // npos + 1 is 0
  return name.empty() || name == "." || name == ".." ? "it names no index file" : "";
}

void AddNew(CLI::App& app, BatchOptions& options) {
  CLI::App& make = AddCommand(app, options, BatchCommand::New, "new", "Make a project of images and folders");
  make.add_option("OUT.gpj", options.output, "The project file to write")->required();
  make.add_option("--title", options.title, "Title of the gallery")->type_name("TEXT");
  make.add_option("--theme", options.theme, "Take all settings but the title from a theme or a project")
      ->type_name("NAME|PROJECT.gpj")
      ->check(RefuseEmpty);
  make.add_flag("--recursive", options.recursive, "Take the folders' sub folders too");
  make.add_flag("--force", options.force, "Replace a project that exists; any other file never is");
  make.add_flag("--upright", options.upright, "Turn photographs upright as they say");
  make.add_flag("--true-colors", options.trueColors, "Convert photographs from their own color profiles to sRGB");
  make.add_option("PATH", options.paths, "Images, and folders of images")->required();
}

void AddShow(CLI::App& app, BatchOptions& options) {
  AddProject(AddCommand(app, options, BatchCommand::Show, "show", "Print a project as JSON"), options);
}

void AddSave(CLI::App& app, BatchOptions& options) {
  CLI::App& save = AddCommand(app, options, BatchCommand::Save, "save", "Read a project and write it as Save does");
  AddProject(save, options);
  save.add_option("OUT.gpj", options.output, "The project file to write")->required();
}

void AddCreate(CLI::App& app, BatchOptions& options) {
  CLI::App& create = AddCommand(app, options, BatchCommand::Create, "create", "Create a project's gallery in a folder");
  AddProject(create, options);
  create
      .add_option("INDEX-FILE", options.output,
                  "The gallery's index file, in the folder for the gallery; of a folder its index.htm")
      ->required()
      ->check(RefuseEmpty);
  AddRunSwitches(create, options);
  AddStrict(create, options);
  AddJson(create, options);
}

void AddPreview(CLI::App& app, BatchOptions& options) {
  CLI::App& preview =
      AddCommand(app, options, BatchCommand::Preview, "preview", "Make the pages in the temporary folder");
  AddProject(preview, options);
  preview.add_flag("--open", options.open, "Open the preview in the default browser");
  AddJson(preview, options);
}

void AddPublish(CLI::App& app, BatchOptions& options) {
  CLI::App& publish =
      AddCommand(app, options, BatchCommand::Publish, "publish", "Send a project's gallery to a server");
  AddProject(publish, options);
  AddServer(publish, options, "FOLDER/INDEX-FILE");
  publish.get_option("--remote")->check(RefuseFolder);
  AddRunSwitches(publish, options);
  AddStrict(publish, options);
  AddJson(publish, options);
}

void AddUpload(CLI::App& app, BatchOptions& options) {
  CLI::App& upload = AddCommand(app, options, BatchCommand::Upload, "upload", "Send a folder to a server");
  upload.add_option("FOLDER", options.folder, "The folder whose contents are sent")->required();
  AddServer(upload, options, "FOLDER");
  upload.add_flag("--keep-existing", options.keepExisting, "Keep files that the server has");
  AddChangesSwitches(upload, options);
  AddJson(upload, options);
}

/// Returns what is wrong, in one line. CLI11 may add a hint about --help, and for an unknown command it only says that
/// there is no command.
std::string WhatIsWrong(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<std::string> unknown = app.remaining();
  const bool hasCommand = !app.get_subcommands().empty();
  const std::string text = hasCommand || unknown.empty() ? error.what() : "There is no command " + unknown.front();
  return text.substr(0, text.find('\n'));
}

}  // namespace

std::variant<BatchOptions, ExitCode> ParseCommandLine(int argc, const char* const* argv) {
  BatchOptions options;
  CLI::App app(kDescription, "vantorium-batch");
  app.footer(kFooter);
  app.set_version_flag("--version", "vantorium-batch 3.0");
  app.require_subcommand(1);
  AddCommonOptions(app, options);
  for (const auto add : {AddNew, AddShow, AddSave, AddCreate, AddPreview, AddPublish, AddUpload}) add(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& success) {  // --help and --version
    std::ostringstream text;
    app.exit(success, text, text);
    return PrintResult(text.str()) ? ExitCode::Success : ExitCode::Failure;
  } catch (const CLI::ParseError& error) {
    SayInOneLine(WhatIsWrong(app, error) + " (see --help)");
    return ExitCode::WrongUsage;
  }
  return options;
}

}  // namespace vantorium::batch
