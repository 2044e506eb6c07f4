#include "tests/fakes/SourceFolder.h"

namespace vantorium::fakes {

// The macro is defined for this file only, so that a checkout in another folder finds all other objects in the compiler
// cache.
std::filesystem::path SourceFolder() {
  return VANTORIUM_SOURCE_DIR;
}

}  // namespace vantorium::fakes
