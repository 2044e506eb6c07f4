#pragma once

namespace vantorium {

/// What is to happen with an image that does not decode; the numbers are those of the desktop's own boxes.
enum class InvalidImageAnswer {
  Remove = 3,
  Retry = 4,
  Ignore = 5,
};

}  // namespace vantorium
