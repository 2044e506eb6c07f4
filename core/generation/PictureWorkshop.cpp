#include "core/generation/PictureWorkshop.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <thread>
#include <vector>

#define ASIO_STANDALONE
#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/post.hpp>

namespace vantorium::generation {
namespace {

// Enough for three multi-scan pictures of 24 megapixels.
constexpr std::uint64_t kCoefficientBytes = std::uint64_t{256} << 20;

constexpr auto kWaitingSlice = std::chrono::milliseconds(20);

}  // namespace

struct PictureWorkshop::Workers {
  explicit Workers(unsigned jobs);
  ~Workers();
  Workers(const Workers&) = delete;
  Workers& operator=(const Workers&) = delete;

  asio::io_context tasks;
  asio::executor_work_guard<asio::io_context::executor_type> open{tasks.get_executor()};
  std::vector<std::thread> threads;
};

PictureWorkshop::Workers::Workers(unsigned jobs) {
  try {
    threads.reserve(jobs);
    while (threads.size() < jobs) threads.emplace_back([this] { tasks.run(); });
  } catch (const std::exception&) {
    // The system has no more threads, or no memory for them. The threads already started do the work.
  }
}

PictureWorkshop::Workers::~Workers() {
  open.reset();
  for (std::thread& thread : threads) thread.join();
}

PictureWorkshop::PictureWorkshop(unsigned jobs, std::int32_t count, Plan plan)
    : plan_(std::move(plan)), count_(count), budget_(kCoefficientBytes), workers_(std::make_unique<Workers>(jobs)) {}

PictureWorkshop::~PictureWorkshop() {
  stop_.request_stop();
  workers_.reset();
}

MadePictures PictureWorkshop::Make(const PictureTask& task) {
  const auto stamp = StampOf(task.source);
  return {image::MakePictures(task.source, task.request, {stop_.get_token(), budget_}), stamp};
}

/// How many numbers are planned at a time, including the one asked for.
std::int32_t PictureWorkshop::Window() const {
  return std::max(1, 2 * static_cast<std::int32_t>(workers_->threads.size()));
}

void PictureWorkshop::PlanAhead(std::int32_t number) {
  planned_ = std::max(planned_, number - 1);
  while (planned_ < std::min(count_, number + Window() - 1)) {
    auto task = plan_(++planned_);
    if (!task) continue;
    // A posted handler must be copyable.
    auto work = std::make_shared<std::packaged_task<MadePictures()>>(
        [this, task = *std::move(task)] { return stop_.stop_requested() ? MadePictures() : Make(task); });
    ahead_.push_back({planned_, work->get_future()});
    asio::post(workers_->tasks, [work] { (*work)(); });
  }
}

std::optional<MadePictures> PictureWorkshop::Take(std::int32_t number, const Waiting& waiting) {
  PlanAhead(number);
  while (!ahead_.empty() && ahead_.front().number < number) ahead_.pop_front();
  if (ahead_.empty() || ahead_.front().number != number) return std::nullopt;
  auto made = std::move(ahead_.front().made);
  ahead_.pop_front();
  if (workers_->threads.empty()) workers_->tasks.poll();
  while (made.wait_for(kWaitingSlice) != std::future_status::ready) {
    if (!waiting()) return std::nullopt;
  }
  return made.get();
}

}  // namespace vantorium::generation
