#include "ui/files/PreviewLoader.h"

#include "ui/model/files/ReducedPicture.h"
#include "ui/qt/QtPicture.h"

namespace vantorium::ui {
namespace {

QImage Decode(const std::optional<std::filesystem::path>& file, image::PictureSize box, const std::stop_token& stop,
              image::Corrections corrections) {
  image::cDIBSection dib;
  if (!file || !LoadReducedPicture(dib, *file, box, stop, corrections)) return {};
  QImage picture = ImageOf(dib);
  const QSize enough = 2 * QSize(box.width, box.height);  // a huge one is scaled down here, not where it is drawn
  if (picture.width() <= enough.width() && picture.height() <= enough.height()) return picture;
  return picture.scaled(enough, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

PreviewLoader::PreviewLoader(QObject* parent) : QObject(parent) {
  worker_.setMaxThreadCount(1);
}

PreviewLoader::~PreviewLoader() {
  Cancel();
  worker_.waitForDone();
}

void PreviewLoader::Cancel() {
  stop_.request_stop();
  worker_.clear();
}

void PreviewLoader::Load(const std::optional<std::filesystem::path>& file, image::PictureSize box,
                         image::Corrections corrections) {
  Cancel();
  stop_ = std::stop_source();
  worker_.start([this, file, box, corrections, stop = stop_.get_token()] {
    const QImage picture = Decode(file, box, stop, corrections);
    QMetaObject::invokeMethod(
        this,
        [this, picture, stop] {
          if (!stop.stop_requested()) emit Loaded(picture);
        },
        Qt::QueuedConnection);
  });
}

}  // namespace vantorium::ui
