#pragma once

#include "core/GalleryProject.h"
#include "env/PathMap.h"
#include "ui/model/files/FileBrowser.h"

#include <functional>
#include <string>

namespace vantorium {

/// The dialog for one page link. It has no Cancel: each change counts at once.
class LinksModel {
 public:
  /// `edited` is called at each change. `graphicsFolder` is the folder in which graphics were last browsed for. Without
  /// `showDisabledGraphic` the link has one graphic only, and its second one stays as it is.
  LinksModel(const LinkSettings& link, const PathMap& paths, std::string& graphicsFolder, std::function<void()> edited,
             bool showDisabledGraphic = true);

  /// One of the two graphics.
  using Graphic = std::string LinkSettings::*;

  void EditLabel(const std::string& text);
  /// A box's text became another one. While only one graphic is given, the other follows it letter by letter.
  void EditGraphic(Graphic box, const std::string& text);
  /// The focus left a box: the graphics no longer follow each other. A native path that was typed becomes path text.
  void LeaveGraphic(Graphic box);
  void Browse(Graphic box, FileBrowser& browser);
  /// A graphic that is missing takes the other one, where the link has both.
  void Close();

  [[nodiscard]] const LinkSettings& Link() const { return link_; }
  [[nodiscard]] bool ShowDisabledGraphic() const { return showDisabledGraphic_; }
  [[nodiscard]] bool MirrorGraphics() const { return mirrorGraphics_; }

 private:
  void FinishTyping(Graphic box);

  LinkSettings link_;
  const PathMap& paths_;
  std::string& graphicsFolder_;
  std::function<void()> edited_;
  bool showDisabledGraphic_;
  bool mirrorGraphics_ = false;
  Graphic typedInto_ = nullptr;  // the box that has a typed text
};

}  // namespace vantorium
