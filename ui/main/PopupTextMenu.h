#pragma once

class QWidget;

namespace vantorium::ui {

/// Makes "menuPopupText", the menu for text fields with the most common template tags. An entry inserts its tag into
/// the text field that has the focus, in place of the selection. The menu belongs to `window` and is in no menu bar.
void MakePopupTextMenu(QWidget& window);

}  // namespace vantorium::ui
