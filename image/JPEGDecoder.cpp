#include "image/JPEGDecoder.h"

#include "image/JPEGClaim.h"
#include "image/JPEGErrors.h"
#include "image/JPEGFile.h"
#include "image/JPEGInks.h"
#include "image/jpeg/WantedDecoder.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>
#include <vector>

#include <jerror.h>

namespace vantorium::image {
namespace {

// Each scan costs a pass over the whole picture, however few bytes it has. Encoders write about ten.
constexpr int kMostScans = 500;

// Memory for the coefficients of a multi-scan picture: enough for 350 megapixels with halved chroma. libjpeg-turbo
// refuses larger ones.
constexpr long kMostMemory = 1L << 30;
constexpr std::uint64_t kSurelyEnough = kMostMemory / 2;

// Rows skipped between two checks for a stop.
constexpr std::int32_t kMostRowsAtOnce = 256;

// libjpeg-turbo calls this repeatedly while it reads a multi-scan file.
void LimitScans(j_common_ptr common) {
  const auto* codec = reinterpret_cast<j_decompress_ptr>(common);
  const auto* stop = static_cast<const std::stop_token*>(codec->client_data);
  if (codec->input_scan_number > kMostScans || stop->stop_requested()) ERREXIT(common, JERR_NOTIMPL);
}

// The reserved markers at which libjpeg-turbo stops. Their segments have a length like all others. Hierarchical files
// (DE, DF) remain refused.
bool IsReserved(int marker) {
  return (marker >= 0x02 && marker <= 0xBF) || (marker >= 0xF0 && marker <= 0xFD);
}

unsigned NextByte(jpeg_decompress_struct& codec) {
  jpeg_source_mgr& source = *codec.src;
  if (source.bytes_in_buffer == 0) source.fill_input_buffer(&codec);
  --source.bytes_in_buffer;
  return *source.next_input_byte++;
}

void SkipSegment(jpeg_decompress_struct& codec) {
  const unsigned high = NextByte(codec);
  const unsigned length = high * 256 + NextByte(codec);
  if (length > 2) codec.src->skip_input_data(&codec, static_cast<long>(length - 2));
  codec.unread_marker = 0;
}

// Whether skipping may start at any row. libjpeg-turbo loses its place when skipping starts inside a group of rows that
// share chroma, unless it interpolates chroma between groups. It does so for chroma of half the width and height that
// is more than two samples wide.
bool SkipsFromAnywhere(const jpeg_decompress_struct& codec) {
  if (codec.max_v_samp_factor <= 1) return true;
  for (int i = 0; i < codec.num_components; ++i) {
    const auto& component = codec.comp_info[i];
    const bool halved = component.h_samp_factor * 2 == codec.max_h_samp_factor &&
                        component.v_samp_factor * 2 == codec.max_v_samp_factor;
    if (halved && component.downsampled_width > 2) return true;
  }
  return false;
}

// Whether the scans read so far contain every coefficient to its last bit. This cannot be told for arithmetic coding,
// which decodes missing data at the end as zeros.
bool HasEveryCoefficient(const jpeg_decompress_struct& codec) {
  if (codec.arith_code != FALSE) return false;
  for (int i = 0; i < codec.num_components; ++i) {
    if (codec.comp_info[i].quant_table == nullptr) return false;  // set by the component's first scan
    if (codec.progressive_mode == FALSE) continue;
    const auto& missingBits = codec.coef_bits[i];
    if (std::any_of(std::begin(missingBits), std::end(missingBits), [](int bits) { return bits != 0; })) return false;
  }
  return true;
}

}  // namespace

struct JPEGDecoder::State {
  State() {
    std::ignore = errors.Run([this] { Create(); });
  }
  ~State() { jpeg_destroy_decompress(&codec); }

  [[nodiscard]] bool HasInks() const { return codec.out_color_space == JCS_CMYK; }
  void Create();
  template <typename Work>
  [[nodiscard]] bool RunPastReservedMarkers(Work work);
  void ChooseOutput();
  [[nodiscard]] bool IsWhole() const;
  [[nodiscard]] off_t DataPlace() const;

  JPEGErrors errors;
  FileHandle file;
  std::uint64_t fileSize = 0;
  std::stop_token stop;
  jpeg_progress_mgr progress = {};
  jpeg_decompress_struct codec = {};
  std::vector<std::uint8_t> inks;      // one row, for CMYK and YCCK files
  std::vector<std::uint8_t> unwanted;  // a row that cannot be skipped
  std::optional<WantedPixels> wanted;
  std::unique_ptr<jpeg::WantedDecoder> usual;  // decodes instead of libjpeg-turbo while it is set
  std::int32_t usualRows = 0;                  // rows that `usual` has read or skipped
};

void JPEGDecoder::State::Create() {
  codec.err = errors.Manager();
  jpeg_create_decompress(&codec);
  codec.mem->max_memory_to_use = kMostMemory;
  progress.progress_monitor = LimitScans;
  codec.progress = &progress;
  codec.client_data = &stop;
}

// libjpeg-turbo stops at such a marker as it does when it waits for data, and resumes when the same call is repeated.
template <typename Work>
bool JPEGDecoder::State::RunPastReservedMarkers(Work work) {
  while (!errors.Run(work)) {
    if (!IsReserved(codec.unread_marker) || !errors.ForgiveUnknownMarker()) return false;
    if (!errors.Run([this] { SkipSegment(codec); })) return false;
  }
  return true;
}

void JPEGDecoder::State::ChooseOutput() {
  const bool inInks = codec.jpeg_color_space == JCS_CMYK || codec.jpeg_color_space == JCS_YCCK;
  codec.out_color_space = inInks ? JCS_CMYK : JCS_EXT_BGR;
}

// Whether none of the data read so far is known to be missing.
bool JPEGDecoder::State::IsWhole() const {
  return !errors.Damaged() && (!errors.EndedEarly() || HasEveryCoefficient(codec));
}

// The file offset of the data after the header.
off_t JPEGDecoder::State::DataPlace() const {
  return ::ftello(file.get()) - static_cast<off_t>(codec.src->bytes_in_buffer);
}

JPEGDecoder::JPEGDecoder() : state_(std::make_unique<State>()) {}
JPEGDecoder::~JPEGDecoder() = default;

void JPEGDecoder::StopWith(const std::stop_token& stop) {
  stop_ = stop;
}

bool JPEGDecoder::Open(const std::filesystem::path& path) {
  state_ = std::make_unique<State>();
  State& state = *state_;
  state.stop = stop_;
  divisor_ = 1;
  state.file = OpenRegularFile(path, state.fileSize);
  return state.file != nullptr && state.errors.Run([&state] { jpeg_stdio_src(&state.codec, state.file.get()); }) &&
         state.RunPastReservedMarkers([&state] { jpeg_read_header(&state.codec, TRUE); });
}

std::int32_t JPEGDecoder::width() const {
  return static_cast<std::int32_t>(state_->codec.image_width);
}

std::int32_t JPEGDecoder::height() const {
  return static_cast<std::int32_t>(state_->codec.image_height);
}

void JPEGDecoder::ReduceBy(int divisor) {
  divisor_ = divisor;
}

std::int32_t JPEGDecoder::OutputWidth() const {
  return (width() + divisor_ - 1) / divisor_;
}

std::int32_t JPEGDecoder::OutputHeight() const {
  return (height() + divisor_ - 1) / divisor_;
}

bool JPEGDecoder::IsPlausible() const {
  return !state_->errors.Failed() && CanHold(state_->fileSize, state_->codec);
}

std::uint64_t JPEGDecoder::HeldBytes() const {
  State& state = *state_;
  bool severalScans = false;
  const bool known = state.errors.Run([&] { severalScans = jpeg_has_multiple_scans(&state.codec) != FALSE; });
  return known && severalScans ? BlocksOf(state.codec) * sizeof(JBLOCK) : 0;
}

void JPEGDecoder::Want(WantedPixels wanted) {
  state_->wanted = std::move(wanted);
}

bool JPEGDecoder::Start() {
  State& state = *state_;
  if (!IsPlausible()) return false;
  if (jpeg::WantedDecoder::kIsFaster && state.wanted && !state.errors.Damaged() && HeldBytes() <= kSurelyEnough) {
    state.usual =
        jpeg::WantedDecoder::For(state.codec, ::fileno(state.file.get()), state.DataPlace(), *state.wanted, state.stop);
  }
  return state.usual != nullptr || StartLibrary();
}

bool JPEGDecoder::StartLibrary() {
  State& state = *state_;
  state.ChooseOutput();
  state.codec.scale_num = 1;
  state.codec.scale_denom = static_cast<unsigned>(divisor_);
  if (state.HasInks()) state.inks.resize(static_cast<std::size_t>(OutputWidth()) * 4);
  return state.RunPastReservedMarkers([&state] { jpeg_start_decompress(&state.codec); }) && state.IsWhole();
}

// libjpeg-turbo has read the header only. It would have made the same of the rows so far, so these are skipped.
bool JPEGDecoder::TurnToLibrary() {
  State& state = *state_;
  state.usual.reset();
  if (!StartLibrary()) return false;
  for (std::int32_t left = state.usualRows; left > 0; left -= kMostRowsAtOnce) {
    if (state.stop.stop_requested() || !SkipRows(std::min(left, kMostRowsAtOnce))) return false;
  }
  return true;
}

bool JPEGDecoder::ReadRow(std::uint8_t* bgr) {
  State& state = *state_;
  if (state.usual) {
    if (state.stop.stop_requested()) return false;
    if (state.usual->ReadRow(static_cast<std::size_t>(state.usualRows), bgr)) {
      ++state.usualRows;
      return true;
    }
    if (state.stop.stop_requested() || !TurnToLibrary()) return false;
  }
  JSAMPROW row = state.HasInks() ? state.inks.data() : bgr;
  JDIMENSION rows = 0;
  const bool done = state.errors.Run([&] { rows = jpeg_read_scanlines(&state.codec, &row, 1); });
  if (!done || rows != 1) return false;
  // Files with the Adobe marker store the light that the ink leaves, all others the ink.
  if (state.HasInks()) InksToBGR(state.inks, state.codec.saw_Adobe_marker == FALSE, bgr);
  return state.IsWhole();
}

bool JPEGDecoder::SkipRows(std::int32_t count) {
  State& state = *state_;
  if (state.usual) {
    state.usualRows += count;
    return state.usualRows <= height();
  }
  if (!SkipsFromAnywhere(state.codec)) {
    const auto group = static_cast<JDIMENSION>(state.codec.max_v_samp_factor);
    state.unwanted.resize(static_cast<std::size_t>(width()) * 3);
    for (; count > 0 && state.codec.output_scanline % group != 0; --count) {
      if (!ReadRow(state.unwanted.data())) return false;
    }
  }
  const auto wanted = static_cast<JDIMENSION>(count);
  JDIMENSION rows = 0;
  const bool done = state.errors.Run([&] { rows = jpeg_skip_scanlines(&state.codec, wanted); });
  return done && rows == wanted && state.IsWhole();
}

// WantedDecoder checks the end of the data before it returns the bottom row. jpeg_finish_decompress is not called:
// it would free what IsWhole looks at.
bool JPEGDecoder::Finish() {
  State& state = *state_;
  if (state.usual) return state.usualRows == height();
  if (state.codec.output_scanline < state.codec.output_height) return false;
  const auto readToEnd = [&state] {
    while (jpeg_input_complete(&state.codec) == FALSE && jpeg_consume_input(&state.codec) != JPEG_SUSPENDED) {
    }
  };
  return state.RunPastReservedMarkers(readToEnd) && state.IsWhole();
}

}  // namespace vantorium::image
