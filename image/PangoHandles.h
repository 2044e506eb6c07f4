#pragma once

#include <memory>

#include <fontconfig/fontconfig.h>
#include <hb.h>
#include <pango/pangocairo.h>

namespace vantorium::image {

// Owning handles for the objects of GLib, Pango, Cairo, Fontconfig and HarfBuzz.

template <auto Release>
struct HandleReleaser {
  template <typename T>
  void operator()(T* object) const {
    Release(object);
  }
};

template <typename T>
using GObjectHandle = std::unique_ptr<T, HandleReleaser<g_object_unref>>;
using FontDescriptionHandle = std::unique_ptr<PangoFontDescription, HandleReleaser<pango_font_description_free>>;
using FontMetricsHandle = std::unique_ptr<PangoFontMetrics, HandleReleaser<pango_font_metrics_unref>>;
using FontOptionsHandle = std::unique_ptr<cairo_font_options_t, HandleReleaser<cairo_font_options_destroy>>;
using SurfaceHandle = std::unique_ptr<cairo_surface_t, HandleReleaser<cairo_surface_destroy>>;
using CairoHandle = std::unique_ptr<cairo_t, HandleReleaser<cairo_destroy>>;
using FcConfigHandle = std::unique_ptr<FcConfig, HandleReleaser<FcConfigDestroy>>;
using BlobHandle = std::unique_ptr<hb_blob_t, HandleReleaser<hb_blob_destroy>>;
using ShaperFontHandle = std::unique_ptr<hb_font_t, HandleReleaser<hb_font_destroy>>;

}  // namespace vantorium::image
