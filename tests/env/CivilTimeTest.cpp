#include "env/CivilTime.h"

#include <limits>
#include <ostream>

namespace vantorium::env {

static std::ostream& operator<<(std::ostream& stream, const CivilTime& time) {
  return stream << time.year << "-" << time.month << "-" << time.day << " " << time.hour << ":" << time.minute << ":"
                << time.second;
}

namespace {

TEST(CivilTime, AFileTimeIsTruncatedToSeconds) {
  const std::pair<std::int64_t, CivilTime> cases[] = {{0, {1601, 1, 1, 0, 0, 0}},
                                                      {9'999'999, {1601, 1, 1, 0, 0, 0}},
                                                      {10'000'000, {1601, 1, 1, 0, 0, 1}},
                                                      {-1, {1600, 12, 31, 23, 59, 59}},
                                                      {116'444'736'000'000'000, {1970, 1, 1, 0, 0, 0}},
                                                      {125'963'423'990'000'000, {2000, 2, 29, 23, 59, 59}},
                                                      {125'911'583'999'999'999, {1999, 12, 31, 23, 59, 59}}};
  for (const auto& [ticks, civil] : cases) EXPECT_EQ(ToCivilTime({ticks}), civil) << ticks;
}

TEST(CivilTime, TheLimitsOfFileTimesHaveACalendarDay) {
  EXPECT_EQ(ToCivilTime({std::numeric_limits<std::int64_t>::max()}).year, 30828);
  EXPECT_EQ(ToCivilTime({std::numeric_limits<std::int64_t>::min()}).year, -27627);
}

TEST(CivilTime, UnixTimeCountsFrom1970) {
  EXPECT_EQ(FileTimeOfUnixTime(0, 0).ticks, 116'444'736'000'000'000);
  EXPECT_EQ(FileTimeOfUnixTime(0, 199).ticks, 116'444'736'000'000'001);
  EXPECT_EQ(FileTimeOfUnixTime(-1, 999'999'999).ticks, 116'444'735'999'999'999);
  EXPECT_EQ(FileTimeOfUnixTime(-11'644'473'600, 0).ticks, 0);
  EXPECT_EQ(ToCivilTime(FileTimeOfUnixTime(1'000'000'000, 5)), (CivilTime{2001, 9, 9, 1, 46, 40}));
}

TEST(CivilTime, UnixTimesBeyondAllFileTimesAreClamped) {
  const auto latest = FileTimeOfUnixTime(std::numeric_limits<std::int64_t>::max(), 999'999'999);
  const auto earliest = FileTimeOfUnixTime(std::numeric_limits<std::int64_t>::min(), 0);
  EXPECT_GT(ToCivilTime(latest).year, 29'000);
  EXPECT_LT(ToCivilTime(earliest).year, -25'000);
}

}  // namespace
}  // namespace vantorium::env
