// A real server on loopback for scripts. Prints its address as JSON, and serves until its standard input ends.
// Usage: test_ftp_server vsftpd|proftpd. Exits with 1 if the server does not start.
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
  const FtpServerProcess server(isProftpd ? FtpServerKind::Proftpd : FtpServerKind::Vsftpd);
  const nlohmann::json place = {{"port", server.Port()},
                                {"user", server.User()},
                                {"password", server.Password()},
                                {"root", server.Root().string()}};
  std::cout << place << std::endl;
  std::cin.ignore(std::numeric_limits<std::streamsize>::max(), EOF);
} catch (const std::exception& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
