#include "core/generation/RunWindows.h"

#include <array>

namespace vantorium::generation {
namespace {

struct ModeTexts {
  const char* text1;
  const char* caption;
};

/// Indexed by GenerationMode.
constexpr std::array<ModeTexts, 4> kModeTexts = {{
    {"Please wait while the Gallery is being created...", "Creating Gallery"},
    {"Please wait while the Gallery is prepared for Preview...", "Preparing Gallery for Preview"},
    {"Please wait while the Gallery is being published...", "Publishing Gallery"},
    {"Please wait while the Folder is being uploaded...", "Uploading Folder"},
}};

/// Maximum of the progress bar: for each image, one step for collecting its information and one for each phase that
/// processes it.
std::int32_t ProgressMaximum(const core::Project& project, const RunOrder& order) {
  if (order.Mode == GenerationMode::Upload) return 100;
  const bool wrappers = core::IsOn(project.settings.checkImageWrapperUse);
  const int phases = order.Mode == GenerationMode::Preview
                         ? 1 + (wrappers ? 1 : 0)
                         : int{order.CreateImages} + int{order.CreateThumbnails} + int{order.CreateHTML} +
                               (wrappers && order.CreateHTML ? 1 : 0);
  return static_cast<std::int32_t>(project.images.Count()) * (phases + 1);
}

std::unique_ptr<publish::ProgressWindow> OpenProgressWindow(const core::Project& project, const RunOrder& order,
                                                            const RunEnvironment& environment) {
  auto progress = environment.host.CreateProgressWindow();
  progress->LogToFile = SendsToServer(order.Mode);
  progress->SetMax(ProgressMaximum(project, order));
  progress->SetProgress(0);
  progress->Show();
  const ModeTexts& texts = kModeTexts.at(static_cast<std::size_t>(order.Mode));
  progress->SetText1(texts.text1);
  progress->SetText2("");
  progress->SetText3("", /*append=*/false);
  progress->SetCaption(texts.caption);
  environment.loop.Turn();
  return progress;
}

}  // namespace

RunWindows::RunWindows(const core::Project& project, const RunOrder& order, const RunEnvironment& environment)
    : environment_(environment),
      busy_(environment.host),
      disabled_(environment.host),
      progress_(OpenProgressWindow(project, order, environment)) {
  if (environment_.ftp != nullptr) environment_.ftp->FTPProgress = progress_.get();
}

RunWindows::~RunWindows() {
  busy_.reset();
  disabled_.reset();
  if (environment_.ftp != nullptr) environment_.ftp->FTPProgress = nullptr;
  progress_.reset();
  if (environment_.ftp != nullptr && environment_.ftp->IsConnected()) environment_.ftp->Disconnect();
}

void RunWindows::ShowEnd(RunEnd end) {
  switch (end) {
    case RunEnd::Failure:
      return ShowFailure();
    case RunEnd::Cancelled:
      return ShowCancel();
    case RunEnd::Success:
    case RunEnd::NotStarted:
      return ShowSuccess();
  }
}

/// The status bar keeps the last step until GalleryCreator has opened the preview.
void RunWindows::ShowSuccess() {
  progress_->SetProgress(progress_->GetMax());
  disabled_.reset();
  busy_.reset();
  progress_->ShowBusyPointer(false);
}

/// The window stays open until the user closes it. The messages in its log box go to the log.
void RunWindows::ShowFailure() {
  progress_->OfferClose();
  environment_.host.SetStatusText("");
  progress_->WriteLog(progress_->LogBoxText());
  progress_->SetText3("", /*append=*/false);
  busy_.reset();
  progress_->ShowBusyPointer(false);
  environment_.shell.Beep(env::BeepKind::Warning);
  while (!progress_->CloseRequested) environment_.loop.Wait();
}

void RunWindows::ShowCancel() {
  environment_.boxes.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, "Creation cancelled",
                          "The User has cancelled Creation of the Gallery");
  environment_.host.SetStatusText("");
}

}  // namespace vantorium::generation
