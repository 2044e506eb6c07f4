#include "tests/app/Workplace.h"

#include <csignal>
#include <regex>

namespace vantorium {
namespace {

const char kErase[] = "\r\x1b[K";

std::size_t CountOf(const std::string& text, const std::string& expression) {
  const std::regex wanted(expression);
  return static_cast<std::size_t>(std::distance(std::sregex_iterator(text.begin(), text.end(), wanted), {}));
}

StartOptions OnTerminal(const Workplace& place, const std::vector<std::string>& arguments) {
  StartOptions options = place.Options(arguments);
  options.standardError = StandardError::Terminal;
  return options;
}

TEST(Terminal, WithoutATerminalThereIsNoProgress) {
  const Workplace place;
  place.LargeProject("a.gpj", 20);
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out + result.err, "");
}

TEST(Terminal, VerbosePrintsEachStatusTextOnALine) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm", "--verbose"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "Reading Project File \"" + place.Text("a.gpj") +
                            "\"...\n"
                            "Please wait while the Gallery is being created...\n"
                            "Collecting Image Information...\n"
                            "Collecting Image Information (complete)...\n"
                            "Creating Directories...\n"
                            "Copying File \"a.jpg\"...\n"
                            "Copying File \"b.jpg\"...\n"
                            "Creating Thumbnail for File \"a.jpg\"...\n"
                            "Creating Thumbnail for File \"b.jpg\"...\n"
                            "Copying Page Link Image Files...\n"
                            "Creating Gallery Index File...\n"
                            "Creating Thumbnail Page File \"thumbpage_1.htm\"...\n"
                            "Creating Image Wrapper File for \"a.jpg\"...\n"
                            "Creating Image Wrapper File for \"b.jpg\"...\n");
}

TEST(Terminal, VerboseTellsOfSaving) {
  const Workplace place;
  place.Photograph("a.jpg");
  const ProcessResult result = place.Run({"new", "a.gpj", "a.jpg", "--verbose"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "Writing Project File \"" + place.Text("a.gpj") + "\"...\n");
}

TEST(Terminal, VerboseTextsStandInTheSameOrderForEveryNumberOfJobs) {
  const Workplace place;
  place.LargeProject("a.gpj", 30);
  const ProcessResult one = place.Run({"create", "a.gpj", "out/index.htm", "--verbose", "--jobs", "1"});
  const ProcessResult four = place.Run({"create", "a.gpj", "out/index.htm", "--verbose", "--jobs", "4"});
  EXPECT_EQ(one.err, four.err);
}

TEST(Terminal, QuietPrintsNothingOnATerminalEither) {
  const Workplace place;
  place.LargeProject("a.gpj", 20);
  const ProcessResult result =
      ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm", "--quiet"})).Finish();
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out + result.err, "");
}

TEST(Terminal, QuietKeepsMessages) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Write("a.jpg", "no JPEG");
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm", "--quiet"});
  EXPECT_EQ(result.err, "File Error: Unable to copy the File \"" + place.SourceText("a.jpg") + "\".\n");
}

TEST(Terminal, VerboseOnATerminalIsLinesAndNoBar) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const ProcessResult result =
      ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm", "--verbose"})).Finish();
  ASSERT_TRUE(Succeeded(result));
  EXPECT_NE(result.err.find("Copying File \"a.jpg\"...\r\n"), std::string::npos) << result.err;
  EXPECT_EQ(result.err.find('\x1b'), std::string::npos) << result.err;
}

TEST(Terminal, TheBarShowsShareCountAndText) {
  const Workplace place;
  place.SlowProject("a.gpj");
  ChildProcess program(OnTerminal(place, {"create", "a.gpj", "out/index.htm"}));
  program.WaitForError(R"(\r\[=* +\] +[0-9]+% [1-9][0-9]*/1500.*  Copying File "many.jpg)");
}

TEST(Terminal, TheBarShowsTheTimeLeftOnceItCanBeReckoned) {
  const Workplace place;
  place.SlowProject("a.gpj");
  ChildProcess program(OnTerminal(place, {"create", "a.gpj", "out/index.htm"}));
  program.WaitForError(R"( [1-9][0-9]*/1500, [0-9]+:[0-9][0-9] left  Copying File)");
}

TEST(Terminal, TheBarIsErasedAtTheEnd) {
  const Workplace place;
  place.LargeProject("a.gpj", 20);
  const ProcessResult result = ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm"})).Finish();
  ASSERT_TRUE(Succeeded(result));
  EXPECT_TRUE(result.err.ends_with(kErase)) << result.err;
  EXPECT_EQ(result.err.find('\n'), std::string::npos) << result.err;
}

TEST(Terminal, TheBarIsErasedInFrontOfAMessage) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Write("a.jpg", "no JPEG");
  const ProcessResult result = ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm"})).Finish();
  ASSERT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find(kErase + std::string("File Error: Unable to copy the File")), std::string::npos)
      << result.err;
}

TEST(Terminal, OnANarrowTerminalTheCountStaysWholeAndTheLineIsCut) {
  const Workplace place;
  place.SlowProject("a.gpj");
  StartOptions options = OnTerminal(place, {"create", "a.gpj", "out/index.htm"});
  options.columns = 40;
  ChildProcess program(options);
  program.WaitForError(R"(% [1-9][0-9]*/1500.*Copying)");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_GT(CountOf(result.err, R"(\r[ 0-9][^\r\x1b]{38}\x1b)"), 0U) << result.err;
  EXPECT_EQ(CountOf(result.err, R"(\r[ 0-9][^\r\x1b]{39})"), 0U) << result.err;
}

}  // namespace
}  // namespace vantorium
