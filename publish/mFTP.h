#pragma once

#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "publish/CancelState.h"
#include "publish/FTPSocket.h"
#include "publish/FTPUploads.h"
#include "publish/ProgressWindow.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vantorium {

struct FTPTimeLimits {
  /// Of each blocking call on the control connection.
  std::chrono::milliseconds control{60000};
  /// The same once a cancel is confirmed: a server that is near answers by then, and the user waits for no other.
  std::chrono::milliseconds afterCancel{30};
};

/// A small, strictly synchronous FTP client (RFC 959) that only stores files, in active mode. A session is FTPConnect,
/// FTPLogin, then any of the others, then Disconnect; there is no QUIT and nothing is tried twice. Remote paths go to
/// the server as given, relative to where the last successful FTPChangeDirectory left the session; both these and
/// replies are bytes without an encoding.
///
/// Every operation runs to its end and gives the event loop turns meanwhile, inside which FTPCancelData may be called.
/// It reports by its result, by text in the log of FTPProgress, where replies stand as they came and commands never,
/// and for a few failures by a message box "FTP Error", unless the user has cancelled the run.
class mFTP : public FTPUploads {
 public:
  mFTP(std::unique_ptr<FTPSocket> sockCmd, std::unique_ptr<FTPSocket> sockData, const PathMap& paths,
       MessageBoxPort& boxes, EventLoop& loop, const CancelState& cancel, FTPTimeLimits limits = {});

  /// The window of the run under way: set before the run's first call, and to nothing when the window goes.
  ProgressWindow* FTPProgress = nullptr;

  [[nodiscard]] bool IsConnected() const { return sockCmd_->IsConnected(); }
  /// Closes the control connection, and whatever is left of a data connection.
  void Disconnect();

  /// True when the server greets with 220. Port 0 is 21.
  [[nodiscard]] bool FTPConnect(std::string_view host, std::uint16_t port = 21);
  /// True on a final 230; a server that answers so to the name alone gets no password.
  [[nodiscard]] bool FTPLogin(std::string_view user, std::string_view password);

  [[nodiscard]] bool FTPChangeDirectory(const std::string& path);
  /// True on 250, so false on the standard's 257: whether the folder is there is found out by entering it.
  bool FTPMakeDirectory(const std::string& path);
  /// Makes each level of a path below the current directory and returns there. True when every level could be entered
  /// and left; after a false the session stays where it is. An empty level ends the walk.
  [[nodiscard]] bool FTPCreateDirectoryPath(const std::string& path) override;

  /// True when the server would rename the file, which then keeps its name.
  [[nodiscard]] bool FTPFileExists(const std::string& path);
  /// True on 250.
  bool FTPDeleteFile(const std::string& path);
  /// Size as FileSizeText, "0KB" when the server does not tell. Throws RuntimeFailure TypeMismatch or Overflow when it
  /// tells something that is no number of 32 bits.
  [[nodiscard]] std::string FTPGetFileSize(const std::string& path);

  /// Sends a local file, given as path text. True when all of it is out, whatever the server says then, and when it is
  /// there already and `overwrite` is false. Throws RuntimeFailure DivisionByZero for an empty file, after the server
  /// has begun to store it and with the data connection left open.
  [[nodiscard]] bool FTPStoreFile(const std::string& localPath, const std::string& remotePath, bool overwrite);
  /// FTPStoreFile, which may have backslashes in the remote path. When it gives false, the remote file is deleted.
  [[nodiscard]] bool FTPCopyFile(const std::string& localPath, const std::string& remotePath, bool overwrite) override;

  /// Aborts the blocking call under way, if any; for use from a turn of the event loop once a cancel is confirmed.
  void FTPCancelData();

 private:
  enum class Logging { Logged, Quiet };

  /// The reply's code, 0 when none could be had. A command that holds CR, LF or NUL is more than one command or half of
  /// one: it is never sent and has the code 0.
  [[nodiscard]] std::int16_t FTPExecute(const std::string& command, std::string& replyText, Logging logging);
  std::int16_t FTPSendCommand(const std::string& command, Logging logging = Logging::Logged);
  std::int16_t FTPReadReply(std::string& replyText, Logging logging);

  /// As FTPSendCommand; anything but 250 closes the data connection.
  [[nodiscard]] bool DirectoryCommand(const std::string& command);
  [[nodiscard]] bool LeaveDirectories(int depth);

  [[nodiscard]] bool FTPOpenDataPort();
  [[nodiscard]] bool OpenDataConnection(const std::string& remotePath);
  [[nodiscard]] bool AcceptData();
  [[nodiscard]] bool SendFile(const std::string& localPath, std::int32_t length);
  /// Throws as FTPStoreFile.
  [[nodiscard]] bool SendBlocks(class LocalFile& file, std::int32_t length);

  void FTPShowError(const std::string& text);
  void FTPLog(const std::string& text);
  void ShowPercentage(std::int16_t percentage);

  std::unique_ptr<FTPSocket> sockCmd_;
  std::unique_ptr<FTPSocket> sockData_;
  const PathMap& paths_;
  MessageBoxPort& boxes_;
  EventLoop& loop_;
  const CancelState& cancel_;
  FTPTimeLimits limits_;
};

}  // namespace vantorium
