#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vantorium::ui {

// The program's texts are UTF-8, with CR LF between lines; Qt's controls use LF.

[[nodiscard]] inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

/// For captions of menus and group boxes, where "&" marks a mnemonic.
[[nodiscard]] inline QString WithoutMnemonics(std::string_view text) {
  return ToQt(text).replace('&', "&&");
}

/// For a multi-line control: CR LF and lone CR become LF.
[[nodiscard]] QString LinesToQt(std::string_view text);

/// The text of a multi-line control, with CR LF.
[[nodiscard]] std::string LinesFromQt(const QString& text);

}  // namespace vantorium::ui
