#pragma once

#include "core/generation/SourceStamp.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium::generation {

/// Instead of a gallery: several galleries in the same folder have used the file.
inline constexpr std::string_view kSharedFile = "shared";

/// What is known of a file that a run made at its target.
struct MadeFile {
  std::uint64_t size = 0;              ///< in bytes
  std::optional<SourceStamp> stamp{};  ///< of the file as the run left it; nullopt on a server
  std::string origin{};                ///< digest of all that decides its bytes (PictureOrigins.h); may be empty
  std::string bytes{};                 ///< digest of its bytes; may be empty
  std::string gallery{};               ///< digest that tells the gallery it belongs to, or kSharedFile

  bool operator==(const MadeFile&) const = default;
};

/// The files that runs made at one target, by their names relative to the target's folder, with slashes.
using MadeFiles = std::map<std::string, MadeFile, std::less<>>;

/// The folder or the server that a record is about, and the program whose runs it is about: each a text in one line.
struct RecordSubject {
  std::string target;
  std::string program;
};

/// Returns the text of a record, which ReadRunRecord reads:
///
///     vantorium record 2
///     program PROGRAM
///     target TARGET
///     SIZE STAMP ORIGIN BYTES GALLERY NAME        for each file, in the order of their names
///     end DIGEST
///
/// SIZE is a decimal number. STAMP is "-" or device:inode:size:writeTime:changeTime. ORIGIN and BYTES are digests or
/// "-", GALLERY is a digest or "shared". In PROGRAM, TARGET and NAME "%", CR and LF are "%25", "%0D" and "%0A". DIGEST
/// is that of all lines before. Each line ends with LF.
[[nodiscard]] std::string RunRecordText(const MadeFiles& files, const RecordSubject& subject);

/// Returns the files of a record. Those of another program are known by size and stamp alone, because it may have made
/// other bytes of the same origin. Returns no files if the text is not that of a whole record about the target.
[[nodiscard]] MadeFiles ReadRunRecord(std::string_view text, const RecordSubject& subject);

}  // namespace vantorium::generation
