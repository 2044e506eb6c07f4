#include "tests/image/jpeg/WantedRows.h"

#include "image/JPEGDecoder.h"
#include "image/JPEGErrors.h"
#include "image/JPEGFile.h"
#include "image/jpeg/WantedDecoder.h"

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>

#include <fmt/format.h>
#include <sys/mman.h>
#include <unistd.h>

namespace vantorium::fakes {
namespace {

void KeepWanted(const std::vector<std::uint8_t>& columns, std::vector<std::uint8_t>& row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (columns[i / 3] == 0) row[i] = 0;
  }
}

template <typename ReadRow>
std::optional<WantedRows> ReadRows(const image::WantedPixels& wanted, ReadRow readRow) {
  WantedRows rows;
  for (std::size_t y = 0; y < wanted.rows.size(); ++y) {
    if (wanted.rows[y] == 0) continue;
    auto& row = rows[y];
    row.resize(wanted.columns.size() * 3);
    if (!readRow(y, row.data())) return {};
    KeepWanted(wanted.columns, row);
  }
  return rows;
}

std::optional<WantedRows> ReadBy(image::JPEGDecoder& decoder, const image::WantedPixels& wanted) {
  if (!decoder.Start()) return {};
  std::size_t next = 0;
  auto rows = ReadRows(wanted, [&](std::size_t y, std::uint8_t* row) {
    const auto skipped = static_cast<std::int32_t>(y - next);
    next = y + 1;
    return (skipped == 0 || decoder.SkipRows(skipped)) && decoder.ReadRow(row);
  });
  if (!rows || !decoder.Finish()) return {};
  return rows;
}

/// An open file whose header was read with libjpeg-turbo.
struct Header {
  explicit Header(const std::filesystem::path& path) {
    std::uint64_t size = 0;
    file = image::OpenRegularFile(path, size);
    codec.err = errors.Manager();
    isRead = file != nullptr && errors.Run([this] {
      jpeg_create_decompress(&codec);
      jpeg_stdio_src(&codec, file.get());
      jpeg_read_header(&codec, TRUE);
    });
  }
  ~Header() { jpeg_destroy_decompress(&codec); }
  Header(const Header&) = delete;
  Header& operator=(const Header&) = delete;

  [[nodiscard]] off_t DataPlace() const {
    return ::ftello(file.get()) - static_cast<off_t>(codec.src->bytes_in_buffer);
  }

  image::JPEGErrors errors;
  image::FileHandle file;
  jpeg_decompress_struct codec = {};
  bool isRead = false;
};

}  // namespace

MemoryFile::MemoryFile() : descriptor_(::memfd_create("test", MFD_CLOEXEC)) {}

std::filesystem::path MemoryFile::Write(std::string_view bytes) const {
  const int descriptor = descriptor_.Get();
  if (::ftruncate(descriptor, 0) != 0 || ::lseek(descriptor, 0, SEEK_SET) != 0 || !env::WriteAll(descriptor, bytes)) {
    throw std::runtime_error("no memory for a test file");
  }
  return fmt::format("/proc/self/fd/{}", descriptor);
}

image::WantedPixels SomePixels(std::int32_t width, std::int32_t height, unsigned number) {
  image::WantedPixels wanted(width, height);
  std::mt19937 generator(number);
  for (auto* marks : {&wanted.columns, &wanted.rows}) {
    for (auto& mark : *marks) mark = generator() % (number + 1) == 0 ? 1 : 0;
  }
  wanted.rows.back() = 1;
  return wanted;
}

std::optional<WantedRows> ReadByLibrary(const std::filesystem::path& file, const image::WantedPixels& wanted) {
  image::JPEGDecoder decoder;
  if (!decoder.Open(file)) return {};
  return ReadBy(decoder, wanted);
}

std::optional<WantedRows> ReadAsWanted(const std::filesystem::path& file, const image::WantedPixels& wanted) {
  image::JPEGDecoder decoder;
  if (!decoder.Open(file)) return {};
  decoder.Want(wanted);
  return ReadBy(decoder, wanted);
}

std::optional<WantedRows> ReadAlone(const std::filesystem::path& file, const image::WantedPixels& wanted) {
  const Header header(file);
  if (!header.isRead) return {};
  const auto decoder =
      image::jpeg::WantedDecoder::For(header.codec, ::fileno(header.file.get()), header.DataPlace(), wanted, {});
  if (decoder == nullptr) return {};
  return ReadRows(wanted, [&](std::size_t y, std::uint8_t* row) { return decoder->ReadRow(y, row); });
}

}  // namespace vantorium::fakes
