#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vantorium::env {

/// The user's 16 custom colors, which a color dialog offers and lets edit, as 0x00BBGGRR.
using CustomColors = std::array<std::uint32_t, 16>;

/// A font as the font dialog shows it.
struct FontDescription {
  std::string Name;
  std::int32_t Size = 0;    ///< points
  std::int32_t Weight = 0;  ///< 400 is normal, 700 bold
  bool Italic = false;
  bool Underline = false;
  bool Strikeout = false;
  std::uint32_t Color = 0;  ///< 0x00BBGGRR

  bool operator==(const FontDescription&) const = default;
};

/// The color dialog and the font dialog, modal to the active window.
class mCommonDialogs {
 public:
  virtual ~mCommonDialogs() = default;

  /// Starts with `color`; any color can be chosen. Returns true on OK; only then are `color` and `custom` written back.
  [[nodiscard]] virtual bool ShowColorDialog(std::uint32_t& color, CustomColors& custom) = 0;
  /// Starts with `font`. Returns true on OK; only then is `font` written back.
  [[nodiscard]] virtual bool ShowFontDialog(FontDescription& font) = 0;
};

}  // namespace vantorium::env
