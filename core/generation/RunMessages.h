#pragma once

#include <string>

namespace vantorium::generation {

// The messages about files that a run cannot make or read. A path is the source file's, except where a page is meant,
// and in its surface form.

[[nodiscard]] std::string UnableToCopy(const std::string& source);
/// The copy from which an image is sent to a server.
[[nodiscard]] std::string UnableToCopyTemporarily(const std::string& source);
[[nodiscard]] std::string UnableToCreateThumbnail(const std::string& source);
/// `page`: its path, here or on the server.
[[nodiscard]] std::string UnableToCreatePage(const std::string& page);
/// The folder to upload.
[[nodiscard]] std::string UnableToReadFolder(const std::string& folder);

}  // namespace vantorium::generation
