#include "ui/model/dialogs/ThemeModel.h"

namespace vantorium::ui {

std::string ThemeModel::Caption(std::size_t theme) const {
  std::string caption = themes_.at(theme).name;
  char& first = caption.front();
  if (first >= 'a' && first <= 'z') first = static_cast<char>(first - 'a' + 'A');
  return caption;
}

bool ThemeModel::Accept() {
  const auto settings = core::ReadTheme(paths_.ToText(themes_.at(chosen_).project), paths_, boxes_, events_);
  if (!settings) return false;
  const bool confirmed =
      boxes_.AskYesNo("Replace Settings",
                      "All settings of this project, except its title, will be replaced by those of the theme \"" +
                          Caption(chosen_) + "\".  The images and their descriptions stay.  Do you wish to continue?");
  if (!confirmed) return false;
  core::ApplyTheme(project_.settings, *settings);
  project_.IsModified = true;
  return true;
}

}  // namespace vantorium::ui
