#pragma once

#include "core/generation/SourceStamp.h"
#include "image/Picture.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <optional>

namespace vantorium::generation {

/// One photograph to process.
struct PictureTask {
  std::filesystem::path source;
  image::PictureRequest request;
};

/// The result of a task, and the file it was made from.
struct MadePictures {
  image::PictureFiles files;
  std::optional<SourceStamp> source;  ///< stamp of the file before it was read
};

/// Makes pictures on worker threads, a bounded number of them ahead of their turn. The caller plans and takes them in
/// the order of their numbers, on its own thread. If the system cannot start all threads, those started do the work; if
/// it starts none, the caller's thread makes each picture when it is taken.
class PictureWorkshop {
 public:
  /// Returns the task for a number, or nullopt if it needs no work.
  using Plan = std::function<std::optional<PictureTask>(std::int32_t number)>;
  /// Called repeatedly while waiting for a picture. Returns false to give up.
  using Waiting = std::function<bool()>;

  /// `jobs`: photographs processed at a time. Numbers run from 1 to `count`.
  PictureWorkshop(unsigned jobs, std::int32_t count, Plan plan);
  /// Stops running tasks and waits for them to end.
  ~PictureWorkshop();
  PictureWorkshop(const PictureWorkshop&) = delete;
  PictureWorkshop& operator=(const PictureWorkshop&) = delete;

  /// Returns the result for picture `number`, or nullopt if it was not planned or `waiting` gave up. Numbers must be
  /// taken in ascending order; some may be skipped. Throws whatever stopped the worker, such as std::bad_alloc.
  [[nodiscard]] std::optional<MadePictures> Take(std::int32_t number, const Waiting& waiting);

  /// Runs a task now, on the caller's thread.
  [[nodiscard]] MadePictures Make(const PictureTask& task);

 private:
  struct Ahead {
    std::int32_t number;
    std::future<MadePictures> made;
  };
  struct Workers;

  [[nodiscard]] std::int32_t Window() const;
  void PlanAhead(std::int32_t number);

  Plan plan_;
  std::int32_t count_;
  std::int32_t planned_ = 0;  // the last planned number
  image::CoefficientBudget budget_;
  std::stop_source stop_;
  std::deque<Ahead> ahead_;
  std::unique_ptr<Workers> workers_;  // last, so that it is destroyed first
};

}  // namespace vantorium::generation
