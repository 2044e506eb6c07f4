#include "env/RegionalFormats.h"
#include "env/RuntimeFailure.h"
#include "tests/fakes/FaultInjection.h"

#include <cstdlib>
#include <iostream>

#include <unicode/uclean.h>

namespace vantorium::env {
namespace {

using fakes::EnvironmentVariable;

constexpr CivilTime kAfternoon = {2003, 7, 9, 15, 4, 5};

struct Expected {
  const char* locale;
  const char* shortDate;
  const char* longDate;
  const char* shortTime;
  const char* longTime;
};

class RegionalFormatsOf : public testing::TestWithParam<Expected> {};

TEST_P(RegionalFormatsOf, DatesAndTimesFollowTheLocale) {
  const Expected& expected = GetParam();
  const RegionalFormats formats(expected.locale);
  EXPECT_EQ(formats.Format(kAfternoon, RegionalFormat::ShortDate), expected.shortDate) << expected.locale;
  EXPECT_EQ(formats.Format(kAfternoon, RegionalFormat::LongDate), expected.longDate) << expected.locale;
  EXPECT_EQ(formats.Format(kAfternoon, RegionalFormat::ShortTime), expected.shortTime) << expected.locale;
  EXPECT_EQ(formats.Format(kAfternoon, RegionalFormat::LongTime), expected.longTime) << expected.locale;
}

INSTANTIATE_TEST_SUITE_P(
    RegionalFormats, RegionalFormatsOf,
    testing::Values(Expected{"en_US", "7/9/03", "Wednesday, July 9, 2003", "3:04 PM", "3:04:05 PM"},
                    Expected{"en_US.UTF-8", "7/9/03", "Wednesday, July 9, 2003", "3:04 PM", "3:04:05 PM"},
                    Expected{"en_GB", "09/07/2003", "Wednesday, 9 July 2003", "15:04", "15:04:05"},
                    Expected{"de_DE", "09.07.03", "Mittwoch, 9. Juli 2003", "15:04", "15:04:05"},
                    Expected{"de_DE@euro", "09.07.03", "Mittwoch, 9. Juli 2003", "15:04", "15:04:05"},
                    Expected{"fr_FR", "09/07/2003", "mercredi 9 juillet 2003", "15:04", "15:04:05"},
                    Expected{"C", "7/9/03", "Wednesday, July 9, 2003", "3:04 PM", "3:04:05 PM"},
                    Expected{"C.UTF-8", "7/9/03", "Wednesday, July 9, 2003", "3:04 PM", "3:04:05 PM"},
                    Expected{"POSIX", "7/9/03", "Wednesday, July 9, 2003", "3:04 PM", "3:04:05 PM"}));

TEST(RegionalFormats, TheTimeZoneDoesNotShiftTheTime) {
  const EnvironmentVariable zone("TZ", "Pacific/Auckland");
  EXPECT_EQ(RegionalFormats("de_DE").Format({2003, 7, 9, 0, 0, 0}, RegionalFormat::ShortDate), "09.07.03");
  EXPECT_EQ(RegionalFormats("de_DE").Format({2003, 7, 9, 23, 59, 59}, RegionalFormat::LongTime), "23:59:59");
}

TEST(RegionalFormats, AnEmptyNameIsTheSystemsLocaleForTimes) {
  struct Case {
    const char* all;
    const char* time;
    const char* lang;
    const char* date;
  };
  const Case cases[] = {{nullptr, "de_DE.UTF-8", "en_US.UTF-8", "09.07.03"},
                        {"en_GB.UTF-8", "de_DE.UTF-8", "en_US.UTF-8", "09/07/2003"},
                        {"", "", "de_DE.UTF-8", "09.07.03"},
                        {nullptr, "C", "de_DE.UTF-8", "7/9/03"}};
  for (const auto& [all, time, lang, date] : cases) {
    const EnvironmentVariable allVariable("LC_ALL", all);
    const EnvironmentVariable timeVariable("LC_TIME", time);
    const EnvironmentVariable langVariable("LANG", lang);
    EXPECT_EQ(RegionalFormats().Format(kAfternoon, RegionalFormat::ShortDate), date) << time << " " << lang;
  }
}

TEST(RegionalFormats, AnUnknownLocaleStillFormatsDates) {
  for (const char* locale : {"xx_YY", "nonsense", "@@@", "de_DE.", "\xFF\xFE", "_"}) {
    const RegionalFormats formats(locale);
    EXPECT_FALSE(formats.Format(kAfternoon, RegionalFormat::LongDate).empty()) << locale;
    EXPECT_FALSE(formats.Format(kAfternoon, RegionalFormat::LongTime).empty()) << locale;
  }
}

/// For a separate process: makes ICU run out of memory, prints the failure's description to standard error and exits
/// with 1.
[[noreturn]] void MakeFormatsWithoutMemory() {
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(
      nullptr, [](const void*, std::size_t) -> void* { return nullptr; },
      [](const void*, void*, std::size_t) -> void* { return nullptr; }, [](const void*, void*) {}, &status);
  try {
    const RegionalFormats formats("de_DE");
  } catch (const RuntimeFailure& failure) {
    std::cerr << failure.Description();
    std::_Exit(1);
  }
  std::_Exit(0);
}

TEST(RegionalFormatsDeathTest, FormatsThatCannotBeLoadedAreAFailureWithADescription) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(MakeFormatsWithoutMemory(), testing::ExitedWithCode(1),
              "The formats of dates and times cannot be loaded.");
}

TEST(RegionalFormats, TheFirstAndTheLastDayCanBeFormatted) {
  const RegionalFormats formats("de_DE");
  EXPECT_EQ(formats.Format({1601, 1, 1, 0, 0, 0}, RegionalFormat::LongDate), "Montag, 1. Januar 1601");
  EXPECT_NE(formats.Format({30828, 9, 14, 2, 48, 5}, RegionalFormat::LongDate).find("30828"), std::string::npos);
}

}  // namespace
}  // namespace vantorium::env
