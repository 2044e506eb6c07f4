#pragma once

#include "env/CivilTime.h"

#include <memory>
#include <string>

namespace vantorium::env {

/// The named formats of the regional settings, with the program's numbers for them.
enum class RegionalFormat { ShortDate = 0, LongDate = 1, ShortTime = 2, LongTime = 3 };

/// Formats dates and times according to the regional settings.
class RegionalFormats {
 public:
  /// `locale`: an ICU or POSIX locale name such as "de_DE"; if empty, the locale of the system's dates and times
  /// (LC_ALL, LC_TIME, LANG). Throws RuntimeFailure FileNotFound if ICU has no data to work with.
  explicit RegionalFormats(const std::string& locale = "");
  ~RegionalFormats();
  RegionalFormats(const RegionalFormats&) = delete;
  RegionalFormats& operator=(const RegionalFormats&) = delete;

  [[nodiscard]] std::string Format(const CivilTime& time, RegionalFormat format) const;

 private:
  struct Formatters;
  std::unique_ptr<Formatters> formatters_;
};

}  // namespace vantorium::env
