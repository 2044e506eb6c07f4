#include "core/generation/RunForecast.h"

#include "core/generation/LinkHazards.h"
#include "core/generation/LocalTarget.h"
#include "core/generation/NamesOfFiles.h"
#include "core/generation/OutputNaming.h"
#include "core/generation/RunFolders.h"
#include "core/generation/RunOutputs.h"
#include "core/generation/SafeNames.h"

#include <filesystem>

#include <unistd.h>

namespace vantorium::generation {
namespace {

bool IsReadableFile(const std::filesystem::path& file) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(file, ignored) && ::access(file.c_str(), R_OK) == 0;
}

std::string WhyLengthFails(const std::string& name) {
  constexpr std::size_t kLongestName = 255;  // in bytes, of all common file systems
  return name.size() > kLongestName ? "no file can have such a long name" : "";
}

std::string WhyNameFails(const std::string& name, LinkStart start) {
  if (std::string reason = WhyLengthFails(name); !reason.empty()) return reason;
  return IsPlainFileName(name) ? WhyLinkFails(name, start) : "no file can have it";
}

std::string SharedNameText(const std::string& name, const std::string& other) {
  if (name == other) return "Two files of the gallery would be \"" + name + "\".";
  return "\"" + other + "\" and \"" + name + "\" are the same file where upper and lower case do not matter.";
}

std::string DeadLinkText(const std::string& name, const std::string& reason) {
  return "Links to \"" + name + "\" would not work: " + reason + ".";
}

/// Goes through a project once. What concerns no single image is filed under image 0.
class Forecaster {
 public:
  Forecaster(const core::Project& project, const RunOrder& order, const core::Ports& ports)
      : order_(order), run_(StateOf(project, order, ports)) {
    SetFolders(run_);
    run_.ImageCount = static_cast<std::int32_t>(run_.images.Count());
    run_.ThumbnailPageCount = core::ThumbnailPageCount(run_.project, run_.ImageCount);
    for (std::size_t image = 1; image <= run_.images.Count(); ++image) {
      run_.RunInfo.push_back(InfoOfImage(run_.images, image));
    }
  }

  Findings Look() {
    sources_.AddSharedSources();
    for (const ImageRunInfo& image : run_.RunInfo) sources_.Add(image.Path);
    LookAtPages();
    LookAtAuxiliaryFiles();
    for (std::int32_t image = 1; image <= run_.ImageCount; ++image) LookAtImage(image);
    return std::move(findings_);
  }

 private:
  void LookAtPages() {
    if (!order_.CreateHTML) return;
    LookAtLinksOfAll();
    LookAtPage(run_.IndexFileName);
    for (std::int32_t page = 1; page <= run_.ThumbnailPageCount; ++page) {
      LookAtPage(ThumbnailPageName(run_.project, page));
    }
  }

  /// The parts of links that come from settings. The name stands for that of any image.
  void LookAtLinksOfAll() {
    const std::string page = ThumbnailPageName(run_.project, 1);
    const std::string thumbnail = ThumbnailFileName(run_.project, {.FileName = "1.jpg"});
    AddDeadLink(0, page, WhyLinkFails(page, StartOfPages()));
    AddDeadLink(0, run_.ImageUrlPrefix, WhyLinkFails(run_.ImageUrlPrefix, LinkStart::Name));
    AddDeadLink(0, run_.ThumbUrlPrefix, WhyLinkFails(run_.ThumbUrlPrefix, LinkStart::Name));
    AddDeadLink(0, thumbnail, WhyLinkFails(thumbnail, LinkStart::Folder));
  }

  void LookAtPage(const std::string& name) {
    LookAtName(0, "", name);
    LookAtOutputs(0, {PageOutput(run_, name)});
  }

  void LookAtAuxiliaryFiles() {
    for (const AuxiliaryFile& file : AuxiliaryFilesOf(run_)) {
      LookAtName(0, run_.ImageUrlPrefix, file.name);
      LookAtSource(0, file.source);
    }
    LookAtOutputs(0, AuxiliaryOutputs(run_));
  }

  void LookAtImage(std::int32_t image) {
    const ImageRunInfo& info = run_.Info(image);
    const std::string page = WrapperPageName(run_.project, run_.ListText(image));
    if (order_.CreateHTML && HasWrapperPages()) {
      AddDeadLink(image, page, WhyNameFails(page, StartOfPages()));
      LookAtName(image, "", page);
    }
    const std::string thumbnail = ThumbnailFileName(run_.project, info);
    if (order_.CreateHTML) AddDeadLink(image, info.FileName, WhyNameFails(info.FileName, LinkStart::Folder));
    if (order_.CreateHTML) AddDeadLink(image, thumbnail, WhyLengthFails(thumbnail));
    if (order_.CreateImages) LookAtName(image, run_.ImageUrlPrefix, info.FileName);
    if (order_.CreateThumbnails) LookAtName(image, run_.ThumbUrlPrefix, thumbnail);
    LookAtSource(image, info.Path);
    LookAtOutputs(image, OutputsOfImage({run_, order_, MayAskAhead() ? &local_ : nullptr}, image));
  }

  void LookAtName(std::int32_t image, const std::string& folder, const std::string& name) {
    const auto path = files_.Add(folder, name);
    if (path.other) Add(FindingKind::SharedName, image, SharedNameText(path.own, *path.other));
  }

  void LookAtSource(std::int32_t image, const std::string& path) {
    const auto native = run_.files.Paths().ToNative(path);
    if (native && IsReadableFile(*native)) return;
    Add(FindingKind::MissingSource, image, "The file \"" + run_.Shown(path) + "\" cannot be read.");
  }

  void LookAtOutputs(std::int32_t image, const std::vector<Output>& outputs) {
    for (const Output& output : outputs) {
      if (!sources_.WouldLoseOneTo(output)) continue;
      Add(FindingKind::OverwrittenSource, image,
          "The gallery would replace \"" + run_.Shown(output.path) + "\", which it is made from.");
    }
  }

  void AddDeadLink(std::int32_t image, const std::string& name, const std::string& reason) {
    if (!reason.empty()) Add(FindingKind::DeadLink, image, DeadLinkText(name, reason));
  }

  void Add(FindingKind kind, std::int32_t image, std::string text) {
    if (image != 0 && HasLast(kind, static_cast<std::size_t>(image))) return;
    findings_.push_back(
        {kind, static_cast<std::size_t>(image), image == 0 ? "" : run_.ListText(image), std::move(text)});
  }

  /// Whether there is a finding of this kind about the image, which the last ones are about.
  [[nodiscard]] bool HasLast(FindingKind kind, std::size_t image) const {
    for (auto finding = findings_.rbegin(); finding != findings_.rend() && finding->image == image; ++finding) {
      if (finding->kind == kind) return true;
    }
    return false;
  }

  [[nodiscard]] bool HasWrapperPages() const { return core::IsOn(run_.project.checkImageWrapperUse); }
  [[nodiscard]] LinkStart StartOfPages() const {
    return core::HasSlideShow(run_.project) ? LinkStart::NameInRefresh : LinkStart::Name;
  }
  [[nodiscard]] bool MayAskAhead() const { return run_.mode == GenerationMode::Create; }

  const RunOrder& order_;
  RunState run_;
  LocalTarget local_{run_};
  FileSet sources_{run_};
  NamesOfFiles files_;
  Findings findings_;
};

}  // namespace

std::string LineOf(const Finding& finding) {
  if (finding.image == 0) return finding.text;
  return "Image " + std::to_string(finding.image) + ", \"" + finding.name + "\": " + finding.text;
}

Findings ForecastRun(const core::Project& project, const RunOrder& order, const core::Ports& ports) {
  const bool makesGallery = order.Mode == GenerationMode::Create || order.Mode == GenerationMode::Publish;
  return makesGallery ? Forecaster(project, order, ports).Look() : Findings{};
}

}  // namespace vantorium::generation
