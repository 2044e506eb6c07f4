#pragma once

namespace vantorium::fakes {

/// While it lives, the system gives the test `threads` more threads and then no further one.
class ThreadLimit {
 public:
  explicit ThreadLimit(int threads);
  ~ThreadLimit();
  ThreadLimit(const ThreadLimit&) = delete;
  ThreadLimit& operator=(const ThreadLimit&) = delete;
};

}  // namespace vantorium::fakes
