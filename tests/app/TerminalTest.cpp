#include "tests/app/Workplace.h"

#include <csignal>
#include <regex>

namespace vantorium::batch {
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

TEST(Terminal, VerbosePrintsEachStatusTextOnItsLine) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm", "--verbose"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "Reading Project File \"" + place.Path("a.gpj").string() +
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

TEST(Terminal, VerboseReportsSaving) {
  const Workplace place;
  place.Photograph("a.jpg");
  const ProcessResult result = place.Run({"new", "a.gpj", "a.jpg", "--verbose"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "Writing Project File \"" + place.Path("a.gpj").string() + "\"...\n");
}

TEST(Terminal, TheOrderOfVerboseTextsDoesNotDependOnJobs) {
  const Workplace place;
  place.LargeProject("a.gpj", 30);
  const ProcessResult one = place.Run({"create", "a.gpj", "out/index.htm", "--verbose", "--jobs", "1"});
  const ProcessResult four = place.Run({"create", "a.gpj", "out/index.htm", "--verbose", "--jobs", "4"});
  EXPECT_EQ(one.err, four.err);
}

TEST(Terminal, QuietPrintsNoProgressOnATerminal) {
  const Workplace place;
  place.LargeProject("a.gpj", 20);
  const ProcessResult result =
      ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm", "--quiet"})).Finish();
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out + result.err, "");
}

TEST(Terminal, QuietStillPrintsMessages) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Write("a.jpg", "no JPEG");
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm", "--quiet"});
  EXPECT_EQ(result.err, "File Error: Unable to copy the File \"" + place.Path("a.jpg").string() + "\".\n");
}

TEST(Terminal, VerboseOnATerminalPrintsLinesInsteadOfABar) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const ProcessResult result =
      ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm", "--verbose"})).Finish();
  ASSERT_TRUE(Succeeded(result));
  EXPECT_NE(result.err.find("Copying File \"a.jpg\"...\r\n"), std::string::npos) << result.err;
  EXPECT_EQ(result.err.find('\x1b'), std::string::npos) << result.err;
}

TEST(Terminal, TheBarShowsPercentageCountAndText) {
  const Workplace place;
  place.SlowProject("a.gpj");
  ChildProcess program(OnTerminal(place, {"create", "a.gpj", "out/index.htm"}));
  program.WaitForError(R"(\r\[=* +\] +[0-9]+% [1-9][0-9]*/1500.*  Copying File "many.jpg)");
}

TEST(Terminal, TheBarShowsTheTimeLeftOnceItCanBeEstimated) {
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

TEST(Terminal, TheBarIsErasedBeforeAMessage) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Write("a.jpg", "no JPEG");
  const ProcessResult result = ChildProcess(OnTerminal(place, {"create", "a.gpj", "out/index.htm"})).Finish();
  ASSERT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find(kErase + std::string("File Error: Unable to copy the File")), std::string::npos)
      << result.err;
}

TEST(Terminal, OnANarrowTerminalTheLineIsTruncatedAfterTheCount) {
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

TEST(Terminal, ControlCharactersOfNamesAreEscaped) {
  const Workplace place;
  const std::string name =
      "a\x7F\xC2\x9B"
      "2J.jpg";
  place.Project("a.gpj", {name});
  const std::string harmless = "a\\u007F\\u009B2J.jpg";
  const ProcessResult run = place.Run({"create", "a.gpj", "out/index.htm", "--verbose"});
  EXPECT_NE(run.err.find("Copying File \"" + harmless + "\"...\n"), std::string::npos) << run.err;
  for (const char* argument : {"\x1B]0;x\a", "a\r\x9B"}) {
    const ProcessResult result = place.Run({"show", argument, "--quiet"});
    EXPECT_EQ(result.err.find_first_of("\x1B\a\r\x9B"), std::string::npos) << testing::PrintToString(result.err);
    EXPECT_NE(result.err.find("\\u00"), std::string::npos) << result.err;
  }
  EXPECT_NE(place.Run({"\x1B[2J"}).err.find("\\u001B[2J"), std::string::npos);
}

TEST(Terminal, LettersOfAllScriptsAreUnchanged) {
  const Workplace place;
  const std::string name = "Übersicht 写真 🌊.jpg";
  place.Project("a.gpj", {name});
  const ProcessResult result = place.Run({"create", "a.gpj", "out/index.htm", "--verbose"});
  EXPECT_NE(result.err.find("Copying File \"" + name + "\"...\n"), std::string::npos) << result.err;
}

TEST(Terminal, LostErrorOutputDoesNotChangeTheResult) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  ASSERT_TRUE(Succeeded(place.Run({"create", "a.gpj", "whole/index.htm"})));
  for (const std::vector<int>& closed : {std::vector<int>{2}, {1, 2}, {0, 1, 2}}) {
    std::filesystem::remove_all(place.Path("out"));
    StartOptions options = place.Options({"create", "a.gpj", "out/index.htm", "--verbose"});
    options.closedStreams = closed;
    EXPECT_TRUE(Succeeded(ChildProcess(options).Finish())) << closed.size();
    EXPECT_TRUE(SameFiles(place.Path("out"), place.Path("whole"))) << closed.size();
  }
}

TEST(Terminal, ClosingItCancelsTheRun) {
  const Workplace place;
  place.SlowProject("a.gpj");
  ChildProcess program(OnTerminal(place, {"create", "a.gpj", "out/index.htm"}));
  program.WaitForError("Copying File");
  program.HangUp();
  EXPECT_TRUE(EndedWith(130, program.Finish()));
  EXPECT_EQ(ListingOf(place.Path("out")).find(".vantorium-"), std::string::npos);
}

TEST(Terminal, ARunUnderNohupContinuesWhenItIsClosed) {
  const Workplace place;
  place.LargeProject("a.gpj", 60);
  place.Replace("a.gpj", "HEIGHT=\"300\"", "HEIGHT=\"900\"");
  StartOptions options = OnTerminal(place, {"create", "a.gpj", "out/index.htm", "--verbose"});
  options.outlivesTerminal = true;
  ChildProcess program(options);
  program.WaitForError("Copying File");
  program.HangUp();
  EXPECT_TRUE(EndedWith(0, program.Finish()));
  EXPECT_TRUE(std::filesystem::exists(place.Path("out/many.jpg_59.htm")));
}

TEST(Terminal, AResultThatCannotBeWrittenIsAFailure) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  for (const std::vector<std::string>& command : {std::vector<std::string>{"show", "a.gpj"},
                                                  {"preview", "a.gpj"},
                                                  {"--help"},
                                                  {"create", "--help"},
                                                  {"--version"}}) {
    StartOptions full = place.Options(command);
    full.standardOutput = "/dev/full";
    const ProcessResult result = ChildProcess(full).Finish();
    EXPECT_TRUE(EndedWith(1, result)) << command[0];
    EXPECT_EQ(result.err, "vantorium-batch: The output cannot be written: No space left on device\n") << command[0];
    StartOptions closed = place.Options(command);
    closed.closedStreams = {1};
    EXPECT_TRUE(EndedWith(1, ChildProcess(closed).Finish())) << command[0];
  }
}

}  // namespace
}  // namespace vantorium::batch
