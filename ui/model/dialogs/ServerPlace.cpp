#include "ui/model/dialogs/ServerPlace.h"

#include "env/PathText.h"
#include "env/Text.h"
#include "publish/FTPPath.h"

#include <algorithm>

namespace vantorium::ui {
namespace {

/// Accepts letters beyond ASCII; the system that looks up the name decides on them.
bool IsLetterOrDigit(char letter) {
  return env::IsAsciiLetter(letter) || env::IsAsciiDigit(letter) || static_cast<unsigned char>(letter) >= 0x80;
}

bool IsHost(std::string_view text) {
  return !text.empty() && IsLetterOrDigit(text.front()) && std::ranges::all_of(text, [](char letter) {
    return IsLetterOrDigit(letter) || letter == '.' || letter == '-' || letter == '_';
  });
}

/// With one colon it would be a host name and a port.
bool IsIPv6Address(std::string_view text) {
  return std::ranges::count(text, ':') > 1 && text.find_first_not_of("0123456789ABCDEFabcdef:.") == text.npos;
}

/// Returns the host name or address at the front of a typed place, without the brackets of an IPv6 address; empty for
/// anything else.
std::string_view HostOf(std::string_view typed) {
  const bool hasBrackets = typed.size() > 2 && typed.front() == '[' && typed.back() == ']';
  const std::string_view address = hasBrackets ? typed.substr(1, typed.size() - 2) : typed;
  if (IsIPv6Address(address)) return address;
  return IsHost(typed) ? typed : std::string_view();
}

bool IsControl(char letter) {
  return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F;
}

std::string_view WithoutScheme(std::string_view text) {
  constexpr std::string_view kScheme = "ftp://";
  return env::StartsWithIgnoringCase(text, kScheme) ? text.substr(kScheme.size()) : text;
}

}  // namespace

std::optional<ServerPlace> ReadServerPlace(std::string_view typed) {
  const std::string slashed = env::WithSlashes(typed);
  const std::string_view text = WithoutScheme(slashed);
  const std::size_t slash = text.find('/');
  if (slash == text.npos || std::ranges::any_of(text, IsControl)) return std::nullopt;
  const std::string_view host = HostOf(text.substr(0, slash));
  if (host.empty()) return std::nullopt;
  std::string path = publish::RelativeToSession(text.substr(slash));
  while (path.find("//") != std::string::npos) path = env::ReplaceAll(path, "//", "/");
  return ServerPlace{std::string(host), path};
}

}  // namespace vantorium::ui
