#pragma once

#include "core/Ports.h"
#include "core/Project.h"
#include "core/generation/RunOrder.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vantorium::generation {

enum class FindingKind {
  DeadLink,           ///< links with a name do not work
  SharedName,         ///< two files of the gallery have one name, or would where case does not matter
  MissingSource,      ///< a file that the gallery is made from cannot be read
  OverwrittenSource,  ///< the run would write over such a file, and so will refuse to begin
};

/// Something that would go wrong in a run, or later with its gallery.
struct Finding {
  FindingKind kind = FindingKind::DeadLink;
  std::size_t image = 0;  ///< its position in the list; 0 if no single image is the reason
  std::string name;       ///< the image's name
  std::string text;       ///< one or two sentences

  /// Whether another name of the image could help.
  [[nodiscard]] bool IsAboutName() const { return image != 0 && kind != FindingKind::MissingSource; }
};
using Findings = std::vector<Finding>;

/// Returns a finding in one line: the image, if there is one, and the text.
[[nodiscard]] std::string LineOf(const Finding& finding);

/// Looks at a project before a run and returns what would go wrong: first what concerns all images, then image by
/// image, at most one finding of each kind for an image. Opens no file and changes nothing. Only runs that create or
/// publish a gallery have findings; `order` is complete, as GalleryCreator makes it.
[[nodiscard]] Findings ForecastRun(const core::Project& project, const RunOrder& order, const core::Ports& ports);

/// The findings of one run, which are looked for again after changes. Refers to what it is constructed from.
class RunForecast {
 public:
  RunForecast(const core::Project& project, const RunOrder& order, const core::Ports& ports)
      : project_(project), order_(order), ports_(ports) {
    Renew();
  }

  [[nodiscard]] const Findings& Found() const { return findings_; }
  void Renew() { findings_ = ForecastRun(project_, order_, ports_); }

 private:
  const core::Project& project_;
  const RunOrder& order_;
  const core::Ports& ports_;
  Findings findings_;
};

}  // namespace vantorium::generation
