#include "env/RuntimeFailure.h"
#include "publish/FTPReply.h"
#include "tests/fakes/FailureOf.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

struct Case {
  const char* reply;
  bool isComplete;
  std::int16_t code;
  const char* text;
};

constexpr Case kCases[] = {
    {"220 Ready\r\n", true, 220, "Ready"},
    {"123-text\r\n123 end\r\n", true, 123, "text end"},
    {"220-one\r\ntwo\r\n220 three\r\n", true, 220, "one two three"},
    {"220-one\r\n two\r\n 42 files\r\n220 three\r\n", true, 220, "one  two  42 files three"},
    // First and last code are not compared: any code without a dash ends the reply.
    {"220-one\r\n530 no\r\n", true, 530, "one no"},
    {"220-one\r\n331-two\r\n230 in\r\n", true, 230, "one two in"},
    {"220-one\r\n2000 files\r\n220 end\r\n", true, 220, "one  files end"},
    {"200 \r\n", true, 200, ""},
    {"220-one\r\n220 \r\n", true, 220, "one "},
    {"200\tTab\r\n", true, 200, "Tab"},
    {"000 Nothing\r\n", true, 0, "Nothing"},
    // A second reply after the first becomes part of it.
    {"150 Go\r\n226 Done\r\n", true, 226, "Go Done"},
    {"220 Ready\r\n220-more", true, 220, "Ready"},
    {"", false, 0, ""},
    {"220 Ready", false, 0, ""},
    {"220 Ready\n", false, 0, ""},
    {"220 Ready\r", false, 0, ""},
    {"220-Ready\r\n", false, 220, "Ready"},
    {"Welcome\r\n", false, 0, "Welcome"},
    {"\r\n", false, 0, ""},
    {"12\r\n", false, 0, "12"},
    {"+12 x\r\n", false, 0, "+12 x"},
    {" 12 x\r\n", false, 0, " 12 x"},
    {"1.2 x\r\n", false, 0, "1.2 x"},
};

TEST(FTPReply, LinesAreJoinedByBlanksAndTheLastCodeCounts) {
  for (const Case& each : kCases) {
    FTPReply reply;
    reply.Take(each.reply);
    EXPECT_EQ(reply.IsComplete(), each.isComplete) << each.reply;
    EXPECT_EQ(reply.Code(), each.code) << each.reply;
    EXPECT_EQ(reply.Text(), each.text) << each.reply;
  }
}

TEST(FTPReply, MayBeSplitAtAnyByte) {
  const std::string whole = "123-text\r\n123 end\r\n";
  for (std::size_t at = 0; at < whole.size(); ++at) {
    FTPReply reply;
    reply.Take(whole.substr(0, at));
    EXPECT_FALSE(reply.IsComplete()) << "split at " << at;
    reply.Take(whole.substr(at));
    EXPECT_TRUE(reply.IsComplete()) << "split at " << at;
    EXPECT_EQ(reply.Code(), 123) << "split at " << at;
    EXPECT_EQ(reply.Text(), "text end") << "split at " << at;
  }
}

TEST(FTPReply, MayArriveByteByByte) {
  FTPReply reply;
  for (const char letter : std::string("220-a\r\r\nb\r\n220 c\r\n")) {
    EXPECT_FALSE(reply.IsComplete());
    reply.Take({&letter, 1});
  }
  EXPECT_TRUE(reply.IsComplete());
  EXPECT_EQ(reply.Text(), "a\r b c");
}

TEST(FTPReply, ALineOfThreeDigitsIsAnInvalidArgument) {
  for (const char* text : {"220\r\n", "220-a\r\n220\r\n", "000\r\n"}) {
    FTPReply reply;
    EXPECT_EQ(fakes::FailureOf([&] { reply.Take(text); }), env::FailureKind::InvalidArgument) << text;
  }
}

TEST(FTPReply, IsTooLongBeyondTheLimit) {
  FTPReply line;
  line.Take(std::string(FTPReply::kMostCharacters, 'x'));
  EXPECT_FALSE(line.IsTooLong());
  line.Take("x");
  EXPECT_TRUE(line.IsTooLong());

  FTPReply lines;
  for (std::size_t count = 0; count <= FTPReply::kMostCharacters; count += 8) lines.Take("220-xx\r\n");
  EXPECT_TRUE(lines.IsTooLong());
}

}  // namespace
}  // namespace vantorium::publish
