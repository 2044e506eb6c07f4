#pragma once

#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "publish/CancelState.h"
#include "publish/CertificatePrompt.h"
#include "publish/FTPOptions.h"
#include "publish/FTPSocket.h"
#include "publish/FTPUploads.h"
#include "publish/ProgressWindow.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium::publish {

struct FTPTimeLimits {
  /// Of each blocking call on the control connection.
  std::chrono::milliseconds control{60000};
  /// The same after a cancel is confirmed: a nearby server answers in this time, and the user does not wait for others.
  std::chrono::milliseconds afterCancel{30};
};

/// A small, strictly synchronous FTP client (RFC 959) that only stores files; by Options in passive mode (RFC 2428) and
/// encrypted (RFC 4217). A session is FTPConnect, FTPLogin, then any of the others, then Disconnect; there is no QUIT,
/// and nothing is retried. Remote paths are sent to the server as given, relative to the directory of the last
/// successful FTPChangeDirectory; paths and replies are bytes without an encoding.
///
/// Every operation runs to its end and meanwhile gives the event loop turns, inside which FTPCancelData may be called.
/// It reports through its result, through text in the log of FTPProgress, which shows replies unchanged and never
/// commands, and for a few failures through a message box "FTP Error", unless the user has cancelled the run.
class mFTP : public FTPUploads {
 public:
  mFTP(std::unique_ptr<FTPSocket> sockCmd, std::unique_ptr<FTPSocket> sockData, const env::PathMap& paths,
       env::MessageBoxPort& boxes, env::EventLoop& loop, const CancelState& cancel, FTPTimeLimits limits = {});

  /// The window of the current run: set before the run's first call, and reset to null when the window is destroyed.
  ProgressWindow* FTPProgress = nullptr;

  /// How the next session talks to its server: set before FTPConnect.
  FTPOptions Options;
  /// Asked about a certificate that nothing vouches for; null: such a certificate is refused.
  CertificatePrompt* Certificates = nullptr;

  [[nodiscard]] bool IsConnected() const { return sockCmd_->IsConnected(); }
  /// Closes the control connection and any data connection.
  void Disconnect();

  /// Returns true if the server greets with 220 and, if the session is to be encrypted, both connections will be: the
  /// user name and the password are never sent in clear instead. Port 0 means 21.
  [[nodiscard]] bool FTPConnect(std::string_view host, std::uint16_t port = 21);
  /// Why the last FTPConnect did not encrypt the session, for the user; empty if it did not come to that.
  [[nodiscard]] const std::string& EncryptionProblem() const { return encryptionProblem_; }
  /// Returns true on a final 230. The password is sent only if the server answers 331 to the user name.
  [[nodiscard]] bool FTPLogin(std::string_view user, std::string_view password);

  [[nodiscard]] bool FTPChangeDirectory(const std::string& path);
  /// Returns true on 250, so false on the standard's 257: to find out whether the folder exists, enter it.
  bool FTPMakeDirectory(const std::string& path);
  /// Creates each level of a path below the current directory and returns there. Returns true if every level could be
  /// entered and left; after false the session stays in the directory it has reached. An empty level ends the walk.
  [[nodiscard]] bool FTPCreateDirectoryPath(const std::string& path) override;

  /// Returns true if the server accepts to rename the file, which then keeps its name.
  [[nodiscard]] bool FTPFileExists(const std::string& path);
  /// Returns true on 250.
  bool FTPDeleteFile(const std::string& path);
  /// Returns the size as FileSizeText, "0KB" if the server does not report it. Throws RuntimeFailure TypeMismatch or
  /// Overflow if the server reports something that is not a 32-bit number.
  [[nodiscard]] std::string FTPGetFileSize(const std::string& path);

  /// Returns the size in bytes of a file on the server (RFC 3659), or nullopt if the server does not report one.
  [[nodiscard]] std::optional<std::uint64_t> FTPStoredSize(const std::string& path);
  /// Whether the server has confirmed the last file of FTPStoreFile: it was sent, and the closing reply was positive.
  [[nodiscard]] bool FTPHasConfirmed() const { return hasConfirmed_; }

  /// Sends a local file, given as path text. Returns true if all of it was sent, whatever the server then replies, or
  /// if the file already exists and `overwrite` is false. An encrypted transfer must also end in order on both sides
  /// and be confirmed by the server. Throws RuntimeFailure DivisionByZero for an empty file, after the server has begun
  /// to store it and with the data connection left open.
  [[nodiscard]] bool FTPStoreFile(const std::string& localPath, const std::string& remotePath, bool overwrite);
  /// Like FTPStoreFile, but the remote path may contain backslashes, and the remote file is deleted if the result is
  /// false.
  [[nodiscard]] bool FTPCopyFile(const std::string& localPath, const std::string& remotePath, bool overwrite) override;

  /// Aborts the blocking call in progress, if any; for use from a turn of the event loop after a cancel is confirmed.
  void FTPCancelData();

 private:
  enum class Logging { Logged, Quiet };

  /// Sends a command and returns the reply's code, 0 if there is none. A command that contains CR, LF or NUL is more
  /// than one command or half of one: it is never sent and has the code 0.
  [[nodiscard]] std::int16_t FTPExecute(const std::string& command, std::string& replyText, Logging logging);
  std::int16_t FTPSendCommand(const std::string& command, Logging logging = Logging::Logged);
  std::int16_t FTPReadReply(std::string& replyText, Logging logging);

  /// Returns true on 250; any other code closes the data connection.
  [[nodiscard]] bool DirectoryCommand(const std::string& command);
  [[nodiscard]] bool LeaveDirectories(int depth);

  // The control connection, in mFTPEncryption.cpp.
  [[nodiscard]] bool Encrypt(const std::string& host);
  [[nodiscard]] bool Trust(const std::string& host, const ServerCertificate& certificate);
  bool RefuseEncryption(const std::string& problem);

  // The data connection, in mFTPData.cpp.
  [[nodiscard]] bool OpenDataConnection(const std::string& remotePath);
  [[nodiscard]] bool FTPOpenDataPort();
  [[nodiscard]] bool OpenPassively();
  [[nodiscard]] std::optional<std::uint16_t> AskForPort();
  [[nodiscard]] bool Opens(std::int16_t code) const;
  [[nodiscard]] bool AcceptData();
  [[nodiscard]] bool EncryptData();
  [[nodiscard]] bool EndData(bool sent);

  [[nodiscard]] bool SendFile(const std::string& localPath, std::int32_t length);
  /// Throws as FTPStoreFile.
  [[nodiscard]] bool SendBlocks(class LocalFile& file, std::int32_t length);

  void FTPShowError(const std::string& text);
  void FTPLog(const std::string& text);
  void ShowPercentage(std::int16_t percentage);

  std::unique_ptr<FTPSocket> sockCmd_;
  std::unique_ptr<FTPSocket> sockData_;
  const env::PathMap& paths_;
  env::MessageBoxPort& boxes_;
  env::EventLoop& loop_;
  const CancelState& cancel_;
  FTPTimeLimits limits_;
  std::string host_;               ///< of the session
  std::string fingerprint_;        ///< of the session's certificate
  std::string encryptionProblem_;  //
  bool refusesEpsv_ = false;       ///< the session's server
  bool isBinary_ = false;          ///< whether the session has agreed to binary transfers
  bool hasConfirmed_ = false;      ///< see FTPHasConfirmed
};

}  // namespace vantorium::publish
