#pragma once

#include "core/GalleryProject.h"
#include "env/PathMap.h"
#include "ui/model/files/FileBrowser.h"

#include <functional>
#include <string>

namespace vantorium::ui {

/// The dialog for one page link. It has no Cancel: each change takes effect at once.
class LinksModel {
 public:
  /// `edited` is called at each change. `graphicsFolder` is the folder last browsed for graphics. Without
  /// `showDisabledGraphic` the link has only one graphic, and its second one stays unchanged.
  LinksModel(const core::LinkSettings& link, const env::PathMap& paths, std::string& graphicsFolder,
             std::function<void()> edited, bool showDisabledGraphic = true);

  /// One of the two graphics.
  using Graphic = std::string core::LinkSettings::*;

  void EditLabel(const std::string& text);
  /// Call when the text of a box changes. If the other graphic is empty, it follows letter by letter until
  /// LeaveGraphic.
  void EditGraphic(Graphic box, const std::string& text);
  /// Call when a box loses the focus. The graphics no longer follow each other; a typed native path becomes path text.
  void LeaveGraphic(Graphic box);
  void Browse(Graphic box, FileBrowser& browser);
  /// If the link has two graphics and one is missing, copies the other.
  void Close();

  /// The surface form of a graphic; the text as typed while the user is typing it.
  [[nodiscard]] std::string Shown(Graphic box) const {
    return typedInto_ == box ? link_.*box : paths_.Surface(link_.*box);
  }
  [[nodiscard]] const core::LinkSettings& Link() const { return link_; }
  [[nodiscard]] bool ShowDisabledGraphic() const { return showDisabledGraphic_; }
  [[nodiscard]] bool MirrorGraphics() const { return mirrorGraphics_; }

 private:
  void FinishTyping(Graphic box);

  core::LinkSettings link_;
  const env::PathMap& paths_;
  std::string& graphicsFolder_;
  std::function<void()> edited_;
  bool showDisabledGraphic_;
  bool mirrorGraphics_ = false;
  Graphic typedInto_ = nullptr;  // the box being typed into
};

}  // namespace vantorium::ui
