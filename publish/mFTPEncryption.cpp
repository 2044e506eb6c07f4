// The control connection becomes encrypted (RFC 4217) before anything secret is sent.
#include "publish/mFTP.h"

namespace vantorium::publish {
namespace {

std::string Quoted(const std::string& host) {
  return "\"" + host + "\"";
}

}  // namespace

bool mFTP::Encrypt(const std::string& host) {
  std::string reply;
  if (FTPExecute("AUTH TLS", reply, Logging::Logged) != 234) {
    return RefuseEncryption("The server " + Quoted(host) + " offers no encryption (TLS).");
  }
  const TlsHandshake handshake = sockCmd_->StartTls(host, nullptr);
  if (!handshake.done) {
    return RefuseEncryption("The connection with the server " + Quoted(host) +
                            " cannot be encrypted: " + handshake.problem + ".");
  }
  if (!Trust(host, handshake.certificate)) return false;
  fingerprint_ = handshake.certificate.fingerprint;
  if (FTPSendCommand("PBSZ 0") == 200 && FTPSendCommand("PROT P") == 200) return true;
  // A server does not wait for ever for an answer about its certificate.
  const bool isThere = sockCmd_->IsConnected();
  return RefuseEncryption("The server " + Quoted(host) +
                          (isThere ? " offers no encryption for files (PROT P)." : " has ended the connection."));
}

/// A fingerprint is stronger than the system's certificates: who gave it wants this certificate only.
bool mFTP::Trust(const std::string& host, const ServerCertificate& certificate) {
  const std::string description = "\r\r" + DescriptionOf(certificate);
  if (!Options.fingerprint.empty()) {
    if (certificate.fingerprint == Options.fingerprint) return true;
    return RefuseEncryption("The certificate of the server " + Quoted(host) +
                            " has changed: it is not the one that was accepted. Another server may pretend to be this "
                            "one. The password was not sent.\r\rAccepted fingerprint: " +
                            Options.fingerprint + description);
  }
  if (certificate.doubt.empty() || (Certificates != nullptr && Certificates->Accepts(host, certificate))) return true;
  return RefuseEncryption("The certificate of the server " + Quoted(host) + " is not trusted: " + certificate.doubt +
                          ". The password was not sent." + description);
}

bool mFTP::RefuseEncryption(const std::string& problem) {
  encryptionProblem_ = problem;
  sockCmd_->Close();
  return false;
}

}  // namespace vantorium::publish
