#include "ui/model/dialogs/LinksModel.h"

#include "env/PathText.h"

#include <utility>

namespace vantorium::ui {
namespace {

LinksModel::Graphic OtherOf(LinksModel::Graphic box) {
  return box == &core::LinkSettings::textLinkGraphic ? &core::LinkSettings::textLinkGraphicDisabled
                                                     : &core::LinkSettings::textLinkGraphic;
}

}  // namespace

LinksModel::LinksModel(const core::LinkSettings& link, const env::PathMap& paths, std::string& graphicsFolder,
                       std::function<void()> edited, bool showDisabledGraphic)
    : link_(link),
      paths_(paths),
      graphicsFolder_(graphicsFolder),
      edited_(std::move(edited)),
      showDisabledGraphic_(showDisabledGraphic) {}

void LinksModel::EditLabel(const std::string& text) {
  if (link_.textLinkLabel == text) return;
  link_.textLinkLabel = text;
  edited_();
}

void LinksModel::EditGraphic(Graphic box, const std::string& text) {
  if (link_.*box == text) return;
  link_.*box = text;
  typedInto_ = box;
  const Graphic other = OtherOf(box);
  if (showDisabledGraphic_ && (link_.*other).empty()) mirrorGraphics_ = true;
  if (mirrorGraphics_) link_.*other = text;
  edited_();
}

void LinksModel::LeaveGraphic(Graphic box) {
  FinishTyping(box);
  mirrorGraphics_ = false;
}

void LinksModel::FinishTyping(Graphic box) {
  if (typedInto_ == box) EditGraphic(box, paths_.ToTextIfNative(link_.*box));
  typedInto_ = nullptr;
}

void LinksModel::Browse(Graphic box, FileBrowser& browser) {
  const FileDialogResult chosen = browser.DisplayFileDialog({.title = "Select Link Graphic",
                                                             .initialFolder = graphicsFolder_,
                                                             .fileName = link_.*box,
                                                             .filter = "All Files (*.*)|*.*",
                                                             .preview = true});
  if (chosen.result.empty()) return;
  EditGraphic(box, chosen.result);
  typedInto_ = nullptr;
  graphicsFolder_ = env::GetFilePath(chosen.result);
}

void LinksModel::Close() {
  if (typedInto_ != nullptr) FinishTyping(typedInto_);
  if (!showDisabledGraphic_ || link_.textLinkGraphic.empty() == link_.textLinkGraphicDisabled.empty()) return;
  const Graphic missing = link_.textLinkGraphic.empty() ? &core::LinkSettings::textLinkGraphic
                                                        : &core::LinkSettings::textLinkGraphicDisabled;
  link_.*missing = link_.*OtherOf(missing);
  edited_();
}

}  // namespace vantorium::ui
