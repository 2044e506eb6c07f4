#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <stop_token>

namespace vantorium {

/// Bounds the memory that decoders of pictures in several scans hold at the same time: all of the picture's
/// coefficients, some 70 MB for 24 megapixels. Shared by the workers of a run.
class CoefficientBudget {
 public:
  explicit CoefficientBudget(std::uint64_t bytes) : limit_(bytes) {}
  CoefficientBudget(const CoefficientBudget&) = delete;
  CoefficientBudget& operator=(const CoefficientBudget&) = delete;

  /// A share of the budget, given back with the object.
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

  /// Waits until `bytes` fit. A picture beyond the whole budget waits until it is alone. A stop ends the waiting.
  [[nodiscard]] Share Take(std::uint64_t bytes, const std::stop_token& stop);

 private:
  std::mutex mutex_;
  std::condition_variable_any freed_;
  std::uint64_t limit_;
  std::uint64_t used_ = 0;
};

}  // namespace vantorium
