#pragma once

#include "env/FileDescriptor.h"
#include "tests/fakes/TestCertificate.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantorium::fakes {

/// What all TLS connections of a server share: its certificate, and the sessions that clients may resume.
class TlsServer {
 public:
  explicit TlsServer(const TestCertificate& certificate);
  ~TlsServer();
  TlsServer(const TlsServer&) = delete;
  TlsServer& operator=(const TlsServer&) = delete;

  /// Offers TLS 1.1 at most, which no client should accept.
  void SpeakOldVersionsOnly();

 private:
  friend class ServerChannel;
  struct Settings;
  std::unique_ptr<Settings> settings_;
};

/// A server's end of a connection, encrypted or not. Calls block for at most 20 seconds. Writing to a client that
/// is gone raises SIGPIPE, which the thread has to block.
class ServerChannel {
 public:
  explicit ServerChannel(int descriptor);
  ~ServerChannel();
  ServerChannel(const ServerChannel&) = delete;
  ServerChannel& operator=(const ServerChannel&) = delete;

  [[nodiscard]] int Descriptor() const { return socket_.Get(); }
  /// Returns true when the client has ended its handshake.
  [[nodiscard]] bool StartTls(const TlsServer& server);
  /// Whether the client resumed an earlier session.
  [[nodiscard]] bool IsResumed() const;

  void Send(std::string_view text);
  /// Returns what has arrived, at most `most` bytes. Empty at the end and on failure.
  [[nodiscard]] std::string Receive(std::size_t most);
  /// Whether decrypted bytes wait for Receive.
  [[nodiscard]] bool HasReceived() const;
  /// After Receive returned nothing: whether the client ended the stream properly.
  [[nodiscard]] bool IsAtEnd() const { return isAtEnd_; }

  /// Sends close_notify. Does nothing if the connection is not encrypted.
  void SayEnd();
  /// Makes the destructor reset the connection.
  void ResetOnClose();

 private:
  struct Session;
  env::FileDescriptor socket_;
  std::unique_ptr<Session> tls_;
  bool isAtEnd_ = false;
};

}  // namespace vantorium::fakes
