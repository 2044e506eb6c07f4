#include "ui/widgets/CodeBoxes.h"

#include "ui/model/dialogs/CodeEditor.h"
#include "ui/qt/QtText.h"

#include <vector>

namespace vantorium::ui {
namespace {

/// Returns the text with LF for each character that starts a new line in a text box.
QString WithLf(QString text) {
  constexpr QChar kEnds[] = {QChar::ParagraphSeparator, QChar::LineSeparator, QChar(0xFDD0), QChar(0xFDD1)};
  for (const QChar end : kEnds) text.replace(end, '\n');
  return text;
}

/// Returns the box's lines with LF between them. QPlainTextEdit::toPlainText would turn non-breaking spaces into plain
/// ones.
QString LinesOf(const QPlainTextEdit& box) {
  return WithLf(box.document()->toRawText());
}

void Select(QPlainTextEdit& box, std::string_view inFront, std::size_t length) {
  QTextCursor cursor = box.textCursor();
  const auto start = static_cast<int>(ToQt(inFront).size());
  cursor.setPosition(start);
  cursor.setPosition(start + static_cast<int>(length), QTextCursor::KeepAnchor);
  box.setTextCursor(cursor);
}

}  // namespace

void ShowCode(QPlainTextEdit& box, std::string_view text) {
  box.setPlainText(LinesToQt(text));
}

std::string CodeOf(const QPlainTextEdit& box, std::string_view shown) {
  const QString lines = LinesOf(box);
  return lines == WithLf(LinesToQt(shown)) ? std::string(shown) : LinesFromQt(lines);
}

bool MayKeepCode(std::initializer_list<QPlainTextEdit*> boxes, env::MessageBoxPort& port) {
  std::vector<std::string> texts;
  for (const QPlainTextEdit* box : boxes) texts.push_back(FromQt(LinesOf(*box)));
  const auto refused = FindRefusedCode(texts, port);
  if (!refused) return true;
  QPlainTextEdit& box = **(boxes.begin() + refused->text);
  Select(box, std::string_view(texts[refused->text]).substr(0, refused->position), kRefusedLength);
  box.setFocus();
  return false;
}

}  // namespace vantorium::ui
