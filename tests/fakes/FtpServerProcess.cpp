#include "tests/fakes/FtpServerProcess.h"

#include "env/FileDescriptor.h"
#include "tests/fakes/SourceFolder.h"

#include <chrono>
#include <csignal>
#include <stdexcept>
#include <thread>

#include <arpa/inet.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::fakes {
namespace {

/// The crypt(3) hash of the password "open sesame".
constexpr const char* kPasswordHash =
    "$6$loopback$kkZXx2HbVINfBu18JfwVcTxcTnx.sz4BJMh0UtcuB47XtY9AbTbuR8kCsqZvmM6Bo5LXVZPGh320/A37NhdUU/";

/// Allows a writable root folder, because the server is confined to it. The user for anonymous logins must exist:
/// "nobody" exists on every system, "ftp" only where the server's package was installed.
constexpr const char* kVsftpdSettings = R"(listen=YES
listen_ipv6=NO
listen_address=127.0.0.1
listen_port={port}
background=NO
ftpd_banner={name}
run_as_launching_user=YES
anonymous_enable=YES
ftp_username=nobody
anon_root={root}
allow_writeable_chroot=YES
write_enable=YES
anon_upload_enable=YES
anon_mkdir_write_enable=YES
anon_other_write_enable=YES
anon_world_readable_only=NO
anon_umask=022
connect_from_port_20=NO
seccomp_sandbox=NO
xferlog_enable=NO
)";

constexpr const char* kProftpdSettings = R"(ServerName "{name}"
ServerType standalone
Port {port}
DefaultAddress 127.0.0.1
UseIPv6 off
UseReverseDNS off
RequireValidShell off
RootLogin on
AuthOrder mod_auth_file.c
AuthUserFile {folder}/users
AuthPAM off
WtmpLog off
TransferLog none
SystemLog {folder}/log
PidFile {folder}/pid
ScoreboardFile {folder}/scoreboard
AllowOverwrite on
User {user}
Group {group}
<IfModule mod_ctrls.c>
  ControlsEngine off
</IfModule>
<IfModule mod_delay.c>
  DelayEngine off
</IfModule>
)";

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

/// The first of these files that exists. Throws std::runtime_error if none does.
fs::path FirstOf(const std::vector<fs::path>& candidates) {
  for (const auto& candidate : candidates) {
    if (fs::exists(candidate)) return candidate;
  }
  throw std::runtime_error(candidates.front().string() + " is missing: run packaging/install-dependencies tests");
}

/// Executes the program in its own process group, to be killed when the test dies. Its output goes to a file.
[[noreturn]] void Become(const std::vector<std::string>& command, const fs::path& output) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  ::dup2(::open("/dev/null", O_RDONLY), 0);
  const int file = ::open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  for (const int stream : {1, 2}) ::dup2(file, stream);
  std::vector<char*> arguments;
  for (const auto& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  ::execv(arguments[0], arguments.data());
  ::_exit(127);
}

}  // namespace

FtpServerProcess::FtpServerProcess(FtpServerKind kind) {
  fs::create_directory(Root());
  // Another process may take the free port before the server does.
  for (int attempt = 0; attempt < 3; ++attempt) {
    port_ = FreePort();
    const auto command = kind == FtpServerKind::Vsftpd ? VsftpdCommand() : ProftpdCommand();
    Start(command);
    if (WaitUntilItListens()) return;
    End();
  }
  throw std::runtime_error("the FTP server did not start to listen: " + TemporaryFolder::ReadFile(Output()));
}

FtpServerProcess::~FtpServerProcess() {
  End();
}

std::vector<std::string> FtpServerProcess::VsftpdCommand() {
  user_ = "anonymous";
  const auto program = FirstOf({SourceFolder() / "build/test-servers/vsftpd/usr/sbin/vsftpd", "/usr/sbin/vsftpd"});
  using fmt::arg;
  const std::string settings =
      fmt::format(kVsftpdSettings, arg("port", port_), arg("root", Root().string()), arg("name", Name()));
  return {program.string(), folder_.Write("vsftpd.conf", settings).string()};
}

std::vector<std::string> FtpServerProcess::ProftpdCommand() {
  user_ = "uploader";
  const auto program =
      FirstOf({SourceFolder() / "build/test-servers/proftpd-core/usr/sbin/proftpd", "/usr/sbin/proftpd"});
  const passwd* self = ::getpwuid(::getuid());
  const group* ownGroup = ::getgrgid(::getgid());
  if (self == nullptr || ownGroup == nullptr) {
    throw std::runtime_error("ProFTPD needs a name for the test's user and group");
  }
  const auto users = folder_.Write(
      "users", fmt::format("{}:{}:{}:{}::{}:/bin/sh\n", user_, kPasswordHash, ::getuid(), ::getgid(), Root().string()));
  fs::permissions(users, fs::perms::owner_read);
  using fmt::arg;
  const std::string settings =
      fmt::format(kProftpdSettings, arg("port", port_), arg("folder", folder_.Path().string()), arg("name", Name()),
                  arg("user", self->pw_name), arg("group", ownGroup->gr_name));
  return {program.string(), "-n", "-q", "-c", folder_.Write("proftpd.conf", settings).string()};
}

void FtpServerProcess::Start(const std::vector<std::string>& command) {
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
