// Decodes JPEG files with jpeg::WantedDecoder and with libjpeg-turbo: both must give the same pixels or refuse the
// file.
#include "image/JPEG.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/image/jpeg/WantedRows.h"

#include <algorithm>
#include <numeric>

using namespace vantorium;

namespace {

constexpr std::int64_t kMostPixels = 1 << 16;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fakes::TemporaryFolder folder;
  const std::string input = fuzz::InputText(data, size);
  const auto file = folder.Write("photo.jpg", input);
  std::int32_t width = 0;
  std::int32_t height = 0;
  if (!image::ReadJPEGSize(file, width, height) || std::int64_t{width} * height > kMostPixels) return 0;

  // All pixels, and a selection that depends on the input.
  const unsigned sum = std::accumulate(input.begin(), input.end(), 0U,
                                       [](unsigned all, char byte) { return all + static_cast<unsigned char>(byte); });
  for (const unsigned number : {0U, 1 + sum % 20}) {
    const auto wanted = fakes::SomePixels(width, height, number);
    const auto expected = fakes::ReadByLibrary(file, wanted);
    const auto alone = fakes::ReadAlone(file, wanted);
    fuzz::Require(!alone || alone == expected, "WantedDecoder equals libjpeg-turbo");
    fuzz::Require(fakes::ReadAsWanted(file, wanted) == expected, "JPEGDecoder equals libjpeg-turbo");
  }
  return 0;
}
