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

/// An FTP server in a thread of the test, on a free loopback port, that can do what real servers do only sometimes. It
/// keeps files in memory and serves one session at a time. Every wait ends after 20 seconds, the server's own also when
/// the object is destroyed.
class ScriptedFtpServer {
 public:
  class Session;
  using Handler = std::function<void(Session&, const std::string& argument)>;

  struct Script {
    /// Called instead of sending the greeting.
    std::function<void(Session&)> greet;
    /// Called instead of the usual answer, by verb.
    std::map<std::string, Handler> on;
  };

  explicit ScriptedFtpServer(Script script = {});
  ~ScriptedFtpServer();
  ScriptedFtpServer(const ScriptedFtpServer&) = delete;
  ScriptedFtpServer& operator=(const ScriptedFtpServer&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }
  /// The received lines, and the stored files.
  [[nodiscard]] std::vector<std::string> Commands() const;
  [[nodiscard]] std::map<std::string, std::string> Files() const;
  void PutFile(const std::string& name, const std::string& bytes);
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
  env::FileDescriptor listener_;
  std::atomic<bool> isStopping_ = false;
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

  /// Connects from `source` to the client's listening port. Returns false if that fails.
  bool OpenData(const char* source = "127.0.0.1");
  /// Reads at most `most` bytes into the file. Returns true at the end of the stream.
  bool Receive(const std::string& name, std::size_t most = static_cast<std::size_t>(-1));
  void CloseData() { data_.reset(); }
  /// Resets the data connection.
  void ResetData();

 private:
  [[nodiscard]] std::optional<std::string> NextLine();
  void Store(const std::string& name);
  void ListenTo(const std::string& portArgument);
  void Erase(const std::string& name);

  ScriptedFtpServer& server_;
  std::optional<env::FileDescriptor> control_;
  std::optional<env::FileDescriptor> data_;
  std::string received_;
  std::uint16_t dataPort_ = 0;
};

}  // namespace vantorium::fakes
