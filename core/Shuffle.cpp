#include "core/Shuffle.h"

#include <cmath>

namespace vantorium::core {
namespace {

constexpr std::size_t kFirstRoundThatYields = 250;

std::size_t DrawPosition(RandomNumbers& random, std::size_t count) {
  return static_cast<std::size_t>(std::floor(random.Next() * static_cast<double>(count))) + 1;
}

}  // namespace

bool ShuffleRows(ImageList& images, const ShuffleTools& tools) {
  const std::size_t count = images.Count();
  const std::size_t rounds = 2 * count;
  for (std::size_t round = 1; round <= rounds; ++round) {
    if (round >= kFirstRoundThatYields) {
      tools.eventLoop.Turn();
      if (tools.progress.StopRequested()) return false;
    }
    tools.progress.SetPercent(100.0 * static_cast<double>(round) / static_cast<double>(rounds));
    const std::size_t from = DrawPosition(tools.random, count);
    const std::size_t to = DrawPosition(tools.random, count);
    images.MoveRow(from, to);
  }
  return true;
}

}  // namespace vantorium::core
