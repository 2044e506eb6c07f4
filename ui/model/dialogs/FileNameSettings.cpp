#include "ui/model/dialogs/FileNameSettings.h"

namespace vantorium::ui {
namespace {

using P = core::GalleryProject;

constexpr std::string_view kPageExtensions[] = {"htm", "html", "shtm", "shtml"};
constexpr std::string_view kBrowserTargets[] = {"_blank", "_parent", "_self", "_top"};

constexpr NameField kFileNames[] = {
    {"textImageSettingsSubFolder", &P::textImageSettingsSubFolder},
    {"comboImageWrapperSettingsFileExtension", &P::comboImageWrapperSettingsFileExtension, true, kPageExtensions},
    {"textThumbnailImageSettingsSubFolder", &P::textThumbnailImageSettingsSubFolder},
    {"textThumbnailImageSettingsFilePrefix", &P::textThumbnailImageSettingsFilePrefix},
    {"textThumbnailPageSettingsFilePrefix", &P::textThumbnailPageSettingsFilePrefix},
    {"comboThumbnailPageSettingsFileExtension", &P::comboThumbnailPageSettingsFileExtension, true, kPageExtensions},
};

constexpr NameField kFrameNames[] = {
    {"textThumbnailFrameName", &P::textThumbnailFrameName},
    {"comboImageFrameName", &P::comboImageFrameName, false, kBrowserTargets},
};

}  // namespace

std::span<const NameField> FileNameFields() {
  return kFileNames;
}

std::span<const NameField> FrameNameFields() {
  return kFrameNames;
}

std::string NameKey(const NameField& name, const std::string& key) {
  const bool replaced = key == " " || (name.isExtension && key == ".");
  return replaced ? "_" : key;
}

std::string ShownName(const NameField& name, const core::GalleryProject& project) {
  const std::string& stored = project.*name.field;
  return name.isExtension && stored.starts_with('.') ? stored.substr(1) : stored;
}

void StoreName(const NameField& name, const std::string& shown, core::ProjectEditor& editor) {
  const std::string stored = name.isExtension ? "." + shown : shown;
  if (editor.Project().*name.field != stored) editor.Set(name.field, stored);
}

void MarkEdited(const NameField& name, core::ProjectEditor& editor) {
  editor.Set(name.field, editor.Project().*name.field);
}

}  // namespace vantorium::ui
