#pragma once

#include "env/MessageBoxPort.h"
#include "publish/CertificatePrompt.h"

#include <filesystem>

namespace vantorium::ui {

/// Asks the user about a certificate, and remembers the one that was accepted in the list of servers.
class CertificateQuestion : public publish::CertificatePrompt {
 public:
  /// `serverListFile`: see publish/ServerListFile.h.
  CertificateQuestion(std::filesystem::path serverListFile, env::MessageBoxPort& boxes)
      : serverListFile_(std::move(serverListFile)), boxes_(boxes) {}

  [[nodiscard]] bool Accepts(const std::string& host, const publish::ServerCertificate& certificate) override;

 private:
  std::filesystem::path serverListFile_;
  env::MessageBoxPort& boxes_;
};

}  // namespace vantorium::ui
