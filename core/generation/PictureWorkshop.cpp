#include "core/generation/PictureWorkshop.h"

#include <algorithm>
#include <chrono>

#define ASIO_STANDALONE
#include <asio/post.hpp>
#include <asio/thread_pool.hpp>

namespace vantorium {
namespace {

// Three pictures of 24 megapixels in several scans.
constexpr std::uint64_t kCoefficientBytes = std::uint64_t{256} << 20;

constexpr auto kWaitingSlice = std::chrono::milliseconds(20);

}  // namespace

struct PictureWorkshop::Workers {
  explicit Workers(unsigned jobs) : pool(jobs) {}
  asio::thread_pool pool;
};

PictureWorkshop::PictureWorkshop(unsigned jobs, std::int32_t count, Plan plan)
    : plan_(std::move(plan)),
      count_(count),
      window_(static_cast<std::int32_t>(2 * jobs)),
      budget_(kCoefficientBytes),
      workers_(std::make_unique<Workers>(jobs)) {}

PictureWorkshop::~PictureWorkshop() {
  stop_.request_stop();
  workers_->pool.join();
}

MadePictures PictureWorkshop::Make(const PictureTask& task) {
  const auto stamp = StampOf(task.source);
  return {MakePictures(task.source, task.request, {stop_.get_token(), budget_}), stamp};
}

void PictureWorkshop::PlanAhead(std::int32_t number) {
  planned_ = std::max(planned_, number - 1);
  while (planned_ < std::min(count_, number + window_ - 1)) {
    auto task = plan_(++planned_);
    if (!task) continue;
    // The pool takes only what can be copied.
    auto work = std::make_shared<std::packaged_task<MadePictures()>>(
        [this, task = *std::move(task)] { return stop_.stop_requested() ? MadePictures() : Make(task); });
    ahead_.push_back({planned_, work->get_future()});
    asio::post(workers_->pool, [work] { (*work)(); });
  }
}

std::optional<MadePictures> PictureWorkshop::Take(std::int32_t number, const Waiting& waiting) {
  PlanAhead(number);
  while (!ahead_.empty() && ahead_.front().number < number) ahead_.pop_front();
  if (ahead_.empty() || ahead_.front().number != number) return std::nullopt;
  auto made = std::move(ahead_.front().made);
  ahead_.pop_front();
  while (made.wait_for(kWaitingSlice) != std::future_status::ready) {
    if (!waiting()) return std::nullopt;
  }
  return made.get();
}

}  // namespace vantorium
