#pragma once

#include "core/ImageList.h"
#include "core/RandomNumbers.h"
#include "env/EventLoop.h"

namespace vantorium::core {

/// The window shown while the rows are shuffled: a label "Shuffling Images...", a bar and a button "&Stop".
class ShuffleProgress {
 public:
  virtual ~ShuffleProgress() = default;
  /// Shows the window with an empty bar and returns immediately; resets StopRequested.
  virtual void Open() = 0;
  /// 0 to 100.
  virtual void SetPercent(double percent) = 0;
  [[nodiscard]] virtual bool StopRequested() const = 0;
  virtual void Close() = 0;
};

/// What ShuffleRows needs.
struct ShuffleTools {
  ShuffleProgress& progress;
  env::EventLoop& eventLoop;
  RandomNumbers& random;
};

/// Moves a random row to a random place, twice as many times as there are rows; `tools.random` gives first the row,
/// then the place. From round 250 on, each round begins with a turn of the event loop and can be stopped. Returns false
/// if stopped.
[[nodiscard]] bool ShuffleRows(ImageList& images, const ShuffleTools& tools);

}  // namespace vantorium::core
