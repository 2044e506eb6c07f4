#pragma once

#include <compare>
#include <cstdint>

namespace vantorium::env {

/// A calendar date and time of day, without a time zone.
struct CivilTime {
  int year = 1601;
  int month = 1;  ///< 1 to 12
  int day = 1;    ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  auto operator<=>(const CivilTime&) const = default;
};

/// A file's time, in units of 100 nanoseconds since 1601-01-01 00:00 UTC.
struct FileTime {
  std::int64_t ticks = 0;

  auto operator<=>(const FileTime&) const = default;
};

/// Returns the UTC calendar time of `time`, rounded down to whole seconds.
[[nodiscard]] CivilTime ToCivilTime(FileTime time);

/// Converts a POSIX time: seconds since 1970-01-01 00:00 UTC, and 0 to 999,999,999 nanoseconds. Times more than 28,000
/// years from 1970 are clamped to that.
[[nodiscard]] FileTime FileTimeOfUnixTime(std::int64_t seconds, std::int64_t nanoseconds);

}  // namespace vantorium::env
