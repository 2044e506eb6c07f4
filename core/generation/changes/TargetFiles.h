#pragma once

#include "core/generation/RunOrder.h"
#include "core/generation/RunState.h"
#include "core/generation/changes/RunRecord.h"
#include "publish/mFTP.h"

namespace vantorium::generation {

/// The files at a run's target. Names are relative to its folder, with slashes.
class TargetFiles {
 public:
  virtual ~TargetFiles() = default;

  [[nodiscard]] virtual bool IsServer() const = 0;
  /// Whether the file is there as a run left it.
  [[nodiscard]] virtual bool IsAsLeft(const std::string& name, const MadeFile& file) = 0;
  /// Completes what is known of a file that was just delivered. Returns false if it is not certain to be there.
  [[nodiscard]] virtual bool Look(const std::string& name, MadeFile& file) = 0;
  /// Removes a file. Returns false if that fails.
  [[nodiscard]] virtual bool Remove(const std::string& name) = 0;
};

/// Those in the output folder. A file is as it was left if its stamp is the same.
class LocalFiles : public TargetFiles {
 public:
  explicit LocalFiles(const RunState& run) : run_(run) {}

  [[nodiscard]] bool IsServer() const override { return false; }
  [[nodiscard]] bool IsAsLeft(const std::string& name, const MadeFile& file) override;
  [[nodiscard]] bool Look(const std::string& name, MadeFile& file) override;
  [[nodiscard]] bool Remove(const std::string& name) override;

 private:
  const RunState& run_;
};

/// Those on the server. A file is as it was left if it has the same size.
class ServerFiles : public TargetFiles {
 public:
  ServerFiles(const RunOrder& order, publish::mFTP& ftp) : order_(order), ftp_(ftp) {}

  [[nodiscard]] bool IsServer() const override { return true; }
  [[nodiscard]] bool IsAsLeft(const std::string& name, const MadeFile& file) override;
  [[nodiscard]] bool Look(const std::string& name, MadeFile& file) override;
  [[nodiscard]] bool Remove(const std::string& name) override;

 private:
  const RunOrder& order_;
  publish::mFTP& ftp_;
};

}  // namespace vantorium::generation
