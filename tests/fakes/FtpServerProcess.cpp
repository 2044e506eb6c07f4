#include "tests/fakes/FtpServerProcess.h"

#include "env/FileDescriptor.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::fakes {
namespace {

sockaddr_in Loopback(std::uint16_t port) {
  sockaddr_in name = {};
  name.sin_family = AF_INET;
  name.sin_port = htons(port);
  name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return name;
}

std::uint16_t FreePort() {
  const env::FileDescriptor probe(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in name = Loopback(0);
  socklen_t size = sizeof name;
  auto* plain = reinterpret_cast<sockaddr*>(&name);
  if (::bind(probe.Get(), plain, size) != 0 || ::getsockname(probe.Get(), plain, &size) != 0) {
    throw std::runtime_error("there is no free port on loopback");
  }
  return ntohs(name.sin_port);
}

/// The beginning of the greeting of the server on that port; empty if there is no server.
std::string GreetingOf(std::uint16_t port) {
  const env::FileDescriptor probe(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  const timeval patience = {5, 0};
  ::setsockopt(probe.Get(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  const sockaddr_in name = Loopback(port);
  if (::connect(probe.Get(), reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0) return {};
  std::string greeting(200, '\0');
  const auto count = ::recv(probe.Get(), greeting.data(), greeting.size(), 0);
  greeting.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return greeting;
}

/// Executes the program in its own process group, which is killed when the test dies. Its output goes to a file.
[[noreturn]] void Become(const FtpServerCommand& command, const fs::path& output) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  ::dup2(::open("/dev/null", O_RDONLY), 0);
  const int file = ::open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  for (const int stream : {1, 2}) ::dup2(file, stream);
  std::vector<char*> arguments;
  for (const auto& word : command.words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  for (const auto& variable : command.environment) ::putenv(const_cast<char*>(variable.c_str()));
  ::execv(arguments[0], arguments.data());
  ::_exit(127);
}

}  // namespace

FtpServerProcess::FtpServerProcess(FtpServerKind kind, std::optional<TestCertificate> certificate) {
  fs::create_directory(Root());
  FtpServerSettings settings = {
      .name = Name(), .folder = folder_.Path(), .port = 0, .certificate = std::move(certificate)};
  // Another process may take the free port before the server does.
  for (int attempt = 0; attempt < 3; ++attempt) {
    settings.port = port_ = FreePort();
    const FtpServerCommand command = CommandOf(kind, settings);
    user_ = command.user;
    Start(command);
    if (WaitUntilItListens()) return;
    End();
  }
  throw std::runtime_error("the FTP server did not start to listen: " + TemporaryFolder::ReadFile(Output()));
}

FtpServerProcess::~FtpServerProcess() {
  End();
}

void FtpServerProcess::Start(const FtpServerCommand& command) {
  process_ = ::fork();
  if (process_ == 0) Become(command, Output());
}

bool FtpServerProcess::HasEnded() {
  if (process_ > 0 && ::waitpid(process_, nullptr, WNOHANG) == process_) process_ = -1;
  return process_ <= 0;
}

bool FtpServerProcess::WaitUntilItListens() {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (std::chrono::steady_clock::now() < end && !HasEnded()) {
    // Another test's server may have taken the port first, so look for this server's unique name.
    if (GreetingOf(port_).find(Name()) != std::string::npos) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return false;
}

// Kills the server's process group, which includes the processes of open sessions.
void FtpServerProcess::End() {
  if (HasEnded()) return;
  ::kill(-process_, SIGKILL);
  ::waitpid(process_, nullptr, 0);
  process_ = -1;
}

}  // namespace vantorium::fakes
