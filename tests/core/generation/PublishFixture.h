#pragma once

#include "publish/AsioFTPSocket.h"
#include "tests/core/generation/RunFixture.h"
#include "tests/fakes/ScriptedFtpServer.h"

#include <memory>
#include <set>
#include <string>

namespace vantorium::generation {

/// Runs to a server. The temporary folder is T:\temp.
class PublishFixture : public RunFixture {
 protected:
  PublishFixture() {
    environment.ftp = &ftp;
    cancel.OnCancel([this] { ftp.FTPCancelData(); });
  }

  [[nodiscard]] static RunOrder PublishTo(const fakes::ScriptedFtpServer& server) {
    RunOrder order = OrderFor(GenerationMode::Publish, "T:\\temp\\");
    order.RemoteFolder = "web/";
    order.RemoteIndexFileName = "index.htm";
    order.ServerAddress = "127.0.0.1";
    order.Port = server.Port();
    order.UserName = "me";
    order.Password = "secret";
    return order;
  }
  [[nodiscard]] static RunOrder UploadTo(const fakes::ScriptedFtpServer& server) {
    RunOrder order = PublishTo(server);
    order.Mode = GenerationMode::Upload;
    order.OutputFolder = "T:\\folder\\";
    return order;
  }
  [[nodiscard]] static std::set<std::string> NamesOn(const fakes::ScriptedFtpServer& server) {
    std::set<std::string> names;
    for (const auto& [name, bytes] : server.Files()) names.insert(name);
    return names;
  }
  /// A server that answers `verb` with `reply` and all other verbs normally.
  [[nodiscard]] static fakes::ScriptedFtpServer::Script Answering(const std::string& verb, const std::string& reply) {
    fakes::ScriptedFtpServer::Script script;
    script.on[verb] = [reply](fakes::ScriptedFtpServer::Session& session, const std::string&) { session.Say(reply); };
    return script;
  }

  std::unique_ptr<publish::AsioFTPSocket> ownedData = std::make_unique<publish::AsioFTPSocket>(loop);
  const publish::AsioFTPSocket* data = ownedData.get();
  publish::mFTP ftp{std::make_unique<publish::AsioFTPSocket>(loop),
                    std::move(ownedData),
                    paths,
                    boxes,
                    loop,
                    cancel,
                    publish::FTPTimeLimits{std::chrono::seconds(20), std::chrono::milliseconds(300)}};
};

}  // namespace vantorium::generation
