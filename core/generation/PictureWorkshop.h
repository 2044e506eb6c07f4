#pragma once

#include "core/generation/SourceStamp.h"
#include "image/Picture.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <optional>

namespace vantorium {

/// One photograph to be worked on.
struct PictureTask {
  std::filesystem::path source;
  PictureRequest request;
};

/// What came of a task, and of which file.
struct MadePictures {
  PictureFiles files;
  std::optional<SourceStamp> source;  ///< as the file was before it was read
};

/// Makes pictures on its workers, a bounded number of them ahead of their turn. The caller plans and takes them in the
/// order of their numbers, on its own thread. Where the system has fewer threads to give than are asked for, those work
/// alone; where it has none, the caller's thread makes a picture when it is taken.
class PictureWorkshop {
 public:
  /// What is to be done for a number; nothing when there is no work in it.
  using Plan = std::function<std::optional<PictureTask>(std::int32_t number)>;
  /// Called again and again while a picture is waited for. False gives up.
  using Waiting = std::function<bool()>;

  /// `jobs`: photographs worked on at a time. Numbers count from 1 to `count`.
  PictureWorkshop(unsigned jobs, std::int32_t count, Plan plan);
  /// Stops what is under way and waits for its end.
  ~PictureWorkshop();
  PictureWorkshop(const PictureWorkshop&) = delete;
  PictureWorkshop& operator=(const PictureWorkshop&) = delete;

  /// What came of picture `number`; nothing when it was not planned, or given up by `waiting`. Numbers are asked for in
  /// rising order, some may be left out. Throws what kept the worker from its work, such as a lack of memory.
  [[nodiscard]] std::optional<MadePictures> Take(std::int32_t number, const Waiting& waiting);

  /// Does a task now, on the caller's thread.
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
  std::int32_t planned_ = 0;  // the last number that was planned
  CoefficientBudget budget_;
  std::stop_source stop_;
  std::deque<Ahead> ahead_;
  std::unique_ptr<Workers> workers_;  // last: its end comes first
};

}  // namespace vantorium
