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
    SampleDialog dialog(sources, desk.Ports(), box);
    if (!dialog.Open()) return "closed";
    box.PaintPicture(dialog.Source());
    return box.MiddleColor();
  }

  /// A dialog that was opened with that temporary folder; it lasts to the next call.
  SampleDialog& OpenedAt(const std::string& tempFolderLocation) {
    opened.emplace(SampleSources{desk.Jpeg("red.jpg", kRed), {}, tempFolderLocation}, desk.Ports(), box);
    EXPECT_TRUE(opened->Open());
    return *opened;
  }

  fakes::SampleDesk desk;
  fakes::RecordingSampleBox box;
  std::optional<SampleDialog> opened;
};

TEST_F(SampleDialogs, TheSelectedImageIsTheSample) {
  EXPECT_EQ(OpenedWith({desk.Jpeg("red.jpg", kRed), {desk.Jpeg("blue.jpg", kBlue)}, ""}), "256 0 0");
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(SampleDialogs, TheSampleIsCorrectedAsThePhotographsOfTheGallery) {
  desk.folder.Write("lying.jpg", fakes::WithOrientation(fakes::MakeJpeg({.width = 40, .height = 30}), 6));
  const std::string lying = desk.paths.ToText(desk.folder.Path() / "lying.jpg");
  const auto widthOf = [&](image::Corrections corrections) {
    SampleDialog dialog({lying, {}, "", corrections}, desk.Ports(), box);
    return dialog.Open() ? dialog.Source().width() : 0;
  };
  EXPECT_EQ(widthOf({}), 40);
  EXPECT_EQ(widthOf({.upright = true}), 30);
}

TEST_F(SampleDialogs, AnImageThatCannotBeLoadedIsSilentlyReplacedByTheFirstDefaultThatCan) {
  desk.folder.Write("text.jpg", "no picture at all");
  desk.folder.Write("empty.jpg", "");
  const std::string whole = desk.folder.Read(desk.paths.ToNative(desk.Jpeg("red.jpg", kRed))->filename());
  desk.folder.Write("cut.jpg", whole.substr(0, whole.size() / 2));
  const std::string green = desk.Jpeg("green.jpg", kGreen);
  const std::string blue = desk.Jpeg("blue.jpg", kBlue);
  const std::string folder = desk.paths.ToText(desk.folder.Path());
  for (const std::string& selected : {std::string(), desk.Missing(), folder + "\\text.jpg", folder + "\\empty.jpg",
                                      folder + "\\cut.jpg", folder, std::string("Q:\\no\\drive.jpg")}) {
    EXPECT_EQ(OpenedWith({selected, {green, blue}, ""}), "0 256 0") << selected;
    EXPECT_EQ(OpenedWith({selected, {desk.Missing(), blue}, ""}), "0 0 256") << selected;
  }
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(SampleDialogs, WithoutAnySampleTheDialogClosesWithItsBox) {
  SampleDialog dialog({"", {desk.Missing()}, ""}, desk.Ports(), box);
  EXPECT_FALSE(dialog.Open());
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(desk.boxes.boxes[0].title, "Unable to load default Preview Image");
  EXPECT_EQ(desk.boxes.boxes[0].text, "Vantorium was unable to load the default Preview Image.");
  EXPECT_TRUE(dialog.Cancelled());
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_EQ(box.calls, "clear hide ");
}

TEST_F(SampleDialogs, TheDialogIsDrawnBeforeTheSampleIsLoaded) {
  std::string atTurn;
  desk.loop.onTurn = [&](int) { atTurn = box.calls; };
  EXPECT_EQ(OpenedWith({desk.Jpeg("red.jpg", kRed), {}, ""}), "256 0 0");
  EXPECT_EQ(atTurn, "clear ");
  EXPECT_EQ(desk.loop.turns, 1);
}

TEST_F(SampleDialogs, ADialogThatIsClosedWhileItIsDrawnStaysClosed) {
  SampleDialog dialog({desk.Jpeg("red.jpg", kRed), {}, ""}, desk.Ports(), box);
  desk.loop.onTurn = [&](int) { dialog.Close(true); };
  EXPECT_FALSE(dialog.Open());
  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_TRUE(dialog.Cancelled());
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(SampleDialogs, ADialogIsCancelledUntilItIsClosedOtherwise) {
  SampleDialog dialog({desk.Jpeg("red.jpg", kRed), {}, ""}, desk.Ports(), box);
  EXPECT_TRUE(dialog.Cancelled());
  ASSERT_TRUE(dialog.Open());
  EXPECT_TRUE(dialog.Cancelled());
  dialog.Close(false);
  EXPECT_FALSE(dialog.Cancelled());
  dialog.Close(true);
  EXPECT_FALSE(dialog.Cancelled()) << "the first way out counts";
}

TEST_F(SampleDialogs, APictureGoesThroughAFileInTheTemporaryFolder) {
  const SampleDialog& dialog = OpenedAt(desk.TempFolderLocation());
  EXPECT_EQ(dialog.TempFile(), desk.TempFolderLocation() + "\\VANTORIUM_TEMP\\preview_temp.jpg");
  const image::cDIBSection picture = fakes::PlainPicture(33, 21, kRed, 3);
  image::cDIBSection coarse;
  ASSERT_TRUE(dialog.Compress(picture, 1, coarse));
  image::cDIBSection expected;
  ASSERT_TRUE(image::LoadJPEGImage(expected, desk.TempFile()));
  EXPECT_EQ(fakes::BytesOf(coarse), fakes::BytesOf(expected));
  image::cDIBSection fine;
  ASSERT_TRUE(dialog.Compress(picture, 100, fine));
  EXPECT_NE(fakes::BytesOf(coarse), fakes::BytesOf(fine));
}

TEST_F(SampleDialogs, ATemporaryFolderThatIsALinkIsNotWrittenTo) {
  const auto place = desk.paths.ToNative(desk.TempFolderLocation() + "\\VANTORIUM_TEMP").value_or("");
  const auto stranger = desk.folder.Path() / "stranger";
  std::filesystem::remove_all(place);
  std::filesystem::create_directory(stranger);
  std::filesystem::create_directory_symlink(stranger, place);
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  image::cDIBSection result;
  EXPECT_FALSE(OpenedAt(desk.TempFolderLocation()).Compress(picture, 85, result));
  EXPECT_TRUE(std::filesystem::is_empty(stranger));
}

TEST_F(SampleDialogs, TheTemporaryFolderIsLookedThroughOnceWhenTheDialogOpens) {
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  image::cDIBSection result;
  const auto link = desk.TempFile().parent_path() / "link";
  std::filesystem::create_symlink(desk.folder.Path(), link);
  EXPECT_FALSE(OpenedAt(desk.TempFolderLocation()).Compress(picture, 85, result));
  std::filesystem::remove(link);
  EXPECT_FALSE(opened->Compress(picture, 85, result));
  EXPECT_TRUE(OpenedAt(desk.TempFolderLocation()).Compress(picture, 85, result));
  std::filesystem::create_symlink(desk.folder.Path(), link);
  EXPECT_TRUE(opened->Compress(picture, 85, result));
}

TEST_F(SampleDialogs, NothingIsWrittenBeforeTheDialogOpens) {
  image::cDIBSection result;
  const SampleDialog dialog({"", {}, desk.TempFolderLocation()}, desk.Ports(), box);
  EXPECT_FALSE(dialog.Compress(fakes::PlainPicture(8, 8, kRed), 85, result));
  EXPECT_FALSE(std::filesystem::exists(desk.TempFile()));
}

TEST_F(SampleDialogs, AMissingTemporaryFolderIsMade) {
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  for (const char* missing : {"temp", "other/parent"}) {
    std::filesystem::remove_all(desk.folder.Path() / missing);
    const std::string location = desk.paths.ToText(desk.folder.Path() / missing);
    image::cDIBSection result;
    EXPECT_TRUE(OpenedAt(location).Compress(picture, 85, result)) << missing;
    EXPECT_TRUE(std::filesystem::exists(desk.folder.Path() / missing / "VANTORIUM_TEMP" / "preview_temp.jpg"));
  }
}

TEST_F(SampleDialogs, ATemporaryFolderThatIsNoneFails) {
  desk.folder.Write("file", "");
  const image::cDIBSection picture = fakes::PlainPicture(8, 8, kRed);
  for (const std::string& location :
       {desk.paths.ToText(desk.folder.Path() / "file"), std::string("Q:\\temp"), std::string("\\\\server\\share")}) {
    image::cDIBSection result;
    EXPECT_FALSE(OpenedAt(location).Compress(picture, 85, result)) << location;
  }
}

TEST_F(SampleDialogs, AFailedPreviewNamesItsPlaceAndClosesTheDialog) {
  SampleDialog dialog({desk.Jpeg("red.jpg", kRed), {}, ""}, desk.Ports(), box);
  ASSERT_TRUE(dialog.Open());
  dialog.CloseWithFailure("C:\\place");
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(desk.boxes.boxes[0].title, "Unable to load default Preview Image");
  EXPECT_EQ(
      desk.boxes.boxes[0].text,
      "Vantorium was unable to load the default Preview Image in \"C:\\place\".  Please check the Temporary Folder "
      "Location.");
  EXPECT_TRUE(dialog.Cancelled());
  EXPECT_FALSE(dialog.IsOpen());
}

}  // namespace
}  // namespace vantorium::ui
