#include "tests/fakes/FtpServerSettings.h"

#include "tests/fakes/SourceFolder.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include <fmt/format.h>
#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::fakes {
namespace {

using fmt::arg;

/// The crypt(3) hash of kFtpPassword.
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
anon_root={folder}/root
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

/// ssl_ciphers: the default has no ciphers for keys of elliptic curves.
constexpr const char* kVsftpdEncryption = R"(ssl_enable=YES
allow_anon_ssl=YES
force_anon_logins_ssl=YES
force_anon_data_ssl=YES
require_ssl_reuse=YES
ssl_ciphers=HIGH
rsa_cert_file={folder}/certificate.pem
rsa_private_key_file={folder}/key.pem
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

/// Without TLSOptions, data connections must resume the TLS session of the control connection.
constexpr const char* kProftpdEncryption = R"(ModulePath {modules}
LoadModule mod_tls.c
TLSEngine on
TLSRequired on
TLSLog {folder}/tlslog
TLSECCertificateFile {folder}/certificate.pem
TLSECCertificateKeyFile {folder}/key.pem
)";

/// The first of these files that exists. Throws std::runtime_error if none does.
fs::path FirstOf(const std::vector<fs::path>& candidates) {
  for (const auto& candidate : candidates) {
    if (fs::exists(candidate)) return candidate;
  }
  throw std::runtime_error(candidates.front().string() + " is missing: run packaging/install-dependencies tests");
}

/// A file of a package: unpacked in build/test-servers, or else installed.
fs::path FileOf(const std::string& package, const std::string& path) {
  return FirstOf({SourceFolder() / "build/test-servers" / package / path.substr(1), path});
}

/// Writes a file that only its owner may read; servers refuse secrets that others can read.
std::string WriteSecret(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  return file.string();
}

void WriteCertificate(const FtpServerSettings& settings) {
  if (!settings.certificate) return;
  WriteSecret(settings.folder / "certificate.pem", settings.certificate->certificate);
  WriteSecret(settings.folder / "key.pem", settings.certificate->key);
  WriteSecret(settings.folder / "both.pem", settings.certificate->key + settings.certificate->certificate);
}

FtpServerCommand VsftpdCommand(const FtpServerSettings& settings) {
  const std::string text = std::string(kVsftpdSettings) + (settings.certificate ? kVsftpdEncryption : "");
  const auto file = WriteSecret(settings.folder / "vsftpd.conf",
                                fmt::format(fmt::runtime(text), arg("port", settings.port), arg("name", settings.name),
                                            arg("folder", settings.folder.string())));
  return {.words = {FileOf("vsftpd", "/usr/sbin/vsftpd").string(), file}, .environment = {}, .user = "anonymous"};
}

/// The user's line in a password file, without the fields that only some servers have.
std::string UserLine(const FtpServerSettings& settings, const std::string& user, const std::string& ids) {
  return fmt::format("{}:{}:{}::{}:", user, kPasswordHash, ids, (settings.folder / "root").string());
}

FtpServerCommand ProftpdCommand(const FtpServerSettings& settings) {
  const passwd* self = ::getpwuid(::getuid());
  const group* ownGroup = ::getgrgid(::getgid());
  if (self == nullptr || ownGroup == nullptr) {
    throw std::runtime_error("ProFTPD needs a name for the test's user and group");
  }
  const std::string user = "uploader";
  const std::string ids = fmt::format("{}:{}", ::getuid(), ::getgid());
  WriteSecret(settings.folder / "users", UserLine(settings, user, ids) + "/bin/sh\n");
  std::string text = kProftpdSettings;
  std::string modules;
  if (settings.certificate) {
    modules = FileOf("proftpd-mod-crypto", "/usr/lib/proftpd/mod_tls.so").parent_path().string();
    text = kProftpdEncryption + text;
  }
  const auto file = WriteSecret(settings.folder / "proftpd.conf",
                                fmt::format(fmt::runtime(text), arg("port", settings.port), arg("name", settings.name),
                                            arg("folder", settings.folder.string()), arg("user", self->pw_name),
                                            arg("group", ownGroup->gr_name), arg("modules", modules)));
  return {.words = {FileOf("proftpd-core", "/usr/sbin/proftpd").string(), "-n", "-q", "-c", file},
          .environment = {},
          .user = user};
}

/// Pure-FTPd reads its users from a database, which pure-pw makes. The user's IDs mean nothing (see NoRoot.cpp), but 0
/// is refused.
FtpServerCommand PureftpdCommand(const FtpServerSettings& settings) {
  const std::string user = "uploader";
  const auto users = WriteSecret(settings.folder / "users", UserLine(settings, user, "1000:1000") + ":::::::::::\n");
  const auto database = (settings.folder / "users.pdb").string();
  fs::remove(database);
  const std::string make = FileOf("pure-ftpd", "/usr/bin/pure-pw").string() + " mkdb " + database + " -f " + users;
  if (std::system(make.c_str()) != 0) throw std::runtime_error("pure-pw could not make the database of users");
  const auto greeting = (settings.folder / "greeting").string();
  std::ofstream(greeting) << settings.name << "\n";
  fs::permissions(greeting, fs::perms::others_read | fs::perms::group_read,
                  fs::perm_options::add);  // or it is not shown
  FtpServerCommand command = {
      .words = {FileOf("pure-ftpd", "/usr/sbin/pure-ftpd").string(), "-4", "-H", "-E", "-S",
                fmt::format("127.0.0.1,{}", settings.port), "-l", "puredb:" + database, "-u", "1", "-g",
                (settings.folder / "pid").string(), "-F", greeting, "-Y", settings.certificate ? "3" : "0"},
      .environment = {"LD_PRELOAD=" VANTORIUM_NO_ROOT},
      .user = user};
  if (settings.certificate) command.words.insert(command.words.end(), {"-2", (settings.folder / "both.pem").string()});
  return command;
}

}  // namespace

FtpServerCommand CommandOf(FtpServerKind kind, const FtpServerSettings& settings) {
  WriteCertificate(settings);
  switch (kind) {
    case FtpServerKind::Vsftpd:
      return VsftpdCommand(settings);
    case FtpServerKind::Proftpd:
      return ProftpdCommand(settings);
    case FtpServerKind::Pureftpd:
      break;
  }
  return PureftpdCommand(settings);
}

std::string NameOf(FtpServerKind kind) {
  switch (kind) {
    case FtpServerKind::Vsftpd:
      return "vsftpd";
    case FtpServerKind::Proftpd:
      return "ProFTPD";
    case FtpServerKind::Pureftpd:
      break;
  }
  return "PureFTPd";
}

}  // namespace vantorium::fakes
