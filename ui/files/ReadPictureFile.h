#pragma once

#include <QImage>
#include <QSize>
#include <filesystem>

namespace vantorium {

// Pictures of every kind that the toolkit reads, by what is in the file and not by its name. The result is a null
// picture for what is no file or no picture, or too large to be held.

[[nodiscard]] QImage ReadPictureFile(const std::filesystem::path& native);

/// The middle of a picture, at most so many pixels wide and high.
[[nodiscard]] QImage ReadMiddleOfPictureFile(const std::filesystem::path& native, QSize atMost);

}  // namespace vantorium
