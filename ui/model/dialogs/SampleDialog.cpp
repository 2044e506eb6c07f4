#include "ui/model/dialogs/SampleDialog.h"

#include "env/RuntimeFailure.h"
#include "env/TempFolderLock.h"
#include "image/JPEG.h"
#include "image/Photograph.h"

#include <algorithm>

namespace vantorium::ui {
namespace {

constexpr char kFailureTitle[] = "Unable to load default Preview Image";

bool Load(image::cDIBSection& picture, const std::string& path, const env::PathMap& paths,
          image::Corrections corrections) {
  if (path.empty()) return false;
  const auto native = paths.ToNative(path);
  return native && image::LoadPhotograph(picture, *native, corrections);
}

}  // namespace

SampleDialog::SampleDialog(const SampleSources& sources, const SamplePorts& ports, SampleBox& box)
    : sources_(sources), ports_(ports), box_(box) {}

bool SampleDialog::Open() {
  box_.Clear();
  ports_.loop.Turn();
  if (closed_) return false;
  source_ = LoadSource();
  if (source_ != nullptr) {
    mayUseTempFolder_ = MakeTempFolder();
    return true;
  }
  ports_.boxes.Critical(kFailureTitle, "Vantorium was unable to load the default Preview Image.");
  Close(true);
  return false;
}

std::unique_ptr<image::cDIBSection> SampleDialog::LoadSource() const {
  auto picture = std::make_unique<image::cDIBSection>();
  const auto loads = [&](const std::string& path) {
    return Load(*picture, path, ports_.files.Paths(), sources_.corrections);
  };
  if (loads(sources_.selectedFile) || std::ranges::any_of(sources_.defaultSamples, loads)) return picture;
  return nullptr;
}

/// Makes the folder before it is looked through: one that is the user's own stays so, as nobody else can write to it.
bool SampleDialog::MakeTempFolder() const {
  const auto folder = ports_.files.Paths().ToNative(TempFolder());
  return folder && ports_.files.MakePath(TempFolder()) && env::RefusalOfTempFolder(*folder).empty();
}

bool SampleDialog::Compress(const image::cDIBSection& picture, std::int32_t quality, image::cDIBSection& result) const {
  if (!mayUseTempFolder_ || !ports_.files.MakePath(TempFolder())) return false;
  const auto file = ports_.files.Paths().ToNative(TempFile());
  if (!file) return false;
  try {
    image::SaveJPEGImage(picture, *file, quality);
  } catch (const env::RuntimeFailure&) {
    return false;
  }
  return image::LoadJPEGImage(result, *file);
}

void SampleDialog::Close(bool cancelled) {
  if (closed_) return;
  closed_ = true;
  cancelled_ = cancelled;
  box_.HideDialog();
}

void SampleDialog::CloseWithFailure(const std::string& place) {
  ports_.boxes.Critical(kFailureTitle, "Vantorium was unable to load the default Preview Image in \"" +
                                           ports_.files.Paths().Surface(place) +
                                           "\".  Please check the Temporary Folder Location.");
  Close(true);
}

}  // namespace vantorium::ui
