// Replies of an FTP server. The input is a line of letters, one for each fault to inject, a line with the path on the
// server, and then the server's output in one piece for each read, separated by "|".
#include "env/RuntimeFailure.h"
#include "publish/FTPReply.h"
#include "publish/PassiveReply.h"
#include "publish/mFTP.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FTPRunWindow.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedFTPSocket.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <optional>

using namespace vantorium;

namespace {

constexpr std::string_view kPassword = "s3cret";
constexpr std::size_t kFileBytes = 9000;

struct Script {
  std::string faults;
  std::string remotePath;
  std::deque<std::string> pieces;

  explicit Script(std::string_view input) {
    faults = fuzz::TakePart(input, '\n');
    remotePath = fuzz::TakePart(input, '\n');
    while (!input.empty()) pieces.push_back(fuzz::TakePart(input, '|'));
  }
  [[nodiscard]] bool Has(char fault) const { return faults.find(fault) != std::string::npos; }
};

/// Code, completeness and text of a reply. Returns nullopt if a line of it is invalid.
std::optional<std::string> Told(std::string_view text, std::size_t pieceSize) {
  publish::FTPReply reply;
  try {
    for (; !text.empty(); text.remove_prefix(std::min(pieceSize, text.size()))) reply.Take(text.substr(0, pieceSize));
  } catch (const env::RuntimeFailure&) {
    return std::nullopt;
  }
  fuzz::Require(reply.Code() >= 0 && reply.Code() <= 999, "a code has three digits");
  return std::to_string(reply.Code()) + (reply.IsComplete() ? " whole " : " part ") + reply.Text();
}

void CheckReply(const std::string& text) {
  const auto whole = Told(text, text.size());
  for (const std::size_t pieceSize : {1U, 2U, 7U, 512U}) {
    fuzz::Require(Told(text, pieceSize) == whole, "where a reply is split does not matter");
  }
}

/// Both kinds of replies that name a port: the port that is found does not depend on the text around it.
void CheckPorts(const std::string& text) {
  const auto epsv = publish::PortOfEpsvReply(text);
  const auto pasv = publish::PortOfPasvReply(text);
  fuzz::Require(epsv.value_or(1) > 0 && pasv.value_or(1) > 0, "there is no port 0");
  fuzz::Require(!epsv || publish::PortOfEpsvReply(text + "(|||1|)") == epsv, "the first port of EPSV counts");
  fuzz::Require(!pasv || publish::PortOfPasvReply("text " + text + " text") == pasv,
                "the text around six numbers does not matter");
}

class Client {
 public:
  explicit Client(const Script& script) : script_(script) {
    cmd_.connectResult = script.Has('c') ? 1 : 0;
    data_.listenResult = script.Has('l') ? 1 : 0;
    data_.acceptFails = script.Has('a');
    if (script.Has('b')) data_.onWriteBytes = [](std::size_t size) { return size / 2; };
    if (script.Has('w')) cmd_.writeResults = {9, -1};
    loop_.onTurn = [this](int turn) { Cancel(turn); };
    cmd_.reads = script.pieces;
    ftp_.FTPProgress = &window_;
    ftp_.Options = {.passive = script.Has('p'), .encrypted = script.Has('e'), .fingerprint = {}};
    cmd_.handshake = data_.handshake = {.done = !script.Has('h'), .problem = "no", .certificate = {}};
    data_.finishes = !script.Has('f');
    if (script.Has('6')) cmd_.peerAddress = cmd_.localAddress = "2001:db8::1";
  }

  void RunSession() {
    try {
      if (!ftp_.FTPConnect("host") || !ftp_.FTPLogin("user", kPassword)) return CheckTraces();
      UseFiles();
      ftp_.Disconnect();
    } catch (const env::RuntimeFailure&) {
    }
    CheckTraces();
  }

 private:
  void Cancel(int turn) {
    if (!script_.Has('x') || turn != 3) return;
    cancel_.isRequested = true;
    ftp_.FTPCancelData();
  }

  void UseFiles() {
    static const fakes::TemporaryFolder folder;
    static const auto file = folder.Write("photo.jpg", std::string(kFileBytes, 'x'));
    const std::string local = paths_.ToText(file);
    std::ignore = ftp_.FTPChangeDirectory(script_.remotePath);
    std::ignore = ftp_.FTPCreateDirectoryPath(script_.remotePath);
    const bool stored = ftp_.FTPCopyFile(local, script_.remotePath, !script_.Has('o'));
    fuzz::Require(!stored || data_.blocks.empty() || SentBytes() == kFileBytes, "a stored file was sent completely");
    fuzz::Require(!ftp_.FTPGetFileSize(script_.remotePath).empty(), "a size is never empty");
  }

  [[nodiscard]] std::size_t SentBytes() const {
    std::size_t bytes = 0;
    for (const std::string& block : data_.blocks) bytes += block.size();
    return bytes;
  }

  void CheckTraces() const {
    for (const std::string& call : journal_) {
      if (!call.starts_with("cmd write ")) continue;
      const auto end = call.find_first_of("\r\n");
      fuzz::Require(end != std::string::npos && end + 2 == call.size() && call.ends_with("\r\n"),
                    "a command is one line");
    }
    const bool saysPassword =
        std::ranges::any_of(journal_, [](const std::string& call) { return call.starts_with("cmd write PASS"); });
    fuzz::Require(!saysPassword || !script_.Has('e') || ftp_.EncryptionProblem().empty(),
                  "a session that cannot be encrypted sends no password");
    fuzz::Require(HasSaid(kPassword) || window_.log.find(kPassword) == std::string::npos, "passwords are not logged");
  }

  [[nodiscard]] bool HasSaid(std::string_view text) const {
    std::string all = script_.remotePath;
    for (const std::string& piece : script_.pieces) all += piece;
    return all.find(text) != std::string::npos;
  }

  const Script& script_;
  std::vector<std::string> journal_;
  std::unique_ptr<fakes::ScriptedFTPSocket> ownedCmd_ = std::make_unique<fakes::ScriptedFTPSocket>("cmd", journal_);
  std::unique_ptr<fakes::ScriptedFTPSocket> ownedData_ = std::make_unique<fakes::ScriptedFTPSocket>("data", journal_);
  fakes::ScriptedFTPSocket& cmd_ = *ownedCmd_;
  fakes::ScriptedFTPSocket& data_ = *ownedData_;
  env::PathMap paths_{{}};
  fakes::RecordingMessageBox boxes_;
  fakes::CountingEventLoop loop_;
  fakes::CancelSwitch cancel_;
  fakes::FTPRunWindow window_;
  publish::mFTP ftp_{std::move(ownedCmd_), std::move(ownedData_), paths_, boxes_, loop_, cancel_};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = fuzz::InputText(data, size);
  CheckReply(input);
  CheckPorts(input);
  const Script script(input);
  Client(script).RunSession();
  return 0;
}
