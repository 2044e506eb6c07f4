#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/SampleFakes.h"
#include "ui/model/dialogs/SampleDialog.h"

#include <optional>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

constexpr std::uint32_t kRed = 0x0000FF;
constexpr std::uint32_t kGreen = 0x00FF00;
constexpr std::uint32_t kBlue = 0xFF0000;

class SampleDialogs : public testing::Test {
 protected:
  /// The color of the source that a dialog opens with; "closed" if it does not open.
  std::string OpenedWith(const SampleSources& sources) {
    SampleDialog dialog(sources, harness.Ports(), box);
    if (!dialog.Open()) return "closed";
    box.PaintPicture(dialog.Source());
    return box.MiddleColor();
  }

  /// A dialog that was opened with that temporary folder; valid until the next call.
  SampleDialog& OpenedAt(const std::string& tempFolderLocation) {
    opened.emplace(SampleSources{harness.Jpeg("red.jpg", kRed), {}, tempFolderLocation}, harness.Ports(), box);
    EXPECT_TRUE(opened->Open());
    return *opened;
  }

  fakes::SampleHarness harness;
  fakes::RecordingSampleBox box;
  std::optional<SampleDialog> opened;
};

TEST_F(SampleDialogs, TheSelectedImageIsTheSample) {
  EXPECT_EQ(OpenedWith({harness.Jpeg("red.jpg", kRed), {harness.Jpeg("blue.jpg", kBlue)}, ""}), "256 0 0");
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(SampleDialogs, TheSampleIsCorrectedLikeThePhotographsOfTheGallery) {
  harness.folder.Write("lying.jpg", fakes::WithOrientation(fakes::MakeJpeg({.width = 40, .height = 30}), 6));
  const std::string lying = harness.paths.ToText(harness.folder.Path() / "lying.jpg");
  const auto widthOf = [&](image::Corrections corrections) {
    SampleDialog dialog({lying, {}, "", corrections}, harness.Ports(), box);
    return dialog.Open() ? dialog.Source().width() : 0;
  };
  EXPECT_EQ(widthOf({}), 40);
  EXPECT_EQ(widthOf({.upright = true}), 30);
}

TEST_F(SampleDialogs, AnUnloadableImageIsSilentlyReplacedByTheFirstLoadableDefault) {
  harness.folder.Write("text.jpg", "no picture at all");
  harness.folder.Write("empty.jpg", "");
  const std::string whole = harness.folder.Read(harness.paths.ToNative(harness.Jpeg("red.jpg", kRed))->filename());
  harness.folder.Write("cut.jpg", whole.substr(0, whole.size() / 2));
  const std::string green = harness.Jpeg("green.jpg", kGreen);
  const std::string blue = harness.Jpeg("blue.jpg", kBlue);
  const std::string folder = harness.paths.ToText(harness.folder.Path());
  for (const std::string& selected : {std::string(), harness.Missing(), folder + "\\text.jpg", folder + "\\empty.jpg",
                                      folder + "\\cut.jpg", folder, std::string("Q:\\no\\drive.jpg")}) {
    EXPECT_EQ(OpenedWith({selected, {green, blue}, ""}), "0 256 0") << selected;
    EXPECT_EQ(OpenedWith({selected, {harness.Missing(), blue}, ""}), "0 0 256") << selected;
  }
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(SampleDialogs, WithoutAnySampleTheDialogClosesWithAMessageBox) {
  SampleDialog dialog({"", {harness.Missing()}, ""}, harness.Ports(), box);
  EXPECT_FALSE(dialog.Open());
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Unable to load default Preview Image");
  EXPECT_EQ(harness.boxes.boxes[0].text, "Vantorium was unable to load the default Preview Image.");
  EXPECT_TRUE(dialog.Cancelled());
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(box.calls, "clear hide ");
}

TEST_F(SampleDialogs, TheDialogIsDrawnBeforeTheSampleIsLoaded) {
  std::string atTurn;
  harness.loop.onTurn = [&](int) { atTurn = box.calls; };
  EXPECT_EQ(OpenedWith({harness.Jpeg("red.jpg", kRed), {}, ""}), "256 0 0");
  EXPECT_EQ(atTurn, "clear ");
  EXPECT_EQ(harness.loop.turns, 1);
}

TEST_F(SampleDialogs, ADialogThatIsClosedWhileItIsDrawnStaysClosed) {
  SampleDialog dialog({harness.Jpeg("red.jpg", kRed), {}, ""}, harness.Ports(), box);
  harness.loop.onTurn = [&](int) { dialog.Close(true); };
  EXPECT_FALSE(dialog.Open());
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_TRUE(dialog.Cancelled());
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(SampleDialogs, ADialogIsCancelledUntilItIsClosedOtherwise) {
  SampleDialog dialog({harness.Jpeg("red.jpg", kRed), {}, ""}, harness.Ports(), box);
  EXPECT_TRUE(dialog.Cancelled());
  ASSERT_TRUE(dialog.Open());
  EXPECT_TRUE(dialog.Cancelled());
  dialog.Close(false);
  EXPECT_FALSE(dialog.Cancelled());
  dialog.Close(true);
  EXPECT_FALSE(dialog.Cancelled()) << "the first way of closing counts";
}

TEST_F(SampleDialogs, APictureIsCompressedToAFileInTheTemporaryFolder) {
  const SampleDialog& dialog = OpenedAt(harness.TempFolderLocation());
  EXPECT_EQ(dialog.TempFile(), harness.TempFolderLocation() + "\\VANTORIUM_TEMP\\preview_temp.jpg");
  const image::cDIBSection picture = fakes::PlainPicture(33, 21, kRed, 3);
  image::cDIBSection coarse;
  ASSERT_TRUE(dialog.Compress(picture, 1, coarse));
  image::cDIBSection expected;
  ASSERT_TRUE(image::LoadJPEGImage(expected, harness.TempFile()));
  EXPECT_EQ(fakes::BytesOf(coarse), fakes::BytesOf(expected));
  image::cDIBSection fine;
  ASSERT_TRUE(dialog.Compress(picture, 100, fine));
  EXPECT_NE(fakes::BytesOf(coarse), fakes::BytesOf(fine));
}

TEST_F(SampleDialogs, ATemporaryFolderThatIsALinkIsNotWrittenTo) {
  const auto place = harness.paths.ToNative(harness.TempFolderLocation() + "\\VANTORIUM_TEMP").value_or("");
  const auto stranger = harness.folder.Path() / "stranger";
  std::filesystem::remove_all(place);
  std::filesystem::create_directory(stranger);
  std::filesystem::create_directory_symlink(stranger, place);
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  image::cDIBSection result;
  EXPECT_FALSE(OpenedAt(harness.TempFolderLocation()).Compress(picture, 85, result));
  EXPECT_TRUE(std::filesystem::is_empty(stranger));
}

TEST_F(SampleDialogs, TheTemporaryFolderIsCheckedOnceWhenTheDialogOpens) {
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  image::cDIBSection result;
  const auto link = harness.TempFile().parent_path() / "link";
  std::filesystem::create_symlink(harness.folder.Path(), link);
  EXPECT_FALSE(OpenedAt(harness.TempFolderLocation()).Compress(picture, 85, result));
  std::filesystem::remove(link);
  EXPECT_FALSE(opened->Compress(picture, 85, result));
  EXPECT_TRUE(OpenedAt(harness.TempFolderLocation()).Compress(picture, 85, result));
  std::filesystem::create_symlink(harness.folder.Path(), link);
  EXPECT_TRUE(opened->Compress(picture, 85, result));
}

TEST_F(SampleDialogs, NothingIsWrittenBeforeTheDialogOpens) {
  image::cDIBSection result;
  const SampleDialog dialog({"", {}, harness.TempFolderLocation()}, harness.Ports(), box);
  EXPECT_FALSE(dialog.Compress(fakes::PlainPicture(8, 8, kRed), 85, result));
  EXPECT_FALSE(std::filesystem::exists(harness.TempFile()));
}

TEST_F(SampleDialogs, AMissingTemporaryFolderIsCreated) {
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  for (const char* missing : {"temp", "other/parent"}) {
    std::filesystem::remove_all(harness.folder.Path() / missing);
    const std::string location = harness.paths.ToText(harness.folder.Path() / missing);
    image::cDIBSection result;
    EXPECT_TRUE(OpenedAt(location).Compress(picture, 85, result)) << missing;
    EXPECT_TRUE(std::filesystem::exists(harness.folder.Path() / missing / "VANTORIUM_TEMP" / "preview_temp.jpg"));
  }
}

TEST_F(SampleDialogs, AnInvalidTemporaryFolderFails) {
  harness.folder.Write("file", "");
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  for (const std::string& location : {harness.paths.ToText(harness.folder.Path() / "file"), std::string("Q:\\temp"),
                                      std::string("\\\\server\\share")}) {
    image::cDIBSection result;
    EXPECT_FALSE(OpenedAt(location).Compress(picture, 85, result)) << location;
  }
}

TEST_F(SampleDialogs, AFailedPreviewNamesItsFileAndClosesTheDialog) {
  SampleDialog dialog({harness.Jpeg("red.jpg", kRed), {}, ""}, harness.Ports(), box);
  ASSERT_TRUE(dialog.Open());
  dialog.CloseWithFailure("C:\\place");
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Unable to load default Preview Image");
  EXPECT_EQ(
      harness.boxes.boxes[0].text,
      "Vantorium was unable to load the default Preview Image in \"C:\\place\".  Please check the Temporary Folder "
      "Location.");
  EXPECT_TRUE(dialog.Cancelled());
  EXPECT_FALSE(dialog.IsOpen());
}

}  // namespace
}  // namespace vantorium::ui
