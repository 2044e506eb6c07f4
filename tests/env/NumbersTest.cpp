#include "env/Numbers.h"
#include "tests/fakes/FailureOf.h"

#include <cmath>
#include <limits>

namespace vantorium::env {
namespace {

using fakes::FailureOf;

TEST(Numbers, TiesAreRoundedToTheEvenNumber) {
  const std::pair<double, double> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},    {3.5, 4},       {-0.5, 0},
                                             {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.5000001, 3}, {-2.6, -3}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(RoundHalfEven(value), expected) << value;
}

TEST(Numbers, NumbersBeyondTheRangeOfAnIntegerOverflow) {
  EXPECT_EQ(ToInt16(32767.4), 32767);
  EXPECT_EQ(ToInt16(-32768.5), -32768);
  EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
  EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  for (const double value : {32767.5, -32768.6, 1e300, std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = ToInt16(value); }), FailureKind::Overflow) << value;
  }
  for (const double value : {2147483647.5, -2147483648.6, 1e300, std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = ToInt32(value); }), FailureKind::Overflow) << value;
  }
}

TEST(Numbers, ADivisionByZeroIsAFailure) {
  EXPECT_EQ(Divide(7, 2), 3.5);
  EXPECT_EQ(Divide(0, -3), 0);
  for (const double zero : {0.0, -0.0}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = Divide(1, zero); }), FailureKind::DivisionByZero) << zero;
    EXPECT_EQ(FailureOf([&] { std::ignore = Divide(0, zero); }), FailureKind::DivisionByZero) << zero;
  }
}

TEST(Numbers, OnlyBlanksMaySurroundANumber) {
  const std::pair<const char*, double> cases[] = {{"0", 0},          {"007", 7},
                                                  {" 12 ", 12},      {"\t-3\r\n", -3},
                                                  {"+4", 4},         {"2.5", 2.5},
                                                  {"5.", 5},         {".5", 0.5},
                                                  {"-.5", -0.5},     {"1e3", 1000},
                                                  {"1E+2", 100},     {"1e-2", 0.01},
                                                  {"+0.125", 0.125}, {"99999999999", 99999999999.0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(ParseNumber(text), value) << "\"" << text << "\"";
}

TEST(Numbers, ATextThatIsNotANumberGivesNone) {
  for (const char* text :
       {"",    " ",  "-",  "+",   ".",   "-.",   "--5", "+-5",      "-+5", "++5", "5 5", "5px", "0x10",
        "1,5", "e5", "1e", "1e+", "inf", "-inf", "nan", "infinity", "NAN", "one", "5-",  "- 5", "\xD9\xA3"}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << "\"" << text << "\"";
  }
  EXPECT_EQ(ParseNumber(std::string_view("5\0", 2)), std::nullopt);
}

TEST(Numbers, ANumberBeyondTheRangeOfDoubleIsClampedToTheLargestOrZero) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  const std::string zeros(400, '0');
  const std::pair<std::string, double> cases[] = {
      {"1e400", kLargest}, {"-1e400", -kLargest}, {"1" + zeros, kLargest}, {"+1e99999999999999999999", kLargest},
      {"1e-400", 0},       {"-1e-400", 0},        {"0." + zeros + "1", 0}, {"1e-99999999999999999999", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(ParseNumber(text), value) << text;
}

TEST(Numbers, AVeryLongTextIsStillANumber) {
  std::string text(100'000, '0');
  EXPECT_EQ(ParseNumber(text), 0);
  text += "7.0";
  EXPECT_EQ(ParseNumber(text), 7);
}

TEST(Numbers, AParsedIntegerIsRounded) {
  EXPECT_EQ(ParseInt16("2.5"), 2);
  EXPECT_EQ(ParseInt16(" -3.5 "), -4);
  EXPECT_EQ(ParseInt32("2147483647"), 2147483647);
  EXPECT_EQ(ParseInt32("1e3"), 1000);
}

TEST(Numbers, AnIntegerThatCannotBeParsedReportsTheReason) {
  for (const char* text : {"", "x", "1x"}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = ParseInt16(text); }), FailureKind::TypeMismatch) << text;
    EXPECT_EQ(FailureOf([&] { std::ignore = ParseInt32(text); }), FailureKind::TypeMismatch) << text;
  }
  for (const char* text : {"2147483648", "-2147483649", "1e400", "-1e400"}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = ParseInt16(text); }), FailureKind::Overflow) << text;
    EXPECT_EQ(FailureOf([&] { std::ignore = ParseInt32(text); }), FailureKind::Overflow) << text;
  }
  EXPECT_EQ(FailureOf([] { std::ignore = ParseInt16("32768"); }), FailureKind::Overflow);
}

TEST(Numbers, MulDivRoundedConvertsPointsToPixels) {
  struct Case {
    std::int32_t a, b, c, result;
  };
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  const Case cases[] = {{36, 96, 72, 48},      {8, 96, 72, 11},  // 10.67
                        {1, 1, 2, 0},                            // ties round to the even number
                        {3, 1, 2, 2},          {5, 1, 2, 2},
                        {-1, 1, 2, 0},         {-3, 1, 2, -2},
                        {5, -1, 2, -2},        {7, 1, -2, -4},
                        {-36, 96, 72, -48},    {0, 96, 72, 0},
                        {36, 96, 0, -1},  // no denominator
                        {0, 0, 0, -1},         {kMost, kMost, kMost, kMost},
                        {kMost, -1, 1, -kMost}};
  for (const auto& [a, b, c, result] : cases)
    EXPECT_EQ(MulDivRounded(a, b, c), result) << a << " * " << b << " / " << c;
}

TEST(Numbers, MulDivRoundedBeyondTheRangeIsAnOverflow) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  for (const auto& [a, b, c] : {std::tuple{kLeast, kLeast, 1}, {kLeast, -1, 1}, {kLeast, 1, -1}, {70000, 70000, 2}}) {
    EXPECT_EQ(FailureOf([a = a, b = b, c = c] { std::ignore = MulDivRounded(a, b, c); }), FailureKind::Overflow)
        << a << " * " << b << " / " << c;
  }
}

}  // namespace
}  // namespace vantorium::env
