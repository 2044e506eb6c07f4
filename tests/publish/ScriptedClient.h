#pragma once

#include "publish/mFTP.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FTPRunWindow.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedFTPSocket.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::publish {

/// The FTP client with two scripted sockets. Drive C: is a temporary folder.
class ScriptedClient : public testing::Test {
 protected:
  using Journal = std::vector<std::string>;

  ScriptedClient() {
    ftp.FTPProgress = &window;
    cmd.isConnected = true;
  }

  /// Sets what the server sends from now on, one piece for each read.
  void Replies(const std::deque<std::string>& pieces) { cmd.reads = pieces; }

  /// The texts of the message boxes. Expects that all are of the FTP client's kind.
  [[nodiscard]] std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const auto& box : boxes.boxes) {
      EXPECT_EQ(box.title, "FTP Error");
      EXPECT_EQ(box.kind, env::BoxKind::Exclamation);
      EXPECT_EQ(box.buttons, env::BoxButtons::Ok);
      texts.push_back(box.text);
    }
    return texts;
  }

  Journal journal;
  std::unique_ptr<fakes::ScriptedFTPSocket> ownedCmd = std::make_unique<fakes::ScriptedFTPSocket>("cmd", journal);
  std::unique_ptr<fakes::ScriptedFTPSocket> ownedData = std::make_unique<fakes::ScriptedFTPSocket>("data", journal);
  fakes::ScriptedFTPSocket& cmd = *ownedCmd;
  fakes::ScriptedFTPSocket& data = *ownedData;
  fakes::TemporaryFolder folder;
  env::PathMap paths{{{'C', folder.Path().string()}}};
  fakes::RecordingMessageBox boxes;
  fakes::CountingEventLoop loop;
  fakes::CancelSwitch cancel;
  fakes::FTPRunWindow window;
  mFTP ftp{std::move(ownedCmd), std::move(ownedData), paths, boxes, loop, cancel};
};

}  // namespace vantorium::publish
