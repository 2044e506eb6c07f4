#include "app/batch/Password.h"

#include <fstream>
#include <iostream>

namespace vantorium {
namespace {

std::optional<std::string> FirstLine(std::istream& stream) {
  std::string line;
  if (!std::getline(stream, line) && !stream.eof()) return std::nullopt;
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

}  // namespace

std::optional<std::string> ReadPassword(const std::string& file) {
  if (file == "-") return FirstLine(std::cin);
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) return std::nullopt;
  return FirstLine(stream);
}

}  // namespace vantorium
