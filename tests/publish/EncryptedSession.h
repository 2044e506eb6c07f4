#pragma once

#include "tests/fakes/ScriptedFtpServer.h"
#include "tests/publish/SecureClient.h"

#include <gtest/gtest.h>

namespace vantorium::publish {

inline constexpr std::size_t kLargerThanAllBuffers = std::size_t{16} << 20U;

/// An encrypting client and a scripted server. By default the client accepts the server's certificate by its
/// fingerprint.
class EncryptedSession {
 public:
  explicit EncryptedSession(fakes::ScriptedFtpServer::Script script = {},
                            const fakes::TestCertificate& shown = fakes::TestCertificate())
      : server(WithCertificate(std::move(script), shown)) {
    client.folder.Write("small.jpg", "12345");
    client.folder.Write("large.jpg", std::string(kLargerThanAllBuffers, 'x'));
    client.ftp.Options = {.passive = false, .encrypted = true, .fingerprint = shown.fingerprint};
    client.ftp.Certificates = &prompt;
  }
  [[nodiscard]] bool Connect(const std::string& host = "127.0.0.1") {
    return client.ftp.FTPConnect(host, server.Port());
  }
  EncryptedSession& LogIn() {
    EXPECT_TRUE(Connect()) << Problem();
    EXPECT_TRUE(client.ftp.FTPLogin("me", "open sesame"));
    return *this;
  }
  [[nodiscard]] bool Copy(const std::string& name = "small.jpg") {
    return client.ftp.FTPCopyFile("C:\\" + name, "t.jpg", true);
  }
  [[nodiscard]] const std::string& Problem() const { return client.ftp.EncryptionProblem(); }
  [[nodiscard]] bool HasSentCredentials() const { return server.HasHeard("USER") || server.HasHeard("PASS"); }

  fakes::ScriptedFtpServer server;
  NetworkClient client;
  ScriptedCertificatePrompt prompt;

 private:
  static fakes::ScriptedFtpServer::Script WithCertificate(fakes::ScriptedFtpServer::Script script,
                                                          const fakes::TestCertificate& shown) {
    script.certificate = shown;
    return script;
  }
};

inline fakes::ScriptedFtpServer::Script On(const std::string& verb, fakes::ScriptedFtpServer::Handler handler) {
  fakes::ScriptedFtpServer::Script script;
  script.on[verb] = std::move(handler);
  return script;
}

inline fakes::ScriptedFtpServer::Script Saying(const std::string& verb, const std::string& reply) {
  return On(verb, [reply](fakes::ScriptedFtpServer::Session& session, const std::string&) { session.Say(reply); });
}

}  // namespace vantorium::publish
