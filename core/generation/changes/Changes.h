#pragma once

#include "core/generation/RunContext.h"
#include "core/generation/changes/KnownFiles.h"
#include "core/generation/changes/RecordFile.h"
#include "core/generation/changes/TargetFiles.h"

#include <memory>

namespace vantorium::generation {

/// What a run with OnlyChanges keeps beside its state: the record of its target, which it reads and then writes.
///
/// A local file is believed only with the stamp that the record has. A server tells no more than a size, so whatever
/// may change files there without a record of it, a run that is killed or one without OnlyChanges, must leave none.
class Changes {
 public:
  /// Reads the record; that of a server is removed until Save.
  Changes(const RunState& run, const RunOrder& order, const RunEnvironment& environment);

  [[nodiscard]] KnownFiles& Known() { return known_; }
  /// Lists the files of earlier runs that nothing uses any more, or removes them if the order says so, and tells the
  /// user. The last step of a run. Returns Cancelled if the user cancels it.
  [[nodiscard]] PhaseResult FindUnused(const RunContext& context);
  /// Writes the record. Call at every end of the run.
  void Save() const { file_.Write(known_.Files()); }

 private:
  RecordFile file_;
  std::unique_ptr<TargetFiles> there_;
  KnownFiles known_;
};

/// Removes the record of the server that a run without OnlyChanges sends to.
void ForgetServer(const RunOrder& order, const RunEnvironment& environment);

}  // namespace vantorium::generation
