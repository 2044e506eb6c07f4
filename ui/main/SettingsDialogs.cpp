#include "ui/main/SettingsDialogs.h"

#include "env/PathText.h"
#include "ui/dialogs/frmHTML.h"
#include "ui/dialogs/frmHTMLSingle.h"
#include "ui/dialogs/frmImageFilters.h"
#include "ui/dialogs/frmLinks.h"
#include "ui/dialogs/frmSelectColors.h"
#include "ui/dialogs/frmWatermark.h"
#include "ui/model/dialogs/ColorDialog.h"
#include "ui/model/main/DesktopPorts.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/FieldBinder.h"

#include <QAbstractButton>
#include <stdexcept>

namespace vantorium::ui {
SettingsDialogs::SettingsDialogs(Parts parts, QWidget& form) : parts_(std::move(parts)), form_(form) {
  const auto connectAll = [this](const auto& rows) {
    for (const auto& row : rows) OnClick(row.button, [this, &row] { Edit(row); });
  };
  connectAll(CodeButtons());
  connectAll(HeaderFooterButtons());
  connectAll(BackdropButtons());
  connectAll(ColorsButtons());
  connectAll(LinkButtons());
  connectAll(FiltersButtons());
  connectAll(WatermarkButtons());
}

void SettingsDialogs::OnClick(std::string_view name, std::function<void()> open) {
  auto* button = form_.findChild<QAbstractButton*>(ToQt(name));
  if (button == nullptr) throw std::logic_error("no button " + std::string(name));
  connect(button, &QAbstractButton::clicked, this, std::move(open));
}

void SettingsDialogs::Edit(const CodeButton& row) {
  const std::string title(row.title);
  SetIfChanged(row.code, EditHTMLSingle(title, parts_.binder.Project().*row.code, parts_.ports.boxes, &form_));
}

void SettingsDialogs::Edit(const HeaderFooterButton& row) {
  const core::GalleryProject& project = parts_.binder.Project();
  const HeaderAndFooter texts =
      EditHTML(std::string(row.title), {project.*row.header, project.*row.footer}, parts_.ports.boxes, &form_);
  SetIfChanged(row.header, texts.header);
  SetIfChanged(row.footer, texts.footer);
}

void SettingsDialogs::Edit(const BackdropButton& row) {
  const std::string& path = parts_.binder.Project().*row.path;
  const FileDialogResult chosen = parts_.ports.fileBrowser.DisplayFileDialog({.title = std::string(row.title),
                                                                              .initialFolder = env::GetFilePath(path),
                                                                              .fileName = env::GetFileName(path),
                                                                              .filter = "All Files (*.*)|*.*",
                                                                              .preview = true});
  if (!chosen.result.empty()) SetIfChanged(row.path, chosen.result);
}

void SettingsDialogs::Edit(const ColorsButton& row) {
  const core::GalleryProject& project = parts_.binder.Project();
  core::PageColors colors = core::ColorsOf(project, row.colors);
  if (!SelectColors(std::string(row.title), colors, core::ColorsOf(project, row.others), parts_.colors, &form_)) return;
  parts_.binder.Edit([&](core::ProjectEditor& editor) {
    editor.Set(row.colors.background, colors.background);
    editor.Set(row.colors.text, colors.text);
    editor.Set(row.colors.link, colors.link);
    editor.Set(row.colors.visitedLink, colors.visitedLink);
    editor.Set(row.colors.activeLink, colors.activeLink);
  });
}

// A change counts as an edit even if the user typed the old text again: the dialog has no Cancel.
void SettingsDialogs::Edit(const LinkButton& row) {
  bool edited = false;
  const core::LinkSettings link = EditLink(
      std::string(row.title), std::string(row.disabledGraphicLabel), parts_.binder.Project().*row.link, graphicsFolder_,
      parts_.ports.fileBrowser, parts_.ports.paths, [&edited] { edited = true; }, &form_);
  if (edited) parts_.binder.Edit([&](core::ProjectEditor& editor) { editor.Set(row.link, link); });
}

void SettingsDialogs::Edit(const FiltersButton& row) {
  image::ImageFilterSettings filters = parts_.binder.Project().*row.filters;
  if (!EditImageFilters(std::string(row.title), filters, parts_.samples(), PortsOfSamples(), &form_)) return;
  parts_.binder.Edit([&](core::ProjectEditor& editor) { editor.Set(row.filters, filters); });
}

void SettingsDialogs::Edit(const WatermarkButton& row) {
  image::WatermarkSettings watermark = parts_.binder.Project().*row.watermark;
  image::ImageFilterSettings filters = parts_.binder.Project().*row.filters;
  const WatermarkPorts ports{parts_.ports.dialogs, parts_.ports.texts, parts_.ports.screen};
  if (!EditWatermark(std::string(row.title), watermark, filters.sliderQuality, parts_.samples(), PortsOfSamples(),
                     ports, &form_)) {
    return;
  }
  parts_.binder.Edit([&](core::ProjectEditor& editor) {
    editor.Set(row.watermark, watermark);
    editor.Set(row.filters, filters);
  });
}

void SettingsDialogs::SetIfChanged(std::string core::GalleryProject::*field, const std::string& text) {
  if (parts_.binder.Project().*field == text) return;
  parts_.binder.Edit([&](core::ProjectEditor& editor) { editor.Set(field, text); });
}

SamplePorts SettingsDialogs::PortsOfSamples() const {
  return {parts_.ports.files, parts_.ports.boxes, parts_.ports.loop};
}

}  // namespace vantorium::ui
