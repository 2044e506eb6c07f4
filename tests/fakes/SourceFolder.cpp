#include "tests/fakes/SourceFolder.h"

namespace vantorium::fakes {

// The macro is defined for this file only, so that the compiler cache serves all other files of a checkout in another
// folder.
std::filesystem::path SourceFolder() {
  return VANTORIUM_SOURCE_DIR;
}

}  // namespace vantorium::fakes
