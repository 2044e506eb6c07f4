#include "image/jpeg/HuffmanTables.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace vantorium::image::jpeg {
namespace {

// A table with the given number of codes of each length from 1 to 16 bits.
JHUFF_TBL TableOf(const std::array<int, 16>& counts, const std::vector<int>& symbols) {
  JHUFF_TBL table = {};
  for (std::size_t i = 0; i < 16; ++i) table.bits[i + 1] = static_cast<UINT8>(counts[i]);
  std::transform(symbols.begin(), symbols.end(), table.huffval, [](int each) { return static_cast<UINT8>(each); });
  return table;
}

// The codes: 0 ends the block, 10 is a value of one bit, 110 two zeros and a value of three bits, 1110 sixteen zeros,
// 111100000000000 a value of ten bits.
JHUFF_TBL SomeTable() {
  return TableOf({1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0}, {0x00, 0x01, 0x23, 0xF0, 0x0A});
}

// The bytes of bits given as text, padded for reads beyond the end.
std::vector<std::uint8_t> BytesOf(const std::string& bits) {
  std::vector<std::uint8_t> bytes(bits.size() / 8 + 64);
  for (std::size_t i = 0; i < bits.size(); ++i) {
    if (bits[i] == '1') bytes[i / 8] = static_cast<std::uint8_t>(bytes[i / 8] | 0x80U >> i % 8);
  }
  return bytes;
}

Symbol FirstSymbol(const JHUFF_TBL& table, const std::string& bits) {
  HuffmanCode code;
  EXPECT_TRUE(code.Set(table));
  const auto bytes = BytesOf(bits);
  BitWindow window(bytes.data());
  window.Refill();
  return ValueTable(code).Read(window);
}

// Skips a block. Returns the `k` at its end and the number of bits consumed.
std::pair<unsigned, std::ptrdiff_t> Skipped(const JHUFF_TBL& table, const std::string& bits) {
  HuffmanCode code;
  EXPECT_TRUE(code.Set(table));
  const auto bytes = BytesOf(bits);
  BitWindow window(bytes.data());
  const unsigned k = SkipTable(code).Skip(window);
  const std::uint8_t* end = bytes.data() + bytes.size();
  return {k, (end - bytes.data()) * 8 - window.BitsBefore(end)};
}

std::string Times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

TEST(HuffmanTables, ASymbolIsDecodedWithItsValue) {
  const auto read = [](const std::string& bits) {
    const Symbol symbol = FirstSymbol(SomeTable(), bits);
    return std::array{static_cast<int>(symbol.length), static_cast<int>(symbol.move), symbol.value};
  };
  EXPECT_EQ(read("0111"), (std::array{1, static_cast<int>(kEndOfBlock), 0}));
  EXPECT_EQ(read("101"), (std::array{3, 1, 1}));
  EXPECT_EQ(read("100"), (std::array{3, 1, -1}));
  EXPECT_EQ(read("110101"), (std::array{6, 3, 5}));
  EXPECT_EQ(read("110000"), (std::array{6, 3, -7}));
  EXPECT_EQ(read("1110"), (std::array{4, 16, 0}));
  EXPECT_EQ(read("1111000000000001000000001"), (std::array{25, 1, 513}));
  EXPECT_EQ(read("1111000000000000000000000"), (std::array{25, 1, -1023}));
  EXPECT_EQ(read("1111111"), (std::array{0, static_cast<int>(kBadCode), 0}));
}

TEST(HuffmanTables, TheEndOfABlockTellsHowManyMoreBlocksEnd) {
  const auto read = [](const std::string& bits) {
    const Symbol symbol = FirstSymbol(TableOf({1, 1, 1, 1}, {0x00, 0x10, 0x30, 0xE0}), bits);
    EXPECT_EQ(symbol.move, kEndOfBlock);
    return std::pair(symbol.length, symbol.value);
  };
  EXPECT_EQ(read("0111"), std::pair(1U, 0));
  EXPECT_EQ(read("100"), std::pair(3U, 1));
  EXPECT_EQ(read("101"), std::pair(3U, 2));
  EXPECT_EQ(read("110101"), std::pair(6U, 7 + 5));
  EXPECT_EQ(read("1110" + Times(14, "1")), std::pair(18U, 32766));
}

TEST(HuffmanTables, SymbolsAreReadUntilTheReceiverHasEnoughOrACodeIsBad) {
  HuffmanCode code;
  ASSERT_TRUE(code.Set(SomeTable()));
  const auto bytes = BytesOf(Times(9, "101") + "110101" + "1111000000000001000000001" + "100" + Times(99, "1"));
  BitWindow window(bytes.data());
  std::vector<int> values;
  ValueTable(code).ReadWhile(window, [&](const Symbol& symbol) {
    values.push_back(symbol.value);
    return symbol.move != kBadCode;
  });
  EXPECT_EQ(values, (std::vector<int>{1, 1, 1, 1, 1, 1, 1, 1, 1, 5, 513, -1, 0}));
}

TEST(HuffmanTables, ABlockIsSkippedToItsEnd) {
  EXPECT_EQ(Skipped(SomeTable(), "0111"), std::pair(kEndOfBlock, std::ptrdiff_t{1}));
  EXPECT_EQ(Skipped(SomeTable(), Times(5, "101") + "0"), std::pair(kEndOfBlock + 5, std::ptrdiff_t{16}));
  EXPECT_EQ(Skipped(SomeTable(),
                    "1111000000000000000000000"
                    "0"),
            std::pair(kEndOfBlock + 1, std::ptrdiff_t{26}));
}

TEST(HuffmanTables, ARunWithoutAValueEndsTheBlockUnlessItIsSixteenZeros) {
  for (const int symbol : {0x00, 0x10, 0x70, 0xE0}) {
    const JHUFF_TBL table = TableOf({1, 1}, {symbol, 0xF0});
    EXPECT_EQ(Skipped(table, "011"), std::pair(kEndOfBlock, std::ptrdiff_t{1})) << symbol;
    EXPECT_EQ(Skipped(table, "10011"), std::pair(kEndOfBlock + 16, std::ptrdiff_t{3})) << symbol;
  }
}

TEST(HuffmanTables, ABlockWithoutEndOfBlockStopsAtItsLastCoefficient) {
  for (const char* more : {"0", "101", "110000", "1110", "1111111"}) {
    EXPECT_EQ(Skipped(SomeTable(), Times(63, "101") + Times(9, more)), std::pair(kLastPlace, std::ptrdiff_t{189}));
    EXPECT_EQ(Skipped(SomeTable(), Times(21, "110101") + Times(9, more)), std::pair(kLastPlace, std::ptrdiff_t{126}));
  }
}

TEST(HuffmanTables, ABlockWithTooManyCoefficientsOrABadCodeFails) {
  EXPECT_FALSE(EndsWell(Skipped(SomeTable(), Times(4, "1110")).first));
  EXPECT_FALSE(EndsWell(Skipped(SomeTable(), Times(62, "101") + "110000").first));
  EXPECT_FALSE(EndsWell(Skipped(SomeTable(), "1111111").first));
  EXPECT_FALSE(EndsWell(Skipped(SomeTable(), Times(62, "101") + "1111111").first));
}

TEST(HuffmanTables, CodesThatDoNotFitAreRefused) {
  HuffmanCode code;
  EXPECT_TRUE(code.Set(TableOf({1, 1, 1}, {1, 2, 3})));
  EXPECT_FALSE(code.Set(TableOf({2}, {1, 2})));
  EXPECT_FALSE(code.Set(TableOf({1, 2}, {1, 2, 3})));
  EXPECT_FALSE(code.Set(TableOf({0, 5}, {1, 2, 3, 4, 5})));
}

TEST(HuffmanTables, ATableReportsItsLargestSymbol) {
  HuffmanCode code;
  ASSERT_TRUE(code.Set(TableOf({1, 1}, {3, 15})));
  EXPECT_FALSE(code.HasSymbolsAbove(15));
  EXPECT_TRUE(code.HasSymbolsAbove(14));
}

TEST(HuffmanTables, ATableReportsItsLongestValueAndWhetherItEndsSeveralBlocks) {
  HuffmanCode code;
  ASSERT_TRUE(code.Set(TableOf({1, 1, 1}, {0xF0, 0x75, 0x00})));
  EXPECT_FALSE(code.HasValuesAbove(5));
  EXPECT_TRUE(code.HasValuesAbove(4));
  EXPECT_FALSE(code.EndsBlocks());
  ASSERT_TRUE(code.Set(TableOf({1, 1}, {0x01, 0x10})));
  EXPECT_TRUE(code.EndsBlocks());
}

}  // namespace
}  // namespace vantorium::image::jpeg
