#pragma once

class QWidget;

namespace vantorium {

/// Makes "menuPopupText", the menu for text fields with the most usual template tags. An entry puts its tag into the
/// text field that has the keyboard, in place of what is selected there. The menu belongs to `window` and is in no menu
/// bar.
void MakePopupTextMenu(QWidget& window);

}  // namespace vantorium
