#include "image/JPEGDecoder.h"

#include "image/JPEGErrors.h"
#include "image/JPEGFile.h"

#include <algorithm>
#include <limits>
#include <vector>

#include <jerror.h>

namespace vantorium {
namespace {

// Files in many scans cost a pass over the whole picture for each of them, however few bytes it has. Encoders write
// about ten.
constexpr int kMostScans = 500;

// For the coefficients of a picture in several scans: enough for 350 megapixels with halved chroma.
constexpr long kMostMemory = 1L << 30;

// Arithmetic coding has no least number of bits for a block. Up to 2^18 blocks, some 11 megapixels, such a picture is
// cheap enough to be believed.
constexpr std::uint64_t kBelievedBlocks = std::uint64_t{1} << 18;

std::uint64_t BlocksOf(const jpeg_decompress_struct& codec) {
  std::uint64_t blocks = 0;
  for (int i = 0; i < codec.num_components; ++i) {
    const auto& component = codec.comp_info[i];
    blocks += std::uint64_t{component.width_in_blocks} * component.height_in_blocks;
  }
  return blocks;
}

// Huffman codes have at least one bit. A sequential block has two of them, its first coefficient and its end; of a
// progressive block only the first coefficient is certain to have one.
bool CanHold(std::uint64_t bytes, const jpeg_decompress_struct& codec) {
  const std::uint64_t blocks = BlocksOf(codec);
  const std::uint64_t bits = bytes * 8;
  if (codec.arith_code != FALSE) return blocks <= std::max(bits, kBelievedBlocks);
  return blocks <= (codec.progressive_mode != FALSE ? bits : bits / 2);
}

void LimitScans(j_common_ptr common) {
  const auto* codec = reinterpret_cast<j_decompress_ptr>(common);
  if (codec->input_scan_number > kMostScans) ERREXIT(common, JERR_NOTIMPL);
}

std::uint8_t Product(unsigned left, unsigned right) {
  return static_cast<std::uint8_t>((left * right + 127) / 255);
}

// `light` has 255 for no ink: cyan, magenta, yellow, black. Each ink takes its share of the light, then black does.
void LightToBGR(const std::uint8_t* light, std::int32_t width, std::uint8_t* bgr) {
  for (std::int32_t x = 0; x < width; ++x, light += 4, bgr += 3) {
    bgr[0] = Product(light[2], light[3]);
    bgr[1] = Product(light[1], light[3]);
    bgr[2] = Product(light[0], light[3]);
  }
}

}  // namespace

struct JPEGDecoder::State {
  ~State() { jpeg_destroy_decompress(&codec); }

  [[nodiscard]] bool HasInks() const { return codec.out_color_space == JCS_CMYK; }
  void ReadHeader();
  void ChooseOutput();
  void InksToBGR(std::uint8_t* bgr);

  JPEGErrors errors;
  FileHandle file;
  std::uint64_t fileSize = 0;
  jpeg_progress_mgr progress = {};
  jpeg_decompress_struct codec = {};
  std::vector<std::uint8_t> inks;  // one row, when the file is in inks
};

void JPEGDecoder::State::ReadHeader() {
  codec.err = errors.Manager();
  jpeg_create_decompress(&codec);
  codec.mem->max_memory_to_use = kMostMemory;
  progress.progress_monitor = LimitScans;
  codec.progress = &progress;
  jpeg_stdio_src(&codec, file.get());
  jpeg_read_header(&codec, TRUE);
}

void JPEGDecoder::State::ChooseOutput() {
  const bool inInks = codec.jpeg_color_space == JCS_CMYK || codec.jpeg_color_space == JCS_YCCK;
  codec.out_color_space = inInks ? JCS_CMYK : JCS_EXT_BGR;
}

// Files with the Adobe marker hold light, the others ink.
void JPEGDecoder::State::InksToBGR(std::uint8_t* bgr) {
  if (codec.saw_Adobe_marker == FALSE) {
    for (auto& ink : inks) ink = static_cast<std::uint8_t>(255 - ink);
  }
  LightToBGR(inks.data(), static_cast<std::int32_t>(codec.output_width), bgr);
}

JPEGDecoder::JPEGDecoder() : state_(std::make_unique<State>()) {}
JPEGDecoder::~JPEGDecoder() = default;

bool JPEGDecoder::Open(const std::filesystem::path& path) {
  state_ = std::make_unique<State>();
  State& state = *state_;
  state.file = OpenRegularFile(path, state.fileSize);
  return state.file != nullptr && state.errors.Run([&state] { state.ReadHeader(); });
}

std::int32_t JPEGDecoder::width() const {
  return static_cast<std::int32_t>(state_->codec.image_width);
}

std::int32_t JPEGDecoder::height() const {
  return static_cast<std::int32_t>(state_->codec.image_height);
}

bool JPEGDecoder::IsPlausible() const {
  return CanHold(state_->fileSize, state_->codec);
}

bool JPEGDecoder::HoldsWholePicture() const {
  return jpeg_has_multiple_scans(&state_->codec) != FALSE;
}

bool JPEGDecoder::Start() {
  State& state = *state_;
  if (!IsPlausible()) return false;
  state.ChooseOutput();
  if (state.HasInks()) state.inks.resize(static_cast<std::size_t>(width()) * 4);
  return state.errors.Run([&state] { jpeg_start_decompress(&state.codec); }) && !state.errors.Damaged();
}

bool JPEGDecoder::ReadRow(std::uint8_t* bgr) {
  State& state = *state_;
  JSAMPROW row = state.HasInks() ? state.inks.data() : bgr;
  JDIMENSION rows = 0;
  const bool done = state.errors.Run([&] { rows = jpeg_read_scanlines(&state.codec, &row, 1); });
  if (!done || rows != 1) return false;
  if (state.HasInks()) state.InksToBGR(bgr);
  return !state.errors.Damaged();
}

bool JPEGDecoder::SkipRows(std::int32_t count) {
  State& state = *state_;
  const auto wanted = static_cast<JDIMENSION>(count);
  JDIMENSION rows = 0;
  const bool done = state.errors.Run([&] { rows = jpeg_skip_scanlines(&state.codec, wanted); });
  return done && rows == wanted && !state.errors.Damaged();
}

bool JPEGDecoder::Finish() {
  State& state = *state_;
  return state.errors.Run([&state] { jpeg_finish_decompress(&state.codec); }) && !state.errors.Damaged();
}

}  // namespace vantorium
