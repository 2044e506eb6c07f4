#include "core/generation/changes/Changes.h"

#include "core/generation/changes/UnusedFiles.h"

namespace vantorium::generation {
namespace {

std::unique_ptr<TargetFiles> FilesAt(const RunState& run, const RunOrder& order, const RunEnvironment& environment) {
  if (SendsToServer(order.Mode)) return std::make_unique<ServerFiles>(order, *environment.ftp);
  return std::make_unique<LocalFiles>(run);
}

}  // namespace

Changes::Changes(const RunState& run, const RunOrder& order, const RunEnvironment& environment)
    : file_(environment.cacheFolder, order, environment.paths),
      there_(FilesAt(run, order, environment)),
      known_(file_.Read(), *there_, file_.Gallery()) {
  if (there_->IsServer()) file_.Remove();
}

PhaseResult Changes::FindUnused(const RunContext& context) {
  return TellUnusedFiles(context, known_);
}

void ForgetServer(const RunOrder& order, const RunEnvironment& environment) {
  if (SendsToServer(order.Mode)) RecordFile(environment.cacheFolder, order, environment.paths).Remove();
}

}  // namespace vantorium::generation
