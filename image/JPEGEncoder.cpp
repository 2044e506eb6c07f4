#include "image/JPEGEncoder.h"

#include "env/RuntimeFailure.h"
#include "image/JPEGErrors.h"

#include <array>
#include <exception>
#include <string_view>
#include <utility>

#include <jerror.h>

namespace vantorium::image {

struct JPEGEncoder::State {
  ~State() { jpeg_destroy_compress(&codec); }

  void Start(std::int32_t width, std::int32_t height, std::int32_t quality);
  void Check(bool done) const;

  [[nodiscard]] bool AppendBlock(std::size_t size) noexcept;
  void OfferBlock();
  static State& Of(j_compress_ptr codec) { return *static_cast<State*>(codec->client_data); }
  static void AppendOrGiveUp(j_compress_ptr codec, std::size_t size);

  JPEGErrors errors;
  jpeg_compress_struct codec = {};
  jpeg_destination_mgr destination = {};
  std::array<JOCTET, 32768> block = {};  // filled by libjpeg-turbo
  std::string bytes;                     // all blocks filled before
};

// Exceptions must not propagate through libjpeg-turbo.
bool JPEGEncoder::State::AppendBlock(std::size_t size) noexcept {
  try {
    bytes.append(reinterpret_cast<const char*>(block.data()), size);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void JPEGEncoder::State::AppendOrGiveUp(j_compress_ptr codec, std::size_t size) {
  if (!Of(codec).AppendBlock(size)) ERREXIT1(codec, JERR_OUT_OF_MEMORY, 0);
}

void JPEGEncoder::State::OfferBlock() {
  destination.next_output_byte = block.data();
  destination.free_in_buffer = block.size();
}

void JPEGEncoder::State::Start(std::int32_t width, std::int32_t height, std::int32_t quality) {
  codec.err = errors.Manager();
  codec.client_data = this;
  jpeg_create_compress(&codec);
  destination.init_destination = [](j_compress_ptr writer) { Of(writer).OfferBlock(); };
  destination.empty_output_buffer = [](j_compress_ptr writer) -> boolean {
    AppendOrGiveUp(writer, Of(writer).block.size());
    Of(writer).OfferBlock();
    return TRUE;
  };
  destination.term_destination = [](j_compress_ptr writer) {
    AppendOrGiveUp(writer, Of(writer).block.size() - Of(writer).destination.free_in_buffer);
  };
  codec.dest = &destination;
  codec.image_width = static_cast<JDIMENSION>(width);
  codec.image_height = static_cast<JDIMENSION>(height);
  codec.input_components = 3;
  codec.in_color_space = JCS_EXT_BGR;
  jpeg_set_defaults(&codec);
  codec.dct_method = JDCT_ISLOW;
  jpeg_set_quality(&codec, quality, TRUE);
  jpeg_start_compress(&codec, TRUE);
}

void JPEGEncoder::State::Check(bool done) const {
  if (!done) throw env::RuntimeFailure(env::FailureKind::JPEGLibrary, "Failed to save to JPG " + errors.Text());
}

JPEGEncoder::JPEGEncoder(std::int32_t width, std::int32_t height, std::int32_t quality)
    : state_(std::make_unique<State>()) {
  State& state = *state_;
  state.Check(state.errors.Run([&] { state.Start(width, height, quality); }));
}

JPEGEncoder::~JPEGEncoder() = default;

void JPEGEncoder::WriteRow(const std::uint8_t* bgr) {
  State& state = *state_;
  // libjpeg-turbo only reads the row; its type lacks const.
  JSAMPROW row = const_cast<JSAMPROW>(bgr);
  state.Check(state.errors.Run([&] { jpeg_write_scanlines(&state.codec, &row, 1); }));
}

std::string JPEGEncoder::Finish() {
  State& state = *state_;
  state.Check(state.errors.Run([&state] { jpeg_finish_compress(&state.codec); }));
  return std::move(state.bytes);
}

}  // namespace vantorium::image
