#pragma once

#include "image/ResamplePlan.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <filesystem>
#include <optional>
#include <stop_token>

namespace vantorium {

/// Decodes pictures for a look at them, apart from the window's thread. Only the latest one asked for counts: the
/// decoding of another one is broken off, and its result is never told.
class PreviewLoader : public QObject {
  Q_OBJECT

 public:
  explicit PreviewLoader(QObject* parent = nullptr);
  ~PreviewLoader() override;

  /// Begins to decode a file (native; nothing for one that is not there) for a place of `box` pixels.
  void Load(const std::optional<std::filesystem::path>& file, PictureSize box);
  /// Nothing is wanted any more.
  void Cancel();

 signals:
  /// The latest picture is here, a null image when it does not decode. Comes from the event loop, never from within
  /// Load.
  void Loaded(const QImage& picture);

 private:
  QThreadPool worker_;
  std::stop_source stop_;
};

}  // namespace vantorium
