// A real server on loopback for scripts: prints where it is as JSON, and serves until its standard input ends.
// Use: test_ftp_server vsftpd|proftpd. Ends with 77 where the server is not installed.
#include "tests/fakes/FtpServerProcess.h"

#include <cstdio>
#include <iostream>
#include <limits>
#include <string_view>

#include <nlohmann/json.hpp>

int main(int argc, char** argv) {
  using namespace vantorium::fakes;
  const bool isProftpd = argc > 1 && argv[1] == std::string_view("proftpd");
  const FtpServerProcess server(isProftpd ? FtpServerKind::Proftpd : FtpServerKind::Vsftpd);
  if (!server.WhyNot().empty()) {
    std::cerr << server.WhyNot() << '\n';
    return 77;
  }
  const nlohmann::json place = {{"port", server.Port()},
                                {"user", server.User()},
                                {"password", server.Password()},
                                {"root", server.Root().string()}};
  std::cout << place << std::endl;
  std::cin.ignore(std::numeric_limits<std::streamsize>::max(), EOF);
}
