#include "publish/mFTP.h"

#include "env/Numbers.h"
#include "env/PathText.h"
#include "env/Text.h"
#include "env/mFileFunctions.h"
#include "publish/FTPReply.h"

#include <charconv>
#include <utility>

namespace vantorium::publish {
namespace {

constexpr std::uint16_t kFTPPort = 21;
constexpr std::size_t kReplyPiece = 512;
constexpr const char* kUnknownSize = "0KB";
/// What is read of a reply after a cancel. In clear a reply comes in one piece, with TLS each line may come on its own,
/// and a server that still has something to say might not take the next command.
constexpr int kMostLinesAfterCancel = 20;

std::string WithoutBlanksAround(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool IsOneLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

/// Like FileSizeText, but keeps the negative size that a server may claim.
std::string ClaimedSizeText(std::int32_t size) {
  if (size < 0) return std::to_string(size) + " Bytes";
  return env::FileSizeText(static_cast<std::uint64_t>(size));
}

}  // namespace

mFTP::mFTP(std::unique_ptr<FTPSocket> sockCmd, std::unique_ptr<FTPSocket> sockData, const env::PathMap& paths,
           env::MessageBoxPort& boxes, env::EventLoop& loop, const CancelState& cancel, FTPTimeLimits limits)
    : sockCmd_(std::move(sockCmd)),
      sockData_(std::move(sockData)),
      paths_(paths),
      boxes_(boxes),
      loop_(loop),
      cancel_(cancel),
      limits_(limits) {}

void mFTP::Disconnect() {
  sockData_->Close();
  sockCmd_->Close();
}

bool mFTP::FTPConnect(std::string_view host, std::uint16_t port) {
  if (sockCmd_->IsConnected()) sockCmd_->Close();
  isBinary_ = false;
  FTPSocketSettings settings;
  settings.host = WithoutBlanksAround(host);
  settings.port = port == 0 ? kFTPPort : port;
  settings.anyFamily = Options.passive || Options.encrypted;
  settings.timeLimit = limits_.control;
  encryptionProblem_.clear();
  refusesEpsv_ = false;
  host_ = settings.host;
  if (settings.host.empty()) return false;
  sockCmd_->Configure(settings);
  if (sockCmd_->Connect() != 0) return false;

  std::string greeting;
  if (FTPReadReply(greeting, Logging::Logged) == 220 && (!Options.encrypted || Encrypt(host_))) return true;
  sockCmd_->Close();
  return false;
}

bool mFTP::FTPLogin(std::string_view user, std::string_view password) {
  auto code = FTPSendCommand("USER " + WithoutBlanksAround(user));
  if (code == 331) code = FTPSendCommand("PASS " + WithoutBlanksAround(password));
  return code == 230;
}

bool mFTP::DirectoryCommand(const std::string& command) {
  if (FTPSendCommand(command) == 250) return true;
  sockData_->Close();
  return false;
}

bool mFTP::FTPChangeDirectory(const std::string& path) {
  return DirectoryCommand("CWD " + path);
}

bool mFTP::FTPMakeDirectory(const std::string& path) {
  return DirectoryCommand("MKD " + path);
}

bool mFTP::FTPCreateDirectoryPath(const std::string& path) {
  FTPLog("Creating directory " + path + "\r\n");
  std::string rest = env::WithSlashes(path);
  if (!rest.ends_with('/')) rest += '/';
  if (rest.starts_with('/')) rest.erase(0, 1);

  int depth = 0;
  for (auto slash = rest.find('/'); slash != std::string::npos && slash > 0; slash = rest.find('/')) {
    loop_.Turn();
    const std::string level = rest.substr(0, slash);
    FTPMakeDirectory(level);
    if (!FTPChangeDirectory(level)) return false;
    ++depth;
    rest.erase(0, slash + 1);
  }
  return LeaveDirectories(depth);
}

bool mFTP::LeaveDirectories(int depth) {
  for (; depth > 0; --depth) {
    loop_.Turn();
    if (!FTPChangeDirectory("..")) return false;
  }
  return true;
}

bool mFTP::FTPFileExists(const std::string& path) {
  if (FTPSendCommand("RNFR " + path, Logging::Quiet) != 350) return false;
  FTPSendCommand("RNTO " + path, Logging::Quiet);
  return true;
}

bool mFTP::FTPDeleteFile(const std::string& path) {
  FTPLog("Deleting file " + path + "\r\n");
  return FTPSendCommand("DELE " + path) == 250;
}

std::string mFTP::FTPGetFileSize(const std::string& path) {
  FTPLog("Reading file size for " + path + " ... ");
  if (path.empty()) return kUnknownSize;
  std::string reply;
  if (FTPExecute("SIZE " + path, reply, Logging::Logged) == 213) return ClaimedSizeText(env::ParseInt32(reply));
  sockData_->Close();
  return kUnknownSize;
}

/// Some servers report the size of a binary transfer only.
std::optional<std::uint64_t> mFTP::FTPStoredSize(const std::string& path) {
  FTPLog("Reading file size for " + path + " ... ");
  if (!isBinary_) isBinary_ = FTPSendCommand("TYPE I") == 200;
  std::string reply;
  if (FTPExecute("SIZE " + path, reply, Logging::Logged) != 213) return std::nullopt;
  std::uint64_t size = 0;
  const auto [end, error] = std::from_chars(reply.data(), reply.data() + reply.size(), size);
  const bool isNumber = error == std::errc() && end == reply.data() + reply.size();
  return isNumber ? std::optional(size) : std::nullopt;
}

void mFTP::FTPCancelData() {
  if (sockData_->IsBlocking()) sockData_->CancelBlockingCall();
  if (sockCmd_->IsBlocking()) sockCmd_->CancelBlockingCall();
  FTPSocketSettings settings;
  settings.timeLimit = limits_.afterCancel;
  sockCmd_->Configure(settings);
}

std::int16_t mFTP::FTPSendCommand(const std::string& command, Logging logging) {
  std::string unused;
  return FTPExecute(command, unused, logging);
}

std::int16_t mFTP::FTPExecute(const std::string& command, std::string& replyText, Logging logging) {
  if (!IsOneLine(command)) return 0;
  const std::string line = command + "\r\n";
  const auto count = sockCmd_->Write(line);
  if (count == static_cast<std::ptrdiff_t>(line.size())) return FTPReadReply(replyText, logging);
  if (count == -1) {
    sockCmd_->Close();
    FTPShowError("Connection with the server has been terminated");
  }
  return 0;
}

std::int16_t mFTP::FTPReadReply(std::string& replyText, Logging logging) {
  const bool wasCancelled = cancel_.CancelRequested();
  int piecesLeft = Options.encrypted ? kMostLinesAfterCancel : 1;
  FTPReply reply;
  do {
    const std::string piece = sockCmd_->Read(kReplyPiece);
    if (piece.empty()) break;
    if (logging == Logging::Logged) FTPLog(piece);
    reply.Take(piece);
    if (reply.IsTooLong()) break;
    if (reply.IsComplete()) {
      replyText = reply.Text();
      return reply.Code();
    }
    loop_.Turn();
    --piecesLeft;
  } while (!wasCancelled || piecesLeft > 0);
  // After a cancel the connection stays open, so that even a slow server gets the command that cleans up.
  if (!wasCancelled) sockCmd_->Close();
  return 0;
}

// A transfer that the user cancels fails for that reason alone and needs no message.
void mFTP::FTPShowError(const std::string& text) {
  if (!cancel_.CancelRequested()) boxes_.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, "FTP Error", text);
}

void mFTP::FTPLog(const std::string& text) {
  if (FTPProgress != nullptr) FTPProgress->SetText3(text, true);
}

void mFTP::ShowPercentage(std::int16_t percentage) {
  if (FTPProgress != nullptr) FTPProgress->SetFileProgress(percentage);
}

}  // namespace vantorium::publish
