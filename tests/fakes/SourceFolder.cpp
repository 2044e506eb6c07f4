#include "tests/fakes/SourceFolder.h"

namespace vantorium::fakes {

// The macro is defined for this file alone: a checkout in another folder then finds all other objects in the compiler
// cache.
std::filesystem::path SourceFolder() {
  return VANTORIUM_SOURCE_DIR;
}

}  // namespace vantorium::fakes
