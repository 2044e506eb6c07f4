// Warnings before a run begins.
#include "tests/app/ServerPlace.h"

#include <filesystem>

#include <fmt/format.h>

namespace vantorium::batch {
namespace {

const char kDeadLink[] =
    "Warning: Image 1, \"a#1.jpg\": Links to \"a#1.jpg.htm\" would not work: in a link, what follows \"#\" is a place "
    "in "
    "a page.\n";
const char kNotStarted[] = "Not Started: With --strict, a run that has warnings does not start.\n";

class Warnings : public testing::Test {
 protected:
  ProcessResult Create(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {"create", "a.gpj", "out/index.htm"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return place.Run(arguments);
  }

  Workplace place;
};

TEST_F(Warnings, ArePrintedAndTheGalleryIsCreated) {
  place.Project("a.gpj", {"a#1.jpg"});
  for (const std::vector<std::string>& more : {std::vector<std::string>{}, {"--quiet"}}) {
    const ProcessResult result = Create(more);
    EXPECT_TRUE(Succeeded(result));
    EXPECT_EQ(result.err, kDeadLink) << "warnings are messages, not progress";
    EXPECT_TRUE(std::filesystem::exists(place.Path("out/a#1.jpg.htm")));
  }
}

TEST_F(Warnings, WithStrictAllArePrintedAndNothingIsCreated) {
  place.Project("a.gpj", {"a#1.jpg", "b.jpg"});
  place.Replace("a.gpj", "<THUMBNAILPAGE ", "<THUMBNAILPAGE BACKGROUND=\"C:/gone.gif\" ");
  const ProcessResult result = Create({"--strict"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, fmt::format("Warning: The file \"{}\" cannot be read.\n{}{}",
                                    place.Path("home/gone.gif").string(), kDeadLink, kNotStarted));
  EXPECT_FALSE(std::filesystem::exists(place.Path("out")));
}

TEST_F(Warnings, StrictChangesNothingIfThereAreNoWarnings) {
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  const ProcessResult result = Create({"--strict"});
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "");
  EXPECT_TRUE(std::filesystem::exists(place.Path("out/a.jpg.htm")));
}

TEST_F(Warnings, AMissingFileIsReportedBeforeTheRunFails) {
  place.Project("a.gpj", {"a.jpg"});
  place.Replace("a.gpj", "<THUMBNAILPAGE ", "<THUMBNAILPAGE BACKGROUND=\"C:/gone.gif\" ");
  const ProcessResult result = Create();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err,
            fmt::format("Warning: The file \"{0}\" cannot be read.\nFile Error: Unable to copy the File \"{0}\".\n",
                        place.Path("home/gone.gif").string()));
}

TEST_F(Warnings, APhotographThatTheRunWouldReplaceIsReportedOnlyForThatFolder) {
  place.Project("a.gpj", {"out/Images/own.jpg"});
  place.Replace("a.gpj", "NAME=\"own.jpg\"", "NAME=\"own\"");
  EXPECT_EQ(Create({"--strict"}).err,
            fmt::format("Warning: Image 1, \"own\": The gallery would replace \"{}\", which it is made from.\n{}",
                        place.Path("out/Images/own.jpg").string(), kNotStarted));
  EXPECT_TRUE(Succeeded(place.Run({"create", "a.gpj", "other/index.htm", "--strict"})));
}

TEST_F(Warnings, AreNotPrintedForAPreview) {
  place.Project("a.gpj", {"a#1.jpg"});
  const ProcessResult result = place.Run({"preview", "a.gpj"});
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "");
}

TEST_F(Warnings, StrictIsOnlyForRunsThatCreateAGallery) {
  place.Project("a.gpj", {"a.jpg"});
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"preview", "a.gpj", "--strict"}, {"show", "a.gpj", "--strict"}}) {
    EXPECT_TRUE(EndedWith(2, place.Run(arguments)));
  }
}

using WarningsOfPublish = ServerPlace;

TEST_F(WarningsOfPublish, ArePrintedAndTheGalleryIsSent) {
  place.Project("a.gpj", {"a#1.jpg"});
  const ProcessResult result = Publish("web/index.htm");
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, kDeadLink);
  EXPECT_TRUE(std::filesystem::exists(OnServer("web/a#1.jpg.htm")));
}

TEST_F(WarningsOfPublish, WithStrictNothingIsSentToTheServer) {
  place.Project("a.gpj", {"a#1.jpg"});
  const ProcessResult result = Publish("web/index.htm", {"--strict"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, fmt::format("{}{}", kDeadLink, kNotStarted));
  EXPECT_EQ(ListingOf(server.Root()), "");
  EXPECT_FALSE(std::filesystem::exists(place.Path("program/ftplog.txt")));
}

}  // namespace
}  // namespace vantorium::batch
