#include "core/generation/ServerPhases.h"

#include "core/generation/changes/ChangedUploads.h"
#include "core/generation/changes/Changes.h"
#include "publish/UploadFolder.h"

namespace vantorium::generation {
namespace {

const char kFtpError[] = "FTP Error";

std::string ConnectFailure(const publish::mFTP& ftp) {
  if (!ftp.EncryptionProblem().empty()) return ftp.EncryptionProblem();
  return "Cannot connect to Server.  Please check your Internet Connection and Server URL.";
}

/// Returns the result of a server operation that worked or failed. A cancel takes precedence over both.
PhaseResult After(const RunContext& context, bool worked, const std::string& text) {
  if (context.environment.cancel.CancelRequested()) return RunEnd::Cancelled;
  if (worked) return kGoOn;
  return context.Fail(kFtpError, text);
}

/// The same for an operation without which the connection is useless: disconnects if it failed.
PhaseResult AfterClosing(const RunContext& context, bool worked, const std::string& text) {
  if (!worked) context.environment.ftp->Disconnect();
  return After(context, worked, text);
}

}  // namespace

PhaseResult OpenServerSession(const RunContext& context) {
  const RunOrder& order = context.order;
  publish::mFTP& ftp = *context.environment.ftp;
  context.progress.SetText2("Connecting...");
  const bool connected = ftp.FTPConnect(order.ServerAddress, order.Port);
  if (auto end = After(context, connected, ConnectFailure(ftp))) return end;
  context.progress.SetText2("Logging in...");
  if (auto end = AfterClosing(context, ftp.FTPLogin(order.UserName, order.Password), "Invalid User ID or Password.")) {
    return end;
  }
  if (order.BaseDirectory.empty()) return kGoOn;
  context.progress.SetText2("Switching to Base Directory...");
  return AfterClosing(context, ftp.FTPChangeDirectory(order.BaseDirectory),
                      "Cannot switch to specified base Directory \"" + order.BaseDirectory + "\".");
}

PhaseResult SendFolder(const RunContext& context) {
  const RunOrder& order = context.order;
  const RunEnvironment& environment = context.environment;
  std::optional<ChangedUploads> changed;
  if (context.changes != nullptr) {
    changed.emplace(order, context.run.files.Paths(), context.changes->Known(), *environment.ftp);
  }
  publish::FTPUploads& uploads = changed ? static_cast<publish::FTPUploads&>(*changed) : *environment.ftp;
  publish::FolderUpload upload({uploads, context.run.files.Paths(), environment.boxes, environment.loop,
                                environment.cancel, context.progress, environment.host});
  const std::int32_t steps = upload.CountSteps(order.OutputFolder);
  if (environment.cancel.CancelRequested()) return RunEnd::Failure;
  context.progress.SetMax(steps);
  const bool sent = upload.UploadFolder(order.OutputFolder, order.RemoteFolder, order.Overwrite);
  if (!sent) return RunEnd::Failure;
  upload.TellLeftOut();
  return kGoOn;
}

}  // namespace vantorium::generation
