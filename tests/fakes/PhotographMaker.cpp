#include "tests/fakes/PhotographMaker.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>
#include <lcms2.h>

namespace vantorium::fakes {
namespace {

std::string Number(unsigned value, std::size_t size, bool bigEndian) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8U * i & 255U);
  if (bigEndian) std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

std::string Entry(unsigned tag, unsigned value, bool bigEndian) {
  return Number(tag, 2, bigEndian) + Number(3, 2, bigEndian) + Number(1, 4, bigEndian) + Number(value, 2, bigEndian) +
         Number(0, 2, bigEndian);
}

constexpr cmsCIExyY kDaylight = {0.3127, 0.3290, 1};
constexpr cmsCIExyYTRIPLE kPrimariesOfP3 = {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}};
constexpr cmsCIExyYTRIPLE kPrimariesOfAdobe = {{0.640, 0.330, 1}, {0.210, 0.710, 1}, {0.150, 0.060, 1}};

cmsToneCurve* CurveOfSRGB() {
  const double numbers[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
  return cmsBuildParametricToneCurve(nullptr, 4, numbers);
}

cmsHPROFILE MakeProfile(const cmsCIExyYTRIPLE& primaries, cmsToneCurve* curve) {
  cmsToneCurve* const curves[] = {curve, curve, curve};
  const cmsHPROFILE profile = cmsCreateRGBProfile(&kDaylight, &primaries, curves);
  cmsFreeToneCurve(curve);
  return profile;
}

cmsHPROFILE MakeGrayProfile() {
  cmsToneCurve* curve = cmsBuildGamma(nullptr, 1.2);
  const cmsHPROFILE profile = cmsCreateGrayProfile(&kDaylight, curve);
  cmsFreeToneCurve(curve);
  return profile;
}

cmsHPROFILE Make(TestProfile profile) {
  switch (profile) {
    case TestProfile::SRGB:
      return cmsCreate_sRGBProfile();
    case TestProfile::DisplayP3:
      return MakeProfile(kPrimariesOfP3, CurveOfSRGB());
    case TestProfile::AdobeRGB:
      return MakeProfile(kPrimariesOfAdobe, cmsBuildGamma(nullptr, 563.0 / 256));
    case TestProfile::GrayGamma:
      break;
  }
  return MakeGrayProfile();
}

}  // namespace

std::string JpegSegment(int marker, std::string_view contents) {
  return fmt::format("\xFF{}{}{}", static_cast<char>(marker),
                     Number(static_cast<unsigned>(contents.size()) + 2, 2, true), contents);
}

std::string WithSegments(std::string jpeg, std::string_view segments) {
  return WithBytesAt(std::move(jpeg), 2, segments);
}

std::string ExifOf(int orientation, bool bigEndian) {
  constexpr unsigned kImageWidth = 0x0100;
  constexpr unsigned kOrientation = 0x0112;
  constexpr unsigned kResolutionUnit = 0x0128;
  const auto value = static_cast<unsigned>(orientation);
  return std::string("Exif\0\0", 6) + (bigEndian ? "MM" : "II") + Number(42, 2, bigEndian) + Number(8, 4, bigEndian) +
         Number(3, 2, bigEndian) + Entry(kImageWidth, 7, bigEndian) + Entry(kOrientation, value, bigEndian) +
         Entry(kResolutionUnit, 2, bigEndian) + Number(0, 4, bigEndian);
}

std::string WithOrientation(std::string jpeg, int orientation) {
  return WithSegments(std::move(jpeg), JpegSegment(0xE1, ExifOf(orientation)));
}

std::string ProfileOf(TestProfile profile) {
  const cmsHPROFILE made = Make(profile);
  cmsUInt32Number size = 0;
  cmsSaveProfileToMem(made, nullptr, &size);
  std::string bytes(size, '\0');
  cmsSaveProfileToMem(made, bytes.data(), &size);
  cmsCloseProfile(made);
  return bytes;
}

std::string ProfileSegments(std::string_view profile, std::size_t most) {
  const std::size_t count = (profile.size() + most - 1) / most;
  std::string segments;
  for (std::size_t i = 0; i < count; ++i) {
    std::string contents("ICC_PROFILE\0", 12);
    contents += static_cast<char>(i + 1);
    contents += static_cast<char>(count);
    contents += profile.substr(i * most, most);
    segments += JpegSegment(0xE2, contents);
  }
  return segments;
}

std::string WithProfile(std::string jpeg, std::string_view profile) {
  return WithSegments(std::move(jpeg), ProfileSegments(profile));
}

std::array<std::uint8_t, 3> InProfile(std::string_view profile, std::array<std::uint8_t, 3> sRGB) {
  const cmsHPROFILE from = cmsCreate_sRGBProfile();
  const cmsHPROFILE to = cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size()));
  const cmsHTRANSFORM transform =
      cmsCreateTransform(from, TYPE_RGB_8, to, TYPE_RGB_8, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
  std::array<std::uint8_t, 3> result = {};
  cmsDoTransform(transform, sRGB.data(), result.data(), 1);
  cmsDeleteTransform(transform);
  cmsCloseProfile(to);
  cmsCloseProfile(from);
  return result;
}

JpegPixels StoredLying(const JpegPixels& upright, int orientation, int width, int height) {
  const int right = width - 1;
  const int bottom = height - 1;
  switch (orientation) {
    case 2:
      return [=](int x, int y) { return upright(right - x, y); };
    case 3:
      return [=](int x, int y) { return upright(right - x, bottom - y); };
    case 4:
      return [=](int x, int y) { return upright(x, bottom - y); };
    case 5:
      return [=](int x, int y) { return upright(y, x); };
    case 6:
      return [=](int x, int y) { return upright(right - y, x); };
    case 7:
      return [=](int x, int y) { return upright(right - y, bottom - x); };
    case 8:
      return [=](int x, int y) { return upright(y, bottom - x); };
    default:
      return upright;
  }
}

}  // namespace vantorium::fakes
