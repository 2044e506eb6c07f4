// Writes the corpus files that a text editor cannot write.
// Usage: fuzz_corpus tests/fuzz/corpus
#include "core/file/ProjectFileWriter.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/PhotographMaker.h"

#include <filesystem>
#include <fstream>
#include <string_view>

#include <fmt/format.h>

using namespace vantorium;

namespace {

namespace fs = std::filesystem;

void Write(const fs::path& file, std::string_view bytes) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

void WritePhotographs(const fs::path& folder) {
  using fakes::JpegColors;
  const std::pair<std::string_view, fakes::JpegRecipe> recipes[] = {
      {"grey", {.width = 17, .height = 11, .colors = JpegColors::Grey, .quality = 40}},
      {"halved", {.width = 37, .height = 29, .quality = 40}},
      {"halved_width", {.width = 30, .height = 25, .horizontal = 2, .vertical = 1, .quality = 40, .optimised = true}},
      {"full", {.width = 23, .height = 21, .horizontal = 1, .vertical = 1, .restartEvery = 3, .quality = 60}},
      {"fine", {.width = 20, .height = 18, .quality = 100}},
      {"coarse", {.width = 50, .height = 60, .quality = 5, .wideSteps = true}},
      {"halved_restarts", {.width = 33, .height = 50, .restartEvery = 2, .quality = 30}},
      {"narrow", {.width = 4, .height = 61, .quality = 30}},
      {"rows_halved", {.width = 19, .height = 43, .horizontal = 1, .vertical = 2, .quality = 30}},
      {"quartered", {.width = 40, .height = 41, .horizontal = 2, .vertical = 4, .quality = 30}},
      {"rgb", {.width = 20, .height = 20, .colors = JpegColors::RGB, .quality = 30}},
      {"cmyk", {.width = 16, .height = 12, .colors = JpegColors::CMYK, .quality = 30}},
      {"cmyk_inks", {.width = 16, .height = 12, .colors = JpegColors::CMYK, .quality = 30, .adobeMarker = false}},
      {"ycck", {.width = 20, .height = 30, .colors = JpegColors::YCCK, .quality = 30}},
      {"progressive", {.width = 37, .height = 29, .progressive = true, .quality = 30}},
      {"progressive_restarts", {.width = 24, .height = 40, .progressive = true, .restartEvery = 3, .quality = 30}},
      {"progressive_grey", {.width = 41, .height = 33, .colors = JpegColors::Grey, .progressive = true, .quality = 60}},
      {"progressive_full",
       {.width = 23, .height = 21, .horizontal = 1, .vertical = 1, .progressive = true, .quality = 80}},
      {"progressive_halved_width",
       {.width = 35, .height = 20, .horizontal = 2, .vertical = 1, .progressive = true, .quality = 90}},
      {"progressive_bands",
       {.width = 25,
        .height = 30,
        .colors = JpegColors::Grey,
        .progressive = true,
        .scans = {{{0}, 0, 0, 0, 2},
                  {{0}, 0, 0, 2, 1},
                  {{0}, 20, 63, 0, 1},
                  {{0}, 1, 19, 0, 2},
                  {{0}, 1, 19, 2, 1},
                  {{0}, 0, 0, 1, 0},
                  {{0}, 20, 63, 1, 0},
                  {{0}, 1, 19, 1, 0}},
        .restartEvery = 7,
        .quality = 70}},
      {"arithmetic", {.width = 30, .height = 22, .arithmetic = true, .quality = 30}},
      {"arithmetic_progressive", {.width = 30, .height = 22, .progressive = true, .arithmetic = true, .quality = 30}}};
  for (const auto& [name, recipe] : recipes) {
    Write(folder / fmt::format("{}.jpg", name), fakes::MakeJpeg(recipe));
  }
  const std::string plain = fakes::MakeJpeg({.width = 9, .height = 9, .quality = 30});
  const std::size_t frame = fakes::FrameHeaderOf(plain);
  const std::string_view segments(
      "\xFF\xE1\x00\x08"
      "Exif\x00\x00"
      "\xFF\x02\x00\x02"
      "\xFF\xFE\x00\x03!",
      19);
  Write(folder / "segments.jpg", fakes::WithBytesAt(plain, frame, segments));
  Write(folder / "claims_much.jpg", fakes::ClaimingSize(plain, 30000, 30000));
}

void WriteNotedPhotographs(const fs::path& folder) {
  using fakes::TestProfile;
  const std::string plain = fakes::MakeJpeg({.width = 20, .height = 13, .quality = 30});
  const std::string gray =
      fakes::MakeJpeg({.width = 9, .height = 14, .colors = fakes::JpegColors::Grey, .quality = 30});
  const std::string profile = fakes::ProfileOf(TestProfile::AdobeRGB);
  for (int orientation = 1; orientation <= 8; ++orientation) {
    Write(folder / fmt::format("lying_{}.jpg", orientation), fakes::WithOrientation(plain, orientation));
  }
  Write(folder / "greatest_first.jpg", fakes::WithSegments(plain, fakes::JpegSegment(0xE1, fakes::ExifOf(6, true))));
  Write(folder / "profile.jpg", fakes::WithOrientation(fakes::WithProfile(plain, profile), 6));
  Write(folder / "chunks.jpg", fakes::WithSegments(plain, fakes::ProfileSegments(profile, 100)));
  Write(folder / "gray.jpg", fakes::WithProfile(gray, fakes::ProfileOf(TestProfile::GrayGamma)));
  Write(folder / "exif", fakes::ExifOf(5));
  Write(folder / "p3.icc", fakes::ProfileOf(TestProfile::DisplayP3));
}

/// A project that uses every part of the format.
core::Project FullProject() {
  core::Project project;
  core::GalleryProject& settings = project.settings;
  settings.textGalleryTitle = "Holidays & \xC3\xA4";
  settings.GalleryHeadCode = settings.GalleryInfoText = settings.ThumbnailPageHeadCode = "<B>\r\n]]>";
  settings.checkGallerySlideShow = settings.checkGallerySlideShowAutoStart = 1;
  settings.comboGallerySlideShowBeginWith = 0;
  settings.checkCaptionsImagesRegular = settings.checkCaptionsImagesPopup = 1;
  settings.checkCaptionsThumbnailsRegular = settings.checkCaptionsThumbnailsPopup = 1;
  settings.comboImageDescriptionPlacement = settings.comboThumbnailDescriptionPlacement = 3;
  settings.checkImageWrapperSetColors = settings.checkThumbnailsPageSetColors = 1;
  settings.checkThumbnailsTableUseBGColor = 1;
  settings.checkPageLinksThumbnailDirectLinks = 1;
  settings.ImageWatermark.checkUseWatermark = 1;
  settings.ImageNextLink = {"next", "C:\\next.gif", "C:\\none.gif"};
  for (image::ImageFilterSettings* filters : {&settings.ImageFilters, &settings.ThumbnailFilters}) {
    filters->checkGrayscale = filters->checkNoise = filters->checkBrightness = filters->checkFade = 1;
  }
  project.images.Insert(1, {"a", "P:\\a.jpg", "", "", "first\r\nline", "thumb"});
  project.images.Insert(2, {"a", "P:\\b.jpg", "", "", "", "]]>"});
  return project;
}

/// A small project whose title is `letter`, an "a umlaut" in the declared encoding.
std::string SmallProject(std::string_view declaration, std::string_view letter) {
  return fmt::format(
      "{}<GALLERYPROJECT><GALLERY TITLE=\"{}\"><LAYOUT TYPE=\"thumbsleft\" FRAMESIZE=\"20%\"/><IMAGES><IMAGE "
      "INDEX=\"1\" SOURCE=\"file://P:/a.jpg\" NAME=\"a\"/></IMAGES><THUMBNAILPAGE><ARRANGEMENT/><PAGELINKS/>"
      "</THUMBNAILPAGE></GALLERY></GALLERYPROJECT>",
      declaration, letter);
}

/// Widens a text of single-byte characters to units of `size` bytes.
std::string Widened(std::string_view text, std::size_t size, bool bigEndian) {
  std::string wide;
  for (const char byte : text) {
    const std::string zeros(size - 1, '\0');
    wide += bigEndian ? zeros + byte : byte + zeros;
  }
  return wide;
}

void WriteProjects(const fs::path& folder) {
  const auto declared = [](std::string_view encoding) {
    return fmt::format("<?xml version=\"1.0\" encoding=\"{}\"?>", encoding);
  };
  const std::string wide = SmallProject("", "\xE4");
  fakes::CountingEventLoop events;
  Write(folder / "full.gpj", core::ProjectFileText(FullProject(), events));
  Write(folder / "utf8_mark.gpj", "\xEF\xBB\xBF" + SmallProject("", "\xC3\xA4"));
  Write(folder / "utf16le_mark.gpj", "\xFF\xFE" + Widened(wide, 2, false));
  Write(folder / "utf16be_mark.gpj", "\xFE\xFF" + Widened(wide, 2, true));
  Write(folder / "utf16le.gpj", Widened(SmallProject(declared("UTF-16"), "\xE4"), 2, false));
  Write(folder / "utf16be.gpj", Widened(SmallProject(declared("UTF-16"), "\xE4"), 2, true));
  Write(folder / "utf32le_mark.gpj", std::string("\xFF\xFE\0\0", 4) + Widened(wide, 4, false));
  Write(folder / "latin1.gpj", SmallProject(declared("ISO-8859-1"), "\xE4"));
  Write(folder / "windows1251.gpj", SmallProject(declared("windows-1251"), "\xC4"));
  Write(folder / "shift_jis.gpj", SmallProject(declared("Shift_JIS"), "\x93\xFA"));
  Write(folder / "iso2022jp.gpj", SmallProject(declared("ISO-2022-JP"), "\x1B$BF|\x1B(B"));
  Write(folder / "utf7.gpj", SmallProject(declared("UTF-7"), "+AOQ-"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    fmt::print(stderr, "Use: fuzz_corpus FOLDER\n");
    return 2;
  }
  WritePhotographs(fs::path(argv[1]) / "jpeg");
  WriteNotedPhotographs(fs::path(argv[1]) / "photograph");
  WriteProjects(fs::path(argv[1]) / "project");
  return 0;
}
