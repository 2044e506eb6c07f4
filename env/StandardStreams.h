#pragma once

namespace vantorium {

/// Puts something in the place of each of the three standard streams that is closed: it can neither be read nor
/// written. Without it the next file that the program opens would get the stream's number, and messages would be
/// written into it. To be called before any file is opened.
void HoldStandardStreams();

}  // namespace vantorium
