#pragma once

namespace vantorium::fakes {

/// While it exists, the test can create `threads` more threads; then pthread_create fails with EAGAIN.
class ThreadLimit {
 public:
  explicit ThreadLimit(int threads);
  ~ThreadLimit();
  ThreadLimit(const ThreadLimit&) = delete;
  ThreadLimit& operator=(const ThreadLimit&) = delete;
};

}  // namespace vantorium::fakes
