#pragma once

#include "env/FileDescriptor.h"
#include "tests/fakes/ServerChannel.h"

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace vantorium::fakes {

/// An FTP server in a thread of the test, on a free loopback port, that can do what real servers do only sometimes. It
/// keeps files in memory and serves one session at a time. Every wait ends after 20 seconds; the server's own waits
/// also end when the object is destroyed.
class ScriptedFtpServer {
 public:
  class Session;
  using Handler = std::function<void(Session&, const std::string& argument)>;

  struct Script {
    /// Called instead of sending the greeting.
    std::function<void(Session&)> greet;
    /// Handlers that replace the usual answer, by verb.
    std::map<std::string, Handler> on;
    /// For clients that ask for TLS; without a certificate they are refused.
    std::optional<TestCertificate> certificate = std::nullopt;
    /// The server's address: "127.0.0.1" or "::1".
    std::string address = "127.0.0.1";
  };

  explicit ScriptedFtpServer(Script script);
  ScriptedFtpServer() : ScriptedFtpServer(Script()) {}
  ~ScriptedFtpServer();
  ScriptedFtpServer(const ScriptedFtpServer&) = delete;
  ScriptedFtpServer& operator=(const ScriptedFtpServer&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }
  /// The received lines.
  [[nodiscard]] std::vector<std::string> Commands() const;
  /// The bytes of the stored files, by name.
  [[nodiscard]] std::map<std::string, std::string> Files() const;
  void PutFile(const std::string& name, const std::string& bytes);
  /// How many data connections resumed the TLS session of a control connection.
  [[nodiscard]] int ResumedSessions() const { return resumedSessions_; }
  /// Whether a command that begins with `command` has been received.
  [[nodiscard]] bool HasHeard(std::string_view command) const;
  /// Waits for such a command. Returns false if none comes.
  [[nodiscard]] bool WaitToHear(std::string_view command) const;

 private:
  void Serve();
  void Note(const std::string& command);
  /// Waits until there is something to read. Returns false if the server stops or the wait takes too long.
  [[nodiscard]] bool WaitToRead(int descriptor) const;

  Script script_;
  std::unique_ptr<TlsServer> tls_;
  env::FileDescriptor listener_;
  std::atomic<bool> isStopping_ = false;
  std::atomic<int> resumedSessions_ = 0;
  std::uint16_t port_ = 0;
  mutable std::mutex mutex_;
  std::vector<std::string> commands_;
  std::map<std::string, std::string> files_;
  std::thread thread_;
};

/// A client's control connection and its data connection.
class ScriptedFtpServer::Session {
 public:
  Session(ScriptedFtpServer& server, int control);

  /// Answers commands until the client or the script hangs up.
  void Run();
  /// Answers as a well-behaved server does.
  void Answer(const std::string& verb, const std::string& argument);

  void Say(std::string_view text) const;
  /// Sends each byte in its own packet.
  void SayByteByByte(std::string_view text) const;
  /// Sends nothing until the client disconnects or the server stops.
  void StaySilent();
  void HangUp();
  /// Encrypts the control connection and, from now on, the data connections. Returns false if that fails.
  bool StartTls(const TlsServer& tls);
  bool StartTls() { return StartTls(*server_.tls_); }

  /// Connects from `source` to the client's listening port, or accepts the client's connection. Returns false if that
  /// fails.
  bool OpenData(const char* source = nullptr);
  /// Listens for a data connection, and returns the port.
  [[nodiscard]] std::uint16_t ListenForData();
  /// Encrypts the data connection, if the control connection is. Returns false if that fails.
  bool EncryptData(const TlsServer& tls);
  bool EncryptData() { return !encrypts_ || EncryptData(*server_.tls_); }
  /// Reads at most `most` bytes into the file. Returns true at the end of the stream.
  bool Receive(const std::string& name, std::size_t most = static_cast<std::size_t>(-1));
  /// Ends the data connection properly, with TLS's close_notify if it is encrypted.
  void CloseData();
  /// Closes the data connection without close_notify.
  void DropData() { data_.reset(); }
  void ResetData();

 private:
  [[nodiscard]] std::optional<std::string> NextLine();
  void Store(const std::string& name);
  void ListenTo(const std::string& portArgument);
  void Erase(const std::string& name);
  void BeginEncryption();
  void OfferPort(const std::string& verb);

  ScriptedFtpServer& server_;
  std::unique_ptr<ServerChannel> control_;
  std::unique_ptr<ServerChannel> data_;
  std::optional<env::FileDescriptor> dataListener_;
  bool encrypts_ = false;
  std::string received_;
  std::uint16_t dataPort_ = 0;
};

}  // namespace vantorium::fakes
