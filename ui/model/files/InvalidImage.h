#pragma once

namespace vantorium::ui {

/// What to do with an image that cannot be decoded. The numbers are those of the desktop's own message boxes.
enum class InvalidImageAnswer {
  Remove = 3,
  Retry = 4,
  Ignore = 5,
};

}  // namespace vantorium::ui
