#pragma once

namespace vantorium::publish {

/// Whether the user has confirmed a cancel of the current run.
class CancelState {
 public:
  virtual ~CancelState() = default;
  [[nodiscard]] virtual bool CancelRequested() const = 0;
};

}  // namespace vantorium::publish
