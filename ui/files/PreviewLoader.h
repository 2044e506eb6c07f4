#pragma once

#include "image/Corrections.h"
#include "image/ResamplePlan.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <filesystem>
#include <optional>
#include <stop_token>

namespace vantorium::ui {

/// Decodes pictures for previews on a worker thread. Only the latest request counts: decoding an earlier one is
/// stopped, and its result is never reported.
class PreviewLoader : public QObject {
  Q_OBJECT

 public:
  explicit PreviewLoader(QObject* parent = nullptr);
  ~PreviewLoader() override;

  /// Starts decoding a file (native; nullopt if it is not there) for a box of `box` pixels.
  void Load(const std::optional<std::filesystem::path>& file, image::PictureSize box,
            image::Corrections corrections = {});
  /// Drops the current request.
  void Cancel();

 signals:
  /// The latest picture is ready; it is null if the file cannot be decoded. Emitted from the event loop, never from
  /// within Load.
  void Loaded(const QImage& picture);

 private:
  QThreadPool worker_;
  std::stop_source stop_;
};

}  // namespace vantorium::ui
