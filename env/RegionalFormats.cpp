#include "env/RegionalFormats.h"

#include "env/RuntimeFailure.h"

#include <array>
#include <cstdlib>

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/gregocal.h>
#include <unicode/timezone.h>

namespace vantorium::env {
namespace {

using icu::DateFormat;

/// All formatters use UTC and take calendar times as UTC, so a time is shown as it was passed.
std::unique_ptr<DateFormat> InUtc(DateFormat* format) {
  std::unique_ptr<DateFormat> owned(format);
  if (!owned) throw RuntimeFailure(FailureKind::FileNotFound, "The formats of dates and times cannot be loaded.");
  owned->adoptTimeZone(icu::TimeZone::getGMT()->clone());
  return owned;
}

/// Returns the locale of an ICU or POSIX name. ICU does not know the system's "C".
icu::Locale LocaleNamed(const std::string& name) {
  const bool isC = name == "C" || name == "POSIX" || name.starts_with("C.");
  return icu::Locale::createCanonical(isC ? "en_US_POSIX" : name.c_str());
}

/// Returns the locale of the system's dates and times. ICU's default would be the locale of messages.
icu::Locale LocaleOfSystem() {
  for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return LocaleNamed(value);
  }
  return icu::Locale::getDefault();
}

UDate ToUDate(const CivilTime& time) {
  UErrorCode status = U_ZERO_ERROR;
  icu::GregorianCalendar calendar(*icu::TimeZone::getGMT(), icu::Locale::getRoot(), status);
  calendar.clear();
  calendar.set(time.year, time.month - 1, time.day, time.hour, time.minute, time.second);
  return calendar.getTime(status);
}

}  // namespace

struct RegionalFormats::Formatters {
  std::array<std::unique_ptr<DateFormat>, 4> byKind;
};

RegionalFormats::RegionalFormats(const std::string& locale) : formatters_(std::make_unique<Formatters>()) {
  const icu::Locale used = locale.empty() ? LocaleOfSystem() : LocaleNamed(locale);
  formatters_->byKind = {InUtc(DateFormat::createDateInstance(DateFormat::kShort, used)),
                         InUtc(DateFormat::createDateInstance(DateFormat::kFull, used)),
                         InUtc(DateFormat::createTimeInstance(DateFormat::kShort, used)),
                         InUtc(DateFormat::createTimeInstance(DateFormat::kMedium, used))};
}

RegionalFormats::~RegionalFormats() = default;

std::string RegionalFormats::Format(const CivilTime& time, RegionalFormat format) const {
  const auto& formatter = formatters_->byKind.at(static_cast<std::size_t>(format));
  std::string text;
  icu::UnicodeString formatted;
  formatter->format(ToUDate(time), formatted);
  // Recent ICU data puts a narrow no-break space before AM and PM, which would make a page of pure ASCII a different
  // one.
  formatted.findAndReplace(icu::UnicodeString(char16_t{0x202F}), icu::UnicodeString(u' '));
  return formatted.toUTF8String(text);
}

}  // namespace vantorium::env
