#pragma once

#include <QImage>
#include <QSize>
#include <filesystem>

class QImageReader;

namespace vantorium::ui {

// Reads pictures of every format that Qt reads, recognized by the file's content and not by its name. Returns a null
// image if there is no such file, if it is not a picture, or if it is too large to be held in memory.

[[nodiscard]] QImage ReadPictureFile(const std::filesystem::path& native);

/// Reads the middle of a picture, at most `atMost` pixels wide and high.
[[nodiscard]] QImage ReadMiddleOfPictureFile(const std::filesystem::path& native, QSize atMost);

/// The same for the picture that `reader` is about to read. A picture of a format that does not tell its size in
/// advance is in memory as a whole meanwhile, as far as QImageReader::allocationLimit lets it.
[[nodiscard]] QImage ReadMiddle(QImageReader& reader, QSize atMost);

}  // namespace vantorium::ui
