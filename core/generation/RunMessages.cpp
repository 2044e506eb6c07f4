#include "core/generation/RunMessages.h"

namespace vantorium::generation {

std::string UnableToCopy(const std::string& source) {
  return "Unable to copy the File \"" + source + "\".";
}

std::string UnableToCopyTemporarily(const std::string& source) {
  return "Unable to create temporary Copy of the File \"" + source + "\".";
}

std::string UnableToCreateThumbnail(const std::string& source) {
  return "Unable to create Thumbnail for \"" + source + "\".";
}

std::string UnableToCreatePage(const std::string& page) {
  return "Unable to create the File \"" + page + "\".";
}

std::string UnableToReadFolder(const std::string& folder) {
  return "The folder \"" + folder + "\" cannot be read.";
}

}  // namespace vantorium::generation
