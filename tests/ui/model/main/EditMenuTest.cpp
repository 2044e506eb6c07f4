#include "ui/model/main/EditMenu.h"

#include <string>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// A letter for each enabled entry and a dot for each disabled one, without separators.
std::string Enabled(const TextBoxState& state) {
  std::string letters;
  for (const EditMenuEntry& entry : EditMenuEntries()) {
    if (entry.command == EditCommand::Separator) continue;
    const char letter = entry.caption[entry.caption.find('&') + 1];
    letters += IsEnabled(entry.command, state) ? letter : '.';
  }
  return letters;
}

TEST(EditMenu, HasItsEntriesInOrder) {
  std::vector<std::string_view> captions;
  for (const EditMenuEntry& entry : EditMenuEntries()) {
    captions.push_back(entry.caption);
    EXPECT_EQ(entry.caption.empty(), entry.command == EditCommand::Separator);
  }
  EXPECT_EQ(captions,
            (std::vector<std::string_view>{"&Undo", "", "Cu&t", "&Copy", "&Paste", "C&lear", "", "Select &All"}));
}

TEST(EditMenu, EntriesAreEnabledDependingOnTheBoxAndTheClipboard) {
  struct Case {
    TextBoxState state;
    const char* enabled;
  };
  const Case cases[] = {
      {{}, ".....A"},
      {{.canUndo = true}, "U....A"},
      {{.hasSelection = true}, ".tC.lA"},
      {{.isLocked = true, .hasSelection = true}, "..C..A"},
      {{.isLocked = true}, ".....A"},
      {{.clipboardHasText = true}, "...P.A"},
      {{.canUndo = true, .hasSelection = true, .clipboardHasText = true}, "UtCPlA"},
  };
  for (const Case& c : cases) EXPECT_EQ(Enabled(c.state), c.enabled);
}

}  // namespace
}  // namespace vantorium::ui
