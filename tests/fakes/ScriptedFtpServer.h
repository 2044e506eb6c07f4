#pragma once

#include "env/FileDescriptor.h"

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

/// An FTP server in a thread of the test, on loopback and a free port, that does what real servers do only sometimes.
/// It keeps files in memory, one session after the other. Every wait ends with the object, and after 20 seconds.
class ScriptedFtpServer {
 public:
  class Session;
  using Handler = std::function<void(Session&, const std::string& argument)>;

  struct Script {
    /// In place of the greeting.
    std::function<void(Session&)> greet;
    /// In place of the usual answer to a verb.
    std::map<std::string, Handler> on;
  };

  explicit ScriptedFtpServer(Script script = {});
  ~ScriptedFtpServer();
  ScriptedFtpServer(const ScriptedFtpServer&) = delete;
  ScriptedFtpServer& operator=(const ScriptedFtpServer&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }
  /// What was received, line by line, and what is stored.
  [[nodiscard]] std::vector<std::string> Commands() const;
  [[nodiscard]] std::map<std::string, std::string> Files() const;
  void PutFile(const std::string& name, const std::string& bytes);
  /// Whether a command that begins so has come.
  [[nodiscard]] bool HasHeard(std::string_view command) const;
  /// Waits until one has come; false when none did.
  [[nodiscard]] bool WaitToHear(std::string_view command) const;

 private:
  void Serve();
  void Note(const std::string& command);
  /// Waits until there is something to read; false at the end of the server or when it took too long.
  [[nodiscard]] bool WaitToRead(int descriptor) const;

  Script script_;
  FileDescriptor listener_;
  std::atomic<bool> isStopping_ = false;
  std::uint16_t port_ = 0;
  mutable std::mutex mutex_;
  std::vector<std::string> commands_;
  std::map<std::string, std::string> files_;
  std::thread thread_;
};

/// One client's control connection, and the data connection that belongs to it.
class ScriptedFtpServer::Session {
 public:
  Session(ScriptedFtpServer& server, int control);

  /// Answers commands until the client or the script hangs up.
  void Run();
  /// What a well-behaved server does.
  void Answer(const std::string& verb, const std::string& argument);

  void Say(std::string_view text) const;
  /// Each byte as a packet of its own.
  void SayByteByByte(std::string_view text) const;
  /// Says nothing until the client goes or the server ends.
  void StaySilent();
  void HangUp();

  /// Connects to where the client listens, from `source`; false when it does not.
  bool OpenData(const char* source = "127.0.0.1");
  /// Reads at most `most` bytes into the file; true at the end of the stream.
  bool Receive(const std::string& name, std::size_t most = static_cast<std::size_t>(-1));
  void CloseData() { data_.reset(); }
  /// Drops the data connection with a reset.
  void ResetData();

 private:
  [[nodiscard]] std::optional<std::string> NextLine();
  void Store(const std::string& name);
  void ListenTo(const std::string& portArgument);
  void Erase(const std::string& name);

  ScriptedFtpServer& server_;
  std::optional<FileDescriptor> control_;
  std::optional<FileDescriptor> data_;
  std::string received_;
  std::uint16_t dataPort_ = 0;
};

}  // namespace vantorium::fakes
