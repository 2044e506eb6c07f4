#pragma once

namespace vantorium::env {

/// Replaces each standard stream that is closed with one that can be neither read nor written. Otherwise the next file
/// that the program opens would get the stream's number, and messages would be written into it. Call before any file is
/// opened.
void HoldStandardStreams();

}  // namespace vantorium::env
