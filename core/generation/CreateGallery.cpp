#include "core/generation/CreateGallery.h"

#include "core/ProjectEditor.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

namespace vantorium {

RunEnd GalleryCreator::CreateGallery(GenerationMode& mode, std::int16_t browserIndex) {
  if (preferences_.TempFolderLocation.empty()) preferences_.TempFolderLocation = programFolder_;
  NormalizeForOutput(project_.settings, project_.IsModified);
  RunArguments arguments;
  if (!Prepare(mode, arguments)) return RunEnd::NotStarted;
  arguments.Mode = mode;
  const RunEnd end = Run(arguments);
  if (end == RunEnd::Success && mode == GenerationMode::Preview) {
    OpenInBrowser(arguments.OutputFolder + arguments.IndexFileName, browserIndex);
  }
  environment_.shell.Beep(BeepKind::Information);
  environment_.host.EnableTrayIcon(true);
  environment_.host.ShowBusyPointer(false);
  environment_.host.ShowStatus("");
  return end;
}

bool GalleryCreator::Prepare(GenerationMode& mode, RunArguments& arguments) {
  if (mode == GenerationMode::Preview) return PreparePreview(arguments);
  const CreateChoice choice = environment_.host.AskWhatToCreate();
  return choice.option == CreateChoice::Option::CreateGallery && PrepareCreate(choice, arguments);
}

bool GalleryCreator::PreparePreview(RunArguments& arguments) {
  if (RefuseEmptyList("You cannot preview a Gallery without Images.")) return false;
  MakeTempFolder();
  arguments.OutputFolder = TempFolder() + "\\";
  arguments.IndexFileName = "index.htm";
  return true;
}

bool GalleryCreator::PrepareCreate(const CreateChoice& choice, RunArguments& arguments) {
  MakeTempFolder();
  arguments.IndexFileName = GetFileName(choice.FilePath);
  arguments.OutputFolder = choice.FilePath.substr(0, choice.FilePath.size() - arguments.IndexFileName.size());
  preferences_.CreateFolder = arguments.OutputFolder;
  preferences_.GalleryIndexFileName = arguments.IndexFileName;
  arguments.CreateImages = choice.CreateImages;
  arguments.CreateThumbnails = choice.CreateThumbnails;
  arguments.CreateHTML = choice.CreateHTMLFiles;
  arguments.Overwrite = choice.Overwrite;
  return !RefuseEmptyList("You cannot create a Gallery without Images.");
}

bool GalleryCreator::RefuseEmptyList(const char* text) {
  if (!project_.images.Empty()) return false;
  environment_.boxes.Critical("No Images", text);
  return true;
}

RunEnd GalleryCreator::Run(const RunArguments& arguments) {
  environment_.cancel.Clear();
  environment_.host.EnableTrayIcon(false);
  return GenerateGallery(project_, arguments, environment_);
}

std::string GalleryCreator::TempFolder() const {
  return preferences_.TempFolderLocation + "\\VANTORIUM_TEMP";
}

void GalleryCreator::MakeTempFolder() {
  std::ignore = environment_.files.MakePath(TempFolder());
}

void GalleryCreator::OpenInBrowser(const std::string& indexFile, std::int16_t browserIndex) {
  try {
    if (browserIndex == 0) {
      environment_.shell.OpenFile(indexFile);
    } else {
      environment_.shell.StartProgram(preferences_.Browsers.at(static_cast<std::size_t>(browserIndex) - 1).Location,
                                      indexFile);
    }
  } catch (const RuntimeFailure& failure) {
    environment_.boxes.Critical("Error", "Error: " + std::to_string(failure.Number()) + "\r\r" + failure.Description());
  }
}

}  // namespace vantorium
