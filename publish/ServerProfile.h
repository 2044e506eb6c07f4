#pragma once

#include "env/Text.h"
#include "publish/FTPOptions.h"

#include <cstdint>
#include <string>

namespace vantorium::publish {

/// Where to upload and as which user. The password is not part of it: it lives in the dialog of a run, for that run
/// only.
struct ServerProfile {
  std::string ServerName = {};  ///< as the user sees it in the list
  std::string ServerURL = {};   ///< host, without a scheme or a port
  std::string UserName = {};
  std::string IndexPath = {};  ///< the gallery's folder below the base directory, without slashes around it
  std::string IndexFile = {};  ///< name of the gallery index file
  std::int32_t TimeOut = 0;    ///< seconds; only kept for the file
  std::string JumpTo = {};     ///< base directory: changed to right after login, unless empty
  bool Passive = false;        ///< see FTPOptions
  bool Encrypted = false;
  std::string Fingerprint = {};  ///< of the certificate that the user accepted, as NormalizedFingerprint; may be empty

  bool operator==(const ServerProfile&) const = default;
};

[[nodiscard]] inline FTPOptions OptionsOf(const ServerProfile& profile) {
  return {.passive = profile.Passive, .encrypted = profile.Encrypted, .fingerprint = profile.Fingerprint};
}

/// Whether the profile is for anonymous FTP, whose password need not be hidden.
[[nodiscard]] inline bool IsAnonymous(const ServerProfile& profile) {
  return env::EqualsIgnoringCase(profile.UserName, "anonymous");
}

}  // namespace vantorium::publish
