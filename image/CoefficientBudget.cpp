#include "image/CoefficientBudget.h"

namespace vantorium::image {

CoefficientBudget::Share::~Share() {
  if (budget_ == nullptr) return;
  {
    const std::lock_guard lock(budget_->mutex_);
    budget_->used_ -= bytes_;
  }
  budget_->freed_.notify_all();
}

CoefficientBudget::Share CoefficientBudget::Take(std::uint64_t bytes, const std::stop_token& stop) {
  if (bytes == 0) return {};
  std::unique_lock lock(mutex_);
  freed_.wait(lock, stop, [&] { return used_ == 0 || used_ + bytes <= limit_; });
  used_ += bytes;
  return {*this, bytes};
}

}  // namespace vantorium::image
