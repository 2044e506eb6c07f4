#pragma once

#include "core/ImageListOperations.h"

#include <string>

namespace vantorium {

/// The question for a new name of the current image or of all.
class RenameModel {
 public:
  /// The text of the field, as TypedName makes it.
  void SetNameBase(const std::string& nameBase);
  [[nodiscard]] const std::string& NameBase() const { return nameBase_; }
  [[nodiscard]] bool CanAccept() const { return !nameBase_.empty(); }
  void Accept() { accepted_ = true; }
  void Cancel() { accepted_ = false; }

  /// The field's text once it was accepted, else kNoNameBase.
  [[nodiscard]] std::string GetNameBase() const { return accepted_ ? nameBase_ : kNoNameBase; }
  [[nodiscard]] RenameScope Scope() const { return RenameAll ? RenameScope::AllImages : RenameScope::CurrentImage; }

  bool RenameAll = false;

 private:
  std::string nameBase_;
  bool accepted_ = false;
};

}  // namespace vantorium
