#include "core/file/XmlEncoding.h"

#include "env/Text.h"

#include <memory>
#include <string_view>

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

namespace vantorium::core {
namespace {

struct Encoding {
  std::string name;
  std::size_t markLength;
};

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

/// Returns the value of `encoding` in an XML declaration, empty without one.
std::string DeclaredEncoding(std::string_view bytes) {
  if (!bytes.starts_with("<?xml")) return {};
  const std::string_view declaration = bytes.substr(0, bytes.find("?>"));
  const auto name = declaration.find("encoding");
  if (name == std::string_view::npos) return {};
  const auto open = declaration.find_first_of("\"'", name);
  if (open == std::string_view::npos) return {};
  const auto close = declaration.find(declaration[open], open + 1);
  return std::string(declaration.substr(open + 1, close - open - 1));
}

Encoding EncodingOf(std::string_view bytes) {
  UErrorCode error = U_ZERO_ERROR;
  std::int32_t markLength = 0;
  const auto looked = static_cast<std::int32_t>(std::min<std::size_t>(bytes.size(), 16));
  const char* marked = ucnv_detectUnicodeSignature(bytes.data(), looked, &markLength, &error);
  if (marked != nullptr) return {marked, static_cast<std::size_t>(markLength)};
  if (bytes.starts_with(std::string_view("<\0?\0", 4))) return {"UTF-16LE", 0};
  if (bytes.starts_with(std::string_view("\0<\0?", 4))) return {"UTF-16BE", 0};
  return {DeclaredEncoding(bytes), 0};
}

bool IsUtf8(std::string_view name) {
  return name.empty() || env::EqualsIgnoringCase(name, "UTF-8") || env::EqualsIgnoringCase(name, "UTF8");
}

Converter StrictConverter(const std::string& name) {
  UErrorCode error = U_ZERO_ERROR;
  Converter converter(ucnv_open(name.c_str(), &error));
  if (U_FAILURE(error)) return nullptr;
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
  return U_FAILURE(error) ? nullptr : std::move(converter);
}

std::optional<std::string> Converted(std::string_view bytes, const std::string& encoding) {
  const Converter converter = StrictConverter(encoding);
  if (!converter) return std::nullopt;
  const auto size = static_cast<std::int32_t>(bytes.size());
  UErrorCode error = U_ZERO_ERROR;
  const auto length = ucnv_toAlgorithmic(UCNV_UTF8, converter.get(), nullptr, 0, bytes.data(), size, &error);
  if (U_FAILURE(error) && error != U_BUFFER_OVERFLOW_ERROR) return std::nullopt;
  error = U_ZERO_ERROR;
  std::string text(static_cast<std::size_t>(length), '\0');
  ucnv_toAlgorithmic(UCNV_UTF8, converter.get(), text.data(), length, bytes.data(), size, &error);
  return U_FAILURE(error) ? std::nullopt : std::optional(std::move(text));
}

}  // namespace

std::optional<std::string> DecodeXml(std::string bytes) {
  const Encoding encoding = EncodingOf(bytes);
  if (IsUtf8(encoding.name)) {
    bytes.erase(0, encoding.markLength);
    return bytes;
  }
  return Converted(std::string_view(bytes).substr(encoding.markLength), encoding.name);
}

}  // namespace vantorium::core
