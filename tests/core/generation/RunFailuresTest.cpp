#include "core/generation/GenerateGallery.h"
#include "tests/core/generation/RunFixture.h"
#include "tests/core/generation/ThreadLimit.h"
#include "tests/fakes/FaultInjection.h"

#include <system_error>

namespace vantorium::generation {
namespace {

using RunFailuresTest = RunFixture;

TEST_F(RunFailuresTest, AnyExceptionEndsTheRunAsAFailureWithAMessageBox) {
  AddPhotograph("a");
  const std::string start = "An Error has occurred during Creation of this Gallery:\r\r";
  const std::pair<std::function<void()>, std::string> cases[] = {
      {[] { throw std::runtime_error("the words of a library"); }, "the words of a library\r\rError #51"},
      {[] { throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again), "no thread"); },
       "no thread: Resource temporarily unavailable\r\rError #51"},
      {[] { throw std::bad_alloc(); }, "Out of memory\r\rError #7"},
      {[] { throw 5; }, "Internal error\r\rError #51"}};
  for (const auto& [fail, text] : cases) {
    loop.onTurn = [&, &fail = fail, failed = false](int) mutable {
      if (!failed && !host.statuses.empty() && host.statuses.back().starts_with("Copying File")) {
        failed = true;
        fail();
      }
    };
    host.statuses.clear();
    boxes.boxes.clear();
    EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure) << text;
    ASSERT_EQ(boxes.boxes.size(), 1U) << text;
    EXPECT_EQ(boxes.boxes[0].title, "Failure");
    EXPECT_EQ(boxes.boxes[0].text, start + text);
    EXPECT_EQ(journal.back(), "progress unloaded");
  }
}

TEST_F(RunFailuresTest, WithoutThreadsARunMakesItsPicturesItself) {
  for (const char* name : {"a", "b", "c"}) AddPhotograph(name);
  Run(OrderToCreate());
  std::filesystem::rename(folder.Path() / "out", folder.Path() / "first");
  const fakes::ThreadLimit limit(0);
  environment.jobs = 4;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(FilesIn("out"), FilesIn("first"));
  for (const auto& name : FilesIn("first")) EXPECT_EQ(folder.Read("out/" + name), folder.Read("first/" + name)) << name;
}

TEST_F(RunFailuresTest, ASizeThatJPEGCannotStoreIsRefusedBeforeMemoryIsAllocated) {
  AddPhotograph("a", 40, 40);
  project.settings.checkThumbnailsImageKeepAspectRatio = 0;
  const std::string refusal = "Failed to save to JPG Maximum supported image dimension is 65500 pixels";
  for (const core::Flag filter : {core::Flag{0}, core::Flag{1}}) {
    for (const char* width : {"65501", "1000000000", "2147483647"}) {
      boxes.boxes.clear();
      project.settings.ThumbnailFilters.checkGrayscale = filter;
      project.settings.textThumbnailsImageWidth = width;
      const fakes::MemoryLimit limit(std::uint64_t{512} << 20);
      EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure) << width;
      ASSERT_EQ(boxes.boxes.size(), 1U) << width;
      EXPECT_NE(boxes.boxes[0].text.find(refusal + "\r\rError #26001"), std::string::npos) << boxes.boxes[0].text;
    }
  }
}

TEST_F(RunFailuresTest, ASourceWhosePictureWouldHaveNoWidthIsNamed) {
  AddPhotograph("a", 40, 40);
  AddPhotograph("b", 1, 1000);
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  const std::string refusal = project.images.Entry(2).SourcePath + ": A picture of 0 x 300 pixels cannot be made.";
  EXPECT_NE(boxes.boxes[0].text.find("\r\r" + refusal + "\r\rError #5"), std::string::npos) << boxes.boxes[0].text;
}

}  // namespace
}  // namespace vantorium::generation
