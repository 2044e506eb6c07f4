#include "tests/core/generation/ThreadLimit.h"

#include <atomic>
#include <cerrno>
#include <limits>

#include <dlfcn.h>
#include <pthread.h>

namespace vantorium::fakes {
namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();
std::atomic<int> threadsLeft = kNoLimit;

}  // namespace

ThreadLimit::ThreadLimit(int threads) {
  threadsLeft = threads;
}

ThreadLimit::~ThreadLimit() {
  threadsLeft = kNoLimit;
}

}  // namespace vantorium::fakes

/// Replaces the system's pthread_create in this program.
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                              void* argument) noexcept {
  using namespace vantorium::fakes;
  static const auto create = reinterpret_cast<decltype(&pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
  if (threadsLeft == 0) return EAGAIN;
  if (threadsLeft != kNoLimit) --threadsLeft;
  return create(thread, attributes, start, argument);
}
