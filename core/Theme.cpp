#include "core/Theme.h"

#include "core/Project.h"
#include "core/ProjectFields.h"
#include "core/file/ProjectFileReader.h"

#include <fmt/format.h>

namespace vantorium::core {
namespace {

constexpr char kFolder[] = "themes";

/// What a project says about its own images, such as the corrections of its photographs, and no other can take over.
bool BelongsToTheImages(const ProjectField& field) {
  return field.hiddenWhileOff || field.member == FieldMember(&GalleryProject::textGalleryTitle) ||
         field.member == FieldMember(&GalleryProject::comboImagesSortingOrder);
}

}  // namespace

std::vector<ThemeFile> FindThemes(const env::BundledFiles& files) {
  std::vector<ThemeFile> themes;
  for (const std::filesystem::path& project : files.FindAll(kFolder, ".gpj")) {
    const std::string name = project.stem().string();
    themes.push_back({name, project, files.Find(fmt::format("{}/{}.jpg", kFolder, name))});
  }
  return themes;
}

std::optional<GalleryProject> ReadTheme(const std::string& path, const env::PathMap& paths, env::MessageBoxPort& boxes,
                                        env::EventLoop& events) {
  Project theme;
  env::WindowState noWindow;
  if (ProjectFileReader(theme, paths, boxes, noWindow, events).ReadProjectFile(path)) return theme.settings;
  boxes.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, "File Error",
             fmt::format("The theme \"{}\" cannot be read.", paths.Surface(path)));
  return std::nullopt;
}

// The settings of the theme were read by the rules of an edit, so the rules between them hold for their copies too. The
// settings that are not copied have no part in a rule.
void ApplyTheme(GalleryProject& project, const GalleryProject& theme) {
  for (const ProjectField& field : ProjectFields()) {
    if (field.keptByReset || BelongsToTheImages(field)) continue;
    std::visit([&](auto member) { project.*member = theme.*member; }, field.member);
  }
}

}  // namespace vantorium::core
