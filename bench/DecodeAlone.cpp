// Only decodes JPEG files with libjpeg-turbo: every row, as red, green, blue. The baseline that a run is compared with.
// Usage: bench_decode_alone FILE...

#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace {

bool DecodeAlone(const char* path) {
  std::FILE* file = std::fopen(path, "rb");
  if (file == nullptr) return false;
  jpeg_error_mgr errors;
  jpeg_decompress_struct codec;
  codec.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&codec);
  jpeg_stdio_src(&codec, file);
  jpeg_read_header(&codec, TRUE);
  codec.out_color_space = JCS_RGB;
  jpeg_start_decompress(&codec);
  std::vector<JSAMPLE> row(static_cast<std::size_t>(codec.output_width) * 3);
  JSAMPROW rows[] = {row.data()};
  while (codec.output_scanline < codec.output_height) jpeg_read_scanlines(&codec, rows, 1);
  jpeg_finish_decompress(&codec);
  jpeg_destroy_decompress(&codec);
  return std::fclose(file) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (!DecodeAlone(argv[i])) return 1;
  }
  return 0;
}
