#include "env/FileOutput.h"

#include "env/NeighbourFile.h"

namespace vantorium {

void WriteFileWhole(const std::filesystem::path& target, std::string_view bytes, Durability durability) {
  NeighbourFile file(target);
  file.TakeTargetPermissions();
  file.Write(bytes);
  if (durability == Durability::Synced) file.Sync();
  file.TakeTargetName();
}

}  // namespace vantorium
