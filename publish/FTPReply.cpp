#include "publish/FTPReply.h"

#include "env/RuntimeFailure.h"
#include "env/Text.h"

#include <algorithm>

namespace vantorium::publish {
namespace {

bool BeginsWithNumber(std::string_view line) {
  return line.size() >= 3 && std::ranges::all_of(line.substr(0, 3), env::IsAsciiDigit);
}

std::int16_t NumberOf(std::string_view line) {
  return static_cast<std::int16_t>((line[0] - '0') * 100 + (line[1] - '0') * 10 + (line[2] - '0'));
}

}  // namespace

void FTPReply::Take(std::string_view piece) {
  // A line end may be split between two pieces; nothing before its first half needs to be searched again.
  auto searchFrom = pending_.empty() ? 0 : pending_.size() - 1;
  taken_ += piece.size();
  pending_ += piece;

  std::size_t lineStart = 0;
  for (auto lineEnd = pending_.find(env::kCrLf, searchFrom); lineEnd != std::string::npos;
       lineEnd = pending_.find(env::kCrLf, searchFrom)) {
    TakeLine(std::string_view(pending_).substr(lineStart, lineEnd - lineStart));
    searchFrom = lineStart = lineEnd + env::kCrLf.size();
  }
  pending_.erase(0, lineStart);
}

void FTPReply::TakeLine(std::string_view line) {
  std::size_t stripped = 0;
  if (BeginsWithNumber(line)) {
    stripped = 4;
    code_ = NumberOf(line);
    if (line.substr(3, 1) != "-") isComplete_ = true;
  }
  if (line.size() < stripped) throw env::RuntimeFailure(env::FailureKind::InvalidArgument);
  if (!text_.empty()) text_ += ' ';
  text_ += line.substr(stripped);
}

}  // namespace vantorium::publish
