#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vantorium {

// Texts of the program are UTF-8, several lines with CR LF between them; the toolkit's controls have LF.

[[nodiscard]] inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

/// For captions of menus and frames, which take "&" for the mark of a mnemonic.
[[nodiscard]] inline QString WithoutMnemonics(std::string_view text) {
  return ToQt(text).replace('&', "&&");
}

/// For a control of several lines: CR LF, and a CR of its own, become LF.
[[nodiscard]] QString LinesToQt(std::string_view text);

/// What a control of several lines holds, with CR LF.
[[nodiscard]] std::string LinesFromQt(const QString& text);

}  // namespace vantorium
