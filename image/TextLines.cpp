#include "image/TextLines.h"

#include <algorithm>
#include <memory>

#include <glib.h>

namespace vantorium::image {
namespace {

struct GFree {
  void operator()(char* text) const { g_free(text); }
};

std::string Drawable(std::string_view line) {
  const std::unique_ptr<char, GFree> valid(g_utf8_make_valid(line.data(), static_cast<gssize>(line.size())));
  std::string drawable(valid.get());
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  std::replace_if(drawable.begin(), drawable.end(), isControl, ' ');
  return drawable;
}

}  // namespace

std::vector<std::string> LinesOfText(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.push_back(Drawable(text.substr(0, end)));
    text.remove_prefix(end);
    if (text.starts_with("\r\n")) text.remove_prefix(1);
    if (!text.empty()) text.remove_prefix(1);
  }
  return lines;
}

}  // namespace vantorium::image
