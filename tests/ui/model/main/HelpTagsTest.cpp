#include "tests/fakes/SourceFolder.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/main/TagMenu.h"

namespace vantorium::ui {
namespace {

TEST(HelpTags, TheHelpExplainsEveryTagOfTheEditors) {
  const std::string help = fakes::TemporaryFolder::ReadFile(fakes::SourceFolder() / "docs/help/tags.html");
  for (const TagMenu& menu : TagMenus()) {
    for (const TagMenuEntry& entry : menu.entries) {
      if (entry.tag.empty()) continue;
      const std::string name(entry.tag.substr(1, entry.tag.size() - 2));
      EXPECT_NE(help.find("<code>&lt;" + name + "&gt;</code>"), std::string::npos) << name;
    }
  }
}

}  // namespace
}  // namespace vantorium::ui
