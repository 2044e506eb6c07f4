#pragma once

namespace vantorium::image::jpeg {

// The second bytes of markers (ITU-T T.81, table B.1). The first one is always FF.
inline constexpr int kMarkerPrefix = 0xFF;
inline constexpr int kHuffmanTables = 0xC4;
inline constexpr int kFirstRestart = 0xD0;
inline constexpr int kStartOfImage = 0xD8;
inline constexpr int kEndOfImage = 0xD9;
inline constexpr int kStartOfScan = 0xDA;
inline constexpr int kFirstApplication = 0xE0;
inline constexpr int kLastApplication = 0xEF;
inline constexpr int kComment = 0xFE;

}  // namespace vantorium::image::jpeg
