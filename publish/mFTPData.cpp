// The data connection: active as in RFC 959, or opened by the client (RFC 2428, else RFC 959), and encrypted like the
// control connection (RFC 4217).
#include "env/RuntimeFailure.h"
#include "publish/PassiveReply.h"
#include "publish/mFTP.h"

namespace vantorium::publish {
namespace {

bool IsIPv6(const std::string& address) {
  return address.find(':') != std::string::npos;
}

}  // namespace

bool mFTP::OpenDataConnection(const std::string& remotePath) {
  if (!(Options.passive ? OpenPassively() : FTPOpenDataPort())) return false;
  if (Opens(FTPSendCommand("STOR " + remotePath)) && AcceptData() && EncryptData()) {
    sockData_->BeginFile();
    return true;
  }
  sockData_->Close();
  return false;
}

/// 125 says that the data connection is already there, so in active mode only a server that takes one for another says
/// it.
bool mFTP::Opens(std::int16_t code) const {
  return code == 150 || (code == 125 && (Options.passive || Options.encrypted));
}

bool mFTP::FTPOpenDataPort() {
  FTPSocketSettings settings;
  settings.portAddress = sockCmd_->LocalAddress();
  settings.acceptFrom = sockCmd_->PeerAddress();
  const bool isIPv6 = IsIPv6(settings.portAddress);
  if (isIPv6) settings.listenAddress = "::";
  sockData_->Configure(settings);
  if (sockData_->Listen() == 0 &&
      FTPSendCommand(isIPv6 ? "EPRT " + sockData_->ExtendedPortArgument() : "PORT " + sockData_->PortArgument()) ==
          200 &&
      FTPSendCommand("TYPE I") == 200) {
    return true;
  }
  sockData_->Close();
  return false;
}

/// Connects to the host of the control connection, whatever host the reply names.
bool mFTP::OpenPassively() {
  if (FTPSendCommand("TYPE I") != 200) return false;
  const auto port = AskForPort();
  if (!port) return false;
  FTPSocketSettings settings;
  settings.host = sockCmd_->PeerAddress();
  settings.port = *port;
  settings.anyFamily = true;
  settings.timeLimit = limits_.control;
  sockData_->Configure(settings);
  return sockData_->Connect() == 0;
}

/// PASV knows IPv4 only.
std::optional<std::uint16_t> mFTP::AskForPort() {
  std::string reply;
  if (!refusesEpsv_) {
    if (FTPExecute("EPSV", reply, Logging::Logged) == 229) return PortOfEpsvReply(reply);
    refusesEpsv_ = true;
  }
  if (IsIPv6(sockCmd_->PeerAddress()) || FTPExecute("PASV", reply, Logging::Logged) != 227) return std::nullopt;
  return PortOfPasvReply(reply);
}

bool mFTP::AcceptData() {
  if (Options.passive) return true;
  try {
    sockData_->Accept(*sockCmd_);
    return true;
  } catch (const env::RuntimeFailure&) {
    return false;
  }
}

/// The certificate must be the very one that was accepted for the session.
bool mFTP::EncryptData() {
  FTPSocketSettings settings;
  if (Options.encrypted) {
    settings.timeLimit = limits_.control;
    sockData_->Configure(settings);
    const TlsHandshake handshake = sockData_->StartTls(host_, sockCmd_->Ticket());
    if (!handshake.done || handshake.certificate.fingerprint != fingerprint_) {
      FTPLog("The data connection is not encrypted. " + handshake.problem + "\r\n");
      sockData_->Close();
      std::string reason;
      FTPReadReply(reason, Logging::Logged);
      return false;
    }
  }
  // The user decides how long a file may take.
  settings.timeLimit = {};
  if (Options.passive || Options.encrypted) sockData_->Configure(settings);
  return true;
}

/// The end of the connection means the end of the file, so an incomplete transfer must not end like a complete one.
bool mFTP::EndData(bool sent) {
  bool isWhole = sent;
  if (!sent) {
    sockData_->Reset();
  } else if (Options.encrypted) {
    FTPSocketSettings settings;
    settings.timeLimit = limits_.control;
    sockData_->Configure(settings);
    isWhole = sockData_->Finish();
  } else {
    sockData_->Close();
  }
  std::string closingReply;
  const auto code = FTPReadReply(closingReply, Logging::Logged);
  // In clear, once the bytes are sent, the result is fixed, whatever the server replies.
  hasConfirmed_ = isWhole && code >= 200 && code < 300;
  return Options.encrypted ? hasConfirmed_ : sent;
}

}  // namespace vantorium::publish
