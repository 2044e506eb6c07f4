#include "image/SRGBTransform.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <lcms2.h>

namespace vantorium::image {
namespace {

struct ProfileCloser {
  void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using ProfileHandle = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter {
  void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using TransformHandle = std::unique_ptr<void, TransformDeleter>;

// Steps of a channel between two probes of a conversion.
constexpr unsigned kProbeEvery = 17;

bool DescribesPictures(void* profile) {
  const cmsProfileClassSignature kind = cmsGetDeviceClass(profile);
  return kind == cmsSigDisplayClass || kind == cmsSigInputClass || kind == cmsSigOutputClass ||
         kind == cmsSigColorSpaceClass;
}

/// Returns null if the profile isn't one of pictures in `colors`.
ProfileHandle Open(const std::string& bytes, cmsColorSpaceSignature colors) {
  ProfileHandle profile(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
  if (!profile || cmsGetColorSpace(profile.get()) != colors || !DescribesPictures(profile.get())) return nullptr;
  return profile;
}

// Without its cache a transform may be shared between threads.
TransformHandle ToSRGB(const ProfileHandle& profile, cmsUInt32Number format) {
  const ProfileHandle sRGB(cmsCreate_sRGBProfile());
  if (!profile || !sRGB) return nullptr;
  return TransformHandle(
      cmsCreateTransform(profile.get(), format, sRGB.get(), TYPE_BGR_8, INTENT_PERCEPTUAL, cmsFLAGS_NOCACHE));
}

class ColorTransform : public SRGBTransform {
 public:
  explicit ColorTransform(TransformHandle transform) : transform_(std::move(transform)) {}

  void Apply(std::uint8_t* bgr, std::size_t pixels) const override {
    cmsDoTransform(transform_.get(), bgr, bgr, static_cast<cmsUInt32Number>(pixels));
  }

 private:
  TransformHandle transform_;
};

/// For pixels whose three channels are equal.
class GrayTransform : public SRGBTransform {
 public:
  explicit GrayTransform(const TransformHandle& transform) {
    std::array<std::uint8_t, 256> grays;
    for (std::size_t gray = 0; gray < grays.size(); ++gray) grays[gray] = static_cast<std::uint8_t>(gray);
    cmsDoTransform(transform.get(), grays.data(), colors_.data(), static_cast<cmsUInt32Number>(grays.size()));
  }

  void Apply(std::uint8_t* bgr, std::size_t pixels) const override {
    for (std::uint8_t* end = bgr + 3 * pixels; bgr != end; bgr += 3)
      std::memcpy(bgr, &colors_[std::size_t{3} * *bgr], 3);
  }

 private:
  std::array<std::uint8_t, std::size_t{3}* 256> colors_ = {};
};

std::vector<std::uint8_t> ProbesOf(int channels) {
  std::vector<std::uint8_t> probes;
  const auto add = [&probes](unsigned blue, unsigned green, unsigned red) {
    for (const unsigned byte : {blue, green, red}) probes.push_back(static_cast<std::uint8_t>(byte));
  };
  for (unsigned gray = 0; gray < 256; ++gray) add(gray, gray, gray);
  if (channels == 1) return probes;
  for (unsigned blue = 0; blue < 256; blue += kProbeEvery) {
    for (unsigned green = 0; green < 256; green += kProbeEvery) {
      for (unsigned red = 0; red < 256; red += kProbeEvery) add(blue, green, red);
    }
  }
  return probes;
}

// The many profiles of sRGB differ in their last digits, so equal bytes or names would not tell.
bool ChangesColors(const SRGBTransform& transform, int channels) {
  const std::vector<std::uint8_t> probes = ProbesOf(channels);
  std::vector<std::uint8_t> converted = probes;
  transform.Apply(converted.data(), converted.size() / 3);
  return !std::equal(probes.begin(), probes.end(), converted.begin(),
                     [](int before, int after) { return std::abs(before - after) <= 1; });
}

std::unique_ptr<const SRGBTransform> Make(const std::string& profile, int channels) {
  if (channels == 1) {
    const TransformHandle transform = ToSRGB(Open(profile, cmsSigGrayData), TYPE_GRAY_8);
    return transform ? std::make_unique<const GrayTransform>(transform) : nullptr;
  }
  TransformHandle transform = ToSRGB(Open(profile, cmsSigRgbData), TYPE_BGR_8);
  return transform ? std::make_unique<const ColorTransform>(std::move(transform)) : nullptr;
}

}  // namespace

std::unique_ptr<const SRGBTransform> SRGBTransform::For(const std::string& profile, int channels) {
  if (profile.empty() || (channels != 1 && channels != 3)) return nullptr;
  auto transform = Make(profile, channels);
  if (transform && !ChangesColors(*transform, channels)) return nullptr;
  return transform;
}

}  // namespace vantorium::image
