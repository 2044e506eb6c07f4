#pragma once

#include "core/generation/RunState.h"
#include "core/generation/SourceStamp.h"
#include "image/PictureRecipe.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::generation {

/// Returns the digest of what decides the bytes of a plain copy: the source file.
[[nodiscard]] std::string OriginOfCopy(const SourceStamp& source);

/// Waits until a file is old enough that its next change gives it another time of change, and returns its stamp; the
/// clock of a file system ticks slowly. Waits 20 ms at most, and only for a file that was changed just before. Returns
/// nullopt if the file cannot be found.
[[nodiscard]] std::optional<SourceStamp> SettledStampOf(const std::filesystem::path& file);

/// Digests what decides the bytes of a run's pictures: the source file, the size, the filters, the quality, the
/// corrections and the watermark, with the pixels that it covers, because these depend on the machine's fonts. The
/// noise of a picture depends on its position in the list, which counts only where there is noise.
class PictureOrigins {
 public:
  /// `run`, whose images are collected later, must outlive this object.
  explicit PictureOrigins(const RunState& run) : run_(run) {}

  /// Return the digest for the picture; an empty text if it has none: its source cannot be found, or its watermark
  /// cannot be drawn.
  [[nodiscard]] std::string OfImage(const ImageRunInfo& image);
  [[nodiscard]] std::string OfThumbnail(const ImageRunInfo& image);
  /// Returns whether the source is still the file that the digests are of.
  [[nodiscard]] bool IsSourceUnchanged(const ImageRunInfo& image) const;

 private:
  struct Known {
    std::optional<SourceStamp> source;
    std::optional<std::string> image;
    std::optional<std::string> thumbnail;
  };
  struct Masks {
    std::shared_ptr<const image::TextMask> last;
    std::string digest;
  };

  [[nodiscard]] Known& KnownOf(const ImageRunInfo& image);
  [[nodiscard]] std::string FindOriginOfImage(const SourceStamp& source, const ImageRunInfo& image);
  [[nodiscard]] std::string FindOrigin(const SourceStamp& source, const image::PictureRecipe& recipe,
                                       image::PictureSize size, const image::WatermarkSettings& watermark,
                                       Masks& masks) const;

  const RunState& run_;
  std::vector<std::optional<Known>> known_;  // element i - 1 is for image i
  Masks imageMasks_;
  Masks thumbnailMasks_;
};

}  // namespace vantorium::generation
