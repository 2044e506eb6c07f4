#pragma once

#include "publish/AsioFTPSocket.h"
#include "publish/mFTP.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FTPRunWindow.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"

#include <functional>

namespace vantorium::publish {

/// The FTP client with real sockets. Drive C: is a temporary folder.
struct NetworkClient {
  explicit NetworkClient(FTPTimeLimits limits = {std::chrono::seconds(20), std::chrono::seconds(20)})
      : ftp(std::make_unique<AsioFTPSocket>(loop), std::move(ownedData), paths, boxes, loop, cancel, limits) {
    ftp.FTPProgress = &window;
  }

  /// Whether the current turn of the event loop is one of a blocking write.
  [[nodiscard]] bool IsInsideAWrite() const { return data.IsConnected() && data.IsBlocking(); }

  /// Confirms a cancel in the first turn of the event loop in which `isTime` returns true.
  void CancelWhen(const std::function<bool()>& isTime) {
    loop.onTurn = [this, isTime](int) {
      if (cancel.isRequested || !isTime()) return;
      cancel.isRequested = true;
      ftp.FTPCancelData();
    };
  }

  /// The texts of all message boxes.
  [[nodiscard]] std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const auto& box : boxes.boxes) texts.push_back(box.text);
    return texts;
  }

  fakes::TemporaryFolder folder;
  env::PathMap paths{{{'C', folder.Path().string()}}};
  fakes::RecordingMessageBox boxes;
  fakes::CountingEventLoop loop;
  fakes::CancelSwitch cancel;
  fakes::FTPRunWindow window;
  std::unique_ptr<AsioFTPSocket> ownedData = std::make_unique<AsioFTPSocket>(loop);
  const AsioFTPSocket& data = *ownedData;
  mFTP ftp;
};

}  // namespace vantorium::publish
