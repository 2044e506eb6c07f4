#include "core/generation/changes/RunRecord.h"
#include "env/Digest.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

const RecordSubject kSubject = {"folder\n/home/me/gallery", "vantorium 3.0.1 jpeg 1"};

MadeFiles SomeFiles() {
  const std::string digest(32, 'a');
  return {{"Images/a.jpg", {100, SourceStamp{1, 2, 100, -4, 5}, digest, "", digest}},
          {"a.htm", {7, SourceStamp{18446744073709551615U, 2, 7, 4, 5}, "", digest, "shared"}},
          {"with blanks, 100% and a\r\nbreak.htm", {0, std::nullopt, digest, digest, digest}},
          {"%0A", {3, std::nullopt, "", ""}},
          {"\xFFno text", {3, std::nullopt, "", ""}}};
}

TEST(RunRecordTest, ARecordIsReadBackAsItWasWritten) {
  EXPECT_EQ(ReadRunRecord(RunRecordText(SomeFiles(), kSubject), kSubject), SomeFiles());
  EXPECT_EQ(ReadRunRecord(RunRecordText({}, kSubject), kSubject), MadeFiles());
}

TEST(RunRecordTest, HasOneLineForEachFile) {
  const std::string lines =
      "vantorium record 2\nprogram vantorium 3.0.1 jpeg 1\ntarget folder%0A/home/me/gallery\n"
      "7 1:2:7:4:5 - abc def a.htm\n";
  const MadeFiles files = {{"a.htm", {7, SourceStamp{1, 2, 7, 4, 5}, "", "abc", "def"}}};
  EXPECT_EQ(RunRecordText(files, kSubject), lines + "end " + env::DigestOf(lines) + "\n");
}

TEST(RunRecordTest, ADamagedByteAnywhereInvalidatesTheRecord) {
  const std::string whole = RunRecordText(SomeFiles(), kSubject);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 1);
    EXPECT_TRUE(ReadRunRecord(damaged, kSubject).empty()) << "byte " << at;
  }
}

TEST(RunRecordTest, APartOfARecordIsInvalid) {
  const std::string whole = RunRecordText(SomeFiles(), kSubject);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_TRUE(ReadRunRecord(whole.substr(0, size), kSubject).empty()) << size << " bytes";
    if (size == 0) continue;
    EXPECT_TRUE(ReadRunRecord(whole.substr(size), kSubject).empty()) << "from byte " << size;
  }
  EXPECT_TRUE(ReadRunRecord(whole + "\n", kSubject).empty());
}

/// Lines followed by their correct digest.
std::string Ended(const std::string& lines) {
  return lines + "end " + env::DigestOf(lines) + "\n";
}

TEST(RunRecordTest, OtherTextsAreInvalid) {
  const std::string heading = "vantorium record 2\nprogram vantorium 3.0.1 jpeg 1\ntarget folder%0A/home/me/gallery\n";
  ASSERT_EQ(ReadRunRecord(Ended(heading + "7 - - - - a.htm\n"), kSubject).size(), 1U);
  for (const std::string& lines :
       {std::string(), std::string("\n"), std::string("[DRIVES]\nC=/home\n"),
        "vantorium record 1\nprogram vantorium 3.0.1 jpeg 1\ntarget folder%0A/home/me/gallery\n7 - - - - a.htm\n" +
            heading,
        std::string("vantorium record 1\nprogram vantorium 3.0.1 jpeg 1\ntarget folder%0A/home/me/gallery\n"
                    "7 - - - - a.htm\n"),
        heading + "\n", heading + "7\n", heading + "7 - - - - \n", heading + "7 - - - -\n",
        heading + "x - - - - a.htm\n", heading + "-7 - - - - a.htm\n", heading + "99999999999999999999 - - - - a.htm\n",
        heading + "7 1:2:3 - - - a.htm\n", heading + "7 1:2:3:4:5:6 - - - a.htm\n",
        heading + "7 1:2:3:4:x - - - a.htm\n", heading + "7 : - - - a.htm\n"}) {
    EXPECT_TRUE(ReadRunRecord(Ended(lines), kSubject).empty()) << lines;
  }
}

TEST(RunRecordTest, ARecordOfAnotherTargetIsInvalid) {
  const std::string text = RunRecordText(SomeFiles(), {"folder\n/elsewhere", kSubject.program});
  EXPECT_TRUE(ReadRunRecord(text, kSubject).empty());
}

TEST(RunRecordTest, FromAnotherVersionOnlySizesAndStampsAreUsed) {
  const std::string text = RunRecordText(SomeFiles(), {kSubject.target, "vantorium 2.9\nbeta"});
  const MadeFiles read = ReadRunRecord(text, kSubject);
  ASSERT_EQ(read.size(), SomeFiles().size());
  for (const auto& [name, file] : read) {
    EXPECT_EQ(file.origin + file.bytes, "") << name;
    EXPECT_EQ(file.stamp, SomeFiles().at(name).stamp) << name;
  }
}

}  // namespace
}  // namespace vantorium::generation
