#pragma once

#include "core/ImageListOperations.h"

#include <string>

namespace vantorium::ui {

/// The dialog that asks for a new name for the current image or for all.
class RenameModel {
 public:
  /// Sets the text of the field, converted by TypedName.
  void SetNameBase(const std::string& nameBase);
  [[nodiscard]] const std::string& NameBase() const { return nameBase_; }
  [[nodiscard]] bool CanAccept() const { return !nameBase_.empty(); }
  void Accept() { accepted_ = true; }
  void Cancel() { accepted_ = false; }

  /// Returns the field's text if it was accepted, else kNoNameBase.
  [[nodiscard]] std::string GetNameBase() const { return accepted_ ? nameBase_ : core::kNoNameBase; }
  [[nodiscard]] core::RenameScope Scope() const {
    return RenameAll ? core::RenameScope::AllImages : core::RenameScope::CurrentImage;
  }

  bool RenameAll = false;

 private:
  std::string nameBase_;
  bool accepted_ = false;
};

}  // namespace vantorium::ui
