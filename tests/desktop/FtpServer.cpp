// A real server on loopback for scripts. Prints its address as JSON, and serves until its standard input ends. With
// "tls" it demands encryption, with a new certificate whose fingerprint is printed too.
// Usage: test_ftp_server vsftpd|proftpd [tls]. Exits with 1 if the server does not start.
#include "tests/fakes/FtpServerProcess.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <limits>
#include <string_view>

#include <nlohmann/json.hpp>

int main(int argc, char** argv) try {
  using namespace vantorium::fakes;
  const bool isProftpd = argc > 1 && argv[1] == std::string_view("proftpd");
  std::optional<TestCertificate> certificate;
  if (argc > 2 && argv[2] == std::string_view("tls")) certificate.emplace();
  const FtpServerProcess server(isProftpd ? FtpServerKind::Proftpd : FtpServerKind::Vsftpd, certificate);
  const nlohmann::json place = {{"port", server.Port()},
                                {"user", server.User()},
                                {"password", server.Password()},
                                {"root", server.Root().string()},
                                {"fingerprint", certificate ? certificate->fingerprint : ""}};
  std::cout << place << std::endl;
  std::cin.ignore(std::numeric_limits<std::streamsize>::max(), EOF);
} catch (const std::exception& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
