#pragma once

#include "env/RuntimeFailure.h"
#include "publish/FTPSocket.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vantorium::fakes {

/// A socket without a network. Records each call that changes something in a journal, which several sockets can share.
/// Answers with what the test put into its fields.
class ScriptedFTPSocket : public publish::FTPSocket {
 public:
  ScriptedFTPSocket(std::string name, std::vector<std::string>& journal) : name_(std::move(name)), journal_(journal) {}

  [[nodiscard]] bool IsConnected() const override { return isConnected; }
  void Close() override {
    Note("close");
    isConnected = false;
  }
  void Reset() override {
    Note("reset");
    isConnected = false;
  }
  void Configure(const publish::FTPSocketSettings& given) override { settings = given; }
  [[nodiscard]] int Connect() override {
    Note("connect " + settings.host + " " + std::to_string(settings.port));
    isConnected = connectResult == 0;
    return connectResult;
  }
  [[nodiscard]] int Listen() override {
    Note("listen");
    return listenResult;
  }
  [[nodiscard]] std::string LocalAddress() const override { return localAddress; }
  [[nodiscard]] std::string PeerAddress() const override { return peerAddress; }
  [[nodiscard]] std::string PortArgument() const override { return settings.portAddress + ":port"; }
  [[nodiscard]] std::string ExtendedPortArgument() const override { return "|" + settings.portAddress + "|port|"; }
  void Accept(const publish::FTPSocket& /*control*/) override {
    Note("accept");
    if (acceptFails) throw env::RuntimeFailure(env::FailureKind::FileAccess);
  }
  [[nodiscard]] publish::TlsHandshake StartTls(const std::string& host,
                                               const std::shared_ptr<publish::TlsTicket>& /*resumed*/) override {
    Note("tls " + host);
    return handshake;
  }
  [[nodiscard]] std::shared_ptr<publish::TlsTicket> Ticket() const override { return nullptr; }
  void BeginFile() override {}
  [[nodiscard]] bool Finish() override {
    Note("finish");
    isConnected = false;
    return finishes;
  }
  [[nodiscard]] std::string Read(std::size_t most) override {
    if (reads.empty()) return {};
    if (reads.front().size() > most) {
      std::string piece = reads.front().substr(0, most);
      reads.front().erase(0, most);
      return piece;
    }
    std::string piece = reads.front();
    reads.pop_front();
    return piece;
  }
  [[nodiscard]] bool HasNews() const override { return !reads.empty(); }
  [[nodiscard]] std::ptrdiff_t Write(std::string_view text) override {
    Note("write " + std::string(text));
    if (writeResults.empty()) return static_cast<std::ptrdiff_t>(text.size());
    const auto result = writeResults.front();
    writeResults.pop_front();
    return result;
  }
  [[nodiscard]] std::size_t WriteBytes(std::span<const char> bytes) override {
    blocks.emplace_back(bytes.begin(), bytes.end());
    return onWriteBytes ? onWriteBytes(bytes.size()) : bytes.size();
  }
  [[nodiscard]] bool IsBlocking() const override { return isBlocking; }
  void CancelBlockingCall() override { Note("cancel"); }

  bool isConnected = false;
  bool isBlocking = false;
  int connectResult = 0;
  int listenResult = 0;
  bool acceptFails = false;
  bool finishes = true;
  std::string localAddress = "10.1.2.3";
  std::string peerAddress = "10.9.8.7";
  publish::TlsHandshake handshake;
  std::deque<std::string> reads;            ///< what Read returns, in order; then the end of the stream
  std::deque<std::ptrdiff_t> writeResults;  ///< what Write returns, in order; then the length
  std::function<std::size_t(std::size_t)> onWriteBytes;
  publish::FTPSocketSettings settings;
  std::vector<std::string> blocks;

 private:
  void Note(const std::string& what) { journal_.push_back(name_ + " " + what); }

  std::string name_;
  std::vector<std::string>& journal_;
};

}  // namespace vantorium::fakes
