#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <stop_token>

namespace vantorium::image {

/// Limits the memory that pictures which must be held take at one time. A decoder of a picture in several scans holds
/// all its coefficients, about 70 MB for 24 megapixels; a photograph that is turned holds the pixels that are wanted of
/// it, in its own size as much again. Shared by the workers of a run.
class CoefficientBudget {
 public:
  explicit CoefficientBudget(std::uint64_t bytes) : limit_(bytes) {}
  CoefficientBudget(const CoefficientBudget&) = delete;
  CoefficientBudget& operator=(const CoefficientBudget&) = delete;

  /// A share of the budget, returned by the destructor.
  class Share {
   public:
    Share() = default;
    Share(CoefficientBudget& budget, std::uint64_t bytes) : budget_(&budget), bytes_(bytes) {}
    ~Share();
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;

   private:
    CoefficientBudget* budget_ = nullptr;
    std::uint64_t bytes_ = 0;
  };

  /// Blocks until `bytes` fit in the budget. A picture larger than the whole budget waits until no other share is held.
  /// A stop request ends the wait.
  [[nodiscard]] Share Take(std::uint64_t bytes, const std::stop_token& stop);

 private:
  std::mutex mutex_;
  std::condition_variable_any freed_;
  std::uint64_t limit_;
  std::uint64_t used_ = 0;
};

}  // namespace vantorium::image
