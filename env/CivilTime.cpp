#include "env/CivilTime.h"

#include <algorithm>
#include <chrono>

namespace vantorium::env {
namespace {

constexpr std::int64_t kTicksPerSecond = 10'000'000;
constexpr std::int64_t kSecondsFrom1601To1970 = 11'644'473'600;

std::int64_t FloorDivide(std::int64_t value, std::int64_t by) {
  return value / by - (value % by < 0 ? 1 : 0);
}

}  // namespace

CivilTime ToCivilTime(FileTime time) {
  const std::chrono::sys_seconds seconds{
      std::chrono::seconds(FloorDivide(time.ticks, kTicksPerSecond) - kSecondsFrom1601To1970)};
  const auto midnight = std::chrono::floor<std::chrono::days>(seconds);
  const std::chrono::year_month_day date(midnight);
  const std::chrono::hh_mm_ss clock(seconds - midnight);
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count()),
          static_cast<int>(clock.seconds().count())};
}

FileTime FileTimeOfUnixTime(std::int64_t seconds, std::int64_t nanoseconds) {
  constexpr std::int64_t kMostSeconds = 28'000LL * 365 * 86'400;
  const std::int64_t since1601 = std::clamp(seconds, -kMostSeconds, kMostSeconds) + kSecondsFrom1601To1970;
  return {since1601 * kTicksPerSecond + nanoseconds / 100};
}

}  // namespace vantorium::env
