#pragma once

#include "publish/ServerCertificate.h"

#include <openssl/types.h>

namespace vantorium::publish {

/// Reads what an X.509 certificate says. Sets no doubt: that is the verification's.
[[nodiscard]] ServerCertificate ReadCertificate(const X509& certificate);

}  // namespace vantorium::publish
