#pragma once

#include "env/EventLoop.h"

#include <algorithm>
#include <chrono>

namespace vantorium::publish {

/// Waits for one blocking call in slices, with a turn of the event loop between them, until the call is done, the time
/// limit has passed or the call was abandoned from inside a turn. Time spent in turns does not count.
class SlicedWait {
 public:
  using Milliseconds = std::chrono::milliseconds;

  /// `abandoned` is checked after each turn. A limit of 0 means none.
  SlicedWait(env::EventLoop& loop, Milliseconds limit, const bool& abandoned)
      : loop_(loop), limit_(limit), abandoned_(abandoned) {}

  /// Calls `isOver`, which waits at most the time it is given, until it returns true. Returns false if the time limit
  /// passes or the call is abandoned first.
  template <typename IsOver>
  [[nodiscard]] bool Until(IsOver isOver) {
    while (!IsExpired()) {
      const auto begin = Clock::now();
      const bool over = isOver(NextSlice());
      waited_ += Clock::now() - begin;
      if (over) return true;
      if (!Turn()) return false;
    }
    return false;
  }

  /// Gives the event loop a turn. Returns false if the call was abandoned in it.
  [[nodiscard]] bool Turn() {
    loop_.Turn();
    return !abandoned_;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr Milliseconds kSlice{20};

  [[nodiscard]] bool IsExpired() const { return limit_.count() > 0 && waited_ >= limit_; }
  [[nodiscard]] Milliseconds NextSlice() const {
    if (limit_.count() == 0) return kSlice;
    return std::min(kSlice, std::chrono::ceil<Milliseconds>(limit_ - waited_));
  }

  env::EventLoop& loop_;
  Milliseconds limit_;
  const bool& abandoned_;
  Clock::duration waited_{};
};

}  // namespace vantorium::publish
