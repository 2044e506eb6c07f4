#include "core/generation/changes/ChangedUploads.h"

#include "core/generation/changes/GalleryNames.h"
#include "publish/FTPPath.h"

namespace vantorium::generation {

bool ChangedUploads::FTPCopyFile(const std::string& localPath, const std::string& remotePath, bool overwrite) {
  const std::string folder = publish::RelativeToSession(order_.RemoteFolder);
  const std::string name = NameInGallery(remotePath.substr(std::min(folder.size(), remotePath.size())));
  const Delivery delivery = known_.Copy(name, paths_.ToNative(localPath), [&]() -> Delivery {
    if (inner_.FTPCopyFile(localPath, remotePath, overwrite)) return {};
    return Refusal{};
  });
  return !delivery;
}

}  // namespace vantorium::generation
