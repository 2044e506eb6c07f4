#pragma once

#include "core/GalleryTargets.h"

#include <span>
#include <string_view>

namespace vantorium::ui {

// The buttons of the settings pages that open a dialog for some settings, by object name.

/// Opens an editor for one text.
struct CodeButton {
  std::string_view button;
  std::string_view title;
  std::string core::GalleryProject::*code;
};

/// Opens an editor for two texts, a header and a footer.
struct HeaderFooterButton {
  std::string_view button;
  std::string_view title;
  std::string core::GalleryProject::*header;
  std::string core::GalleryProject::*footer;
};

/// Opens the file dialog for the path in a text box.
struct BackdropButton {
  std::string_view button;
  std::string_view title;
  std::string core::GalleryProject::*path;
};

/// Opens the dialog for the five colors of a page; it offers to copy those of the other kind of page.
struct ColorsButton {
  std::string_view button;
  std::string_view title;
  const core::PageColorFields& colors;
  const core::PageColorFields& others;
};

/// Opens the dialog for a page link. With an empty label the link has no second graphic.
struct LinkButton {
  std::string_view button;
  std::string_view title;
  std::string_view disabledGraphicLabel;
  core::LinkSettings core::GalleryProject::*link;
};

struct FiltersButton {
  std::string_view button;
  std::string_view title;
  image::ImageFilterSettings core::GalleryProject::*filters;
};

/// The quality of a watermarked picture is a setting of its filters.
struct WatermarkButton {
  std::string_view button;
  std::string_view title;
  image::WatermarkSettings core::GalleryProject::*watermark;
  image::ImageFilterSettings core::GalleryProject::*filters;
};

[[nodiscard]] std::span<const CodeButton> CodeButtons();
[[nodiscard]] std::span<const HeaderFooterButton> HeaderFooterButtons();
[[nodiscard]] std::span<const BackdropButton> BackdropButtons();
[[nodiscard]] std::span<const ColorsButton> ColorsButtons();
[[nodiscard]] std::span<const LinkButton> LinkButtons();
[[nodiscard]] std::span<const FiltersButton> FiltersButtons();
[[nodiscard]] std::span<const WatermarkButton> WatermarkButtons();

}  // namespace vantorium::ui
