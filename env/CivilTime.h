#pragma once

#include <compare>
#include <cstdint>

namespace vantorium {

/// A date and a time of day as a calendar shows them, without a time zone.
struct CivilTime {
  int year = 1601;
  int month = 1;  ///< 1 to 12
  int day = 1;    ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  auto operator<=>(const CivilTime&) const = default;
};

/// Time of a file: units of 100 nanoseconds since 1601-01-01 00:00 UTC.
struct FileTime {
  std::int64_t ticks = 0;

  auto operator<=>(const FileTime&) const = default;
};

/// The UTC calendar time of `time`, cut to whole seconds.
[[nodiscard]] CivilTime ToCivilTime(FileTime time);

/// The file time of a time as the system keeps it: seconds since 1970-01-01 00:00 UTC, and 0 to 999,999,999
/// nanoseconds. What lies more than 28,000 years away is cut to that.
[[nodiscard]] FileTime FileTimeOfUnixTime(std::int64_t seconds, std::int64_t nanoseconds);

}  // namespace vantorium
