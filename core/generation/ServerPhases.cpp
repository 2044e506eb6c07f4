#include "core/generation/ServerPhases.h"

#include "publish/UploadFolder.h"

namespace vantorium {
namespace {

const char kFtpError[] = "FTP Error";

/// Returns the result of a server operation that worked or failed. A cancel takes precedence over both.
PhaseResult After(const RunContext& context, bool worked, const std::string& text) {
  if (context.cancel.CancelRequested()) return RunEnd::Cancelled;
  if (worked) return kGoOn;
  return context.Fail(kFtpError, text);
}

/// The same for an operation without which the connection is useless: disconnects if it failed.
PhaseResult AfterClosing(const RunContext& context, bool worked, const std::string& text) {
  if (!worked) context.ftp->Disconnect();
  return After(context, worked, text);
}

}  // namespace

PhaseResult OpenServerSession(const RunContext& context) {
  if (context.ftp == nullptr) return kGoOn;
  const RunArguments& arguments = context.arguments;
  context.progress.SetText2("Connecting...");
  if (auto end = After(context, context.ftp->FTPConnect(arguments.ServerAddress, arguments.Port),
                       "Cannot connect to Server.  Please check your Internet Connection and Server URL.")) {
    return end;
  }
  context.progress.SetText2("Logging in...");
  if (auto end = AfterClosing(context, context.ftp->FTPLogin(arguments.UserName, arguments.Password),
                              "Invalid User ID or Password.")) {
    return end;
  }
  if (arguments.BaseDirectory.empty()) return kGoOn;
  context.progress.SetText2("Switching to Base Directory...");
  return AfterClosing(context, context.ftp->FTPChangeDirectory(arguments.BaseDirectory),
                      "Cannot switch to specified base Directory \"" + arguments.BaseDirectory + "\".");
}

PhaseResult UploadFolderAndEnd(const RunContext& context) {
  if (context.run.mode != GenerationMode::Upload) return kGoOn;
  const RunArguments& arguments = context.arguments;
  FolderUpload upload({*context.ftp, context.run.files.Paths(), context.boxes, context.loop, context.cancel,
                       context.progress, [&context](const std::string& text) { context.host.ShowStatus(text); }});
  const std::int32_t steps = upload.CountSteps(arguments.OutputFolder);
  if (context.cancel.CancelRequested()) return RunEnd::Failure;
  context.progress.SetMax(steps);
  const bool sent = upload.UploadFolder(arguments.OutputFolder, arguments.RemoteFolder, arguments.Overwrite);
  if (!sent) return RunEnd::Failure;
  upload.TellLeftOut();
  return RunEnd::Success;
}

}  // namespace vantorium
