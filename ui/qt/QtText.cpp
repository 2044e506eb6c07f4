#include "ui/qt/QtText.h"

#include "env/Text.h"

namespace vantorium::ui {

QString LinesToQt(std::string_view text) {
  QString lines = ToQt(text);
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  return lines;
}

std::string LinesFromQt(const QString& text) {
  return env::WithCrLf(FromQt(text));
}

}  // namespace vantorium::ui
