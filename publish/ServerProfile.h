#pragma once

#include "env/Text.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// Where to upload and as whom. There is no password in it: that one lives in the dialog of a run, for the run.
struct ServerProfile {
  std::string ServerName = {};  ///< as the user sees it in the list
  std::string ServerURL = {};   ///< host, without a scheme or a port
  std::string UserName = {};
  std::string IndexPath = {};  ///< the gallery's folder below the base directory, without slashes around it
  std::string IndexFile = {};  ///< name of the gallery index file
  std::int32_t TimeOut = 0;    ///< seconds; kept for the file's sake only
  std::string JumpTo = {};     ///< base directory: changed to right after login, unless empty

  bool operator==(const ServerProfile&) const = default;
};

/// Whether the profile is one for everybody, whose password need not be hidden.
[[nodiscard]] inline bool IsAnonymous(const ServerProfile& profile) {
  return EqualsIgnoringCase(profile.UserName, "anonymous");
}

}  // namespace vantorium
