#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vantorium {

/// The 16 colors of the user's own that a color dialog offers and lets edit, as 0x00BBGGRR.
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

/// The system's own two dialogs, modal to the active window.
class mCommonDialogs {
 public:
  virtual ~mCommonDialogs() = default;

  /// Begins with `color`, any color can be chosen. True on OK; only then `color` and `custom` are written back.
  [[nodiscard]] virtual bool ShowColorDialog(std::uint32_t& color, CustomColors& custom) = 0;
  /// Begins with `font`. True on OK; only then `font` is written back.
  [[nodiscard]] virtual bool ShowFontDialog(FontDescription& font) = 0;
};

}  // namespace vantorium
