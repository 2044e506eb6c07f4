#include "image/JPEG.h"

#include "env/FileOutput.h"
#include "env/RuntimeFailure.h"
#include "image/JPEGDecoder.h"
#include "image/JPEGEncoder.h"

namespace vantorium::image {
namespace {

[[noreturn]] void FailToSave(const std::string& reason) {
  throw env::RuntimeFailure(env::FailureKind::JPEGLibrary, "Failed to save to JPG " + reason);
}

}  // namespace

bool ReadJPEGSize(const std::filesystem::path& file, std::int32_t& width, std::int32_t& height) {
  JPEGDecoder decoder;
  if (!decoder.Open(file)) return false;
  width = decoder.width();
  height = decoder.height();
  return true;
}

bool LoadJPEGImage(cDIBSection& dib, const std::filesystem::path& file) {
  JPEGDecoder decoder;
  if (!decoder.Open(file)) return false;
  dib.ClearUp();
  if (!decoder.IsPlausible() || !dib.Create(decoder.width(), decoder.height()) || !decoder.Start()) return false;
  for (std::int32_t row = dib.height() - 1; row >= 0; --row) {
    if (!decoder.ReadRow(dib.Row(row))) return false;
  }
  return decoder.Finish();
}

std::string EncodeJPEG(const cDIBSection& dib, std::int32_t quality) {
  if (dib.DIBSectionBitsPtr() == nullptr) FailToSave("(no image)");
  JPEGEncoder encoder(dib.width(), dib.height(), quality);
  for (std::int32_t row = dib.height() - 1; row >= 0; --row) encoder.WriteRow(dib.Row(row));
  return encoder.Finish();
}

void WriteJPEGFile(const std::filesystem::path& file, std::string_view jpeg) {
  try {
    env::WriteFileWhole(file, jpeg);
  } catch (const env::RuntimeFailure& failure) {
    FailToSave(failure.Description());
  }
}

void SaveJPEGImage(const cDIBSection& dib, const std::filesystem::path& file, std::int32_t quality) {
  WriteJPEGFile(file, EncodeJPEG(dib, quality));
}

}  // namespace vantorium::image
