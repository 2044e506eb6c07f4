#include "env/RuntimeFailure.h"

#include <utility>

namespace vantorium::env {
namespace {

constexpr std::pair<FailureKind, const char*> kDescriptions[] = {
    {FailureKind::FileTimeNotFound, "Application-defined or object-defined error"},
    {FailureKind::InvalidArgument, "Invalid procedure call or argument"},
    {FailureKind::Overflow, "Overflow"},
    {FailureKind::OutOfMemory, "Out of memory"},
    {FailureKind::SubscriptOutOfRange, "Subscript out of range"},
    {FailureKind::DivisionByZero, "Division by zero"},
    {FailureKind::TypeMismatch, "Type mismatch"},
    {FailureKind::FileNotFound, "File not found"},
    {FailureKind::FileAccess, "Path/File access error"},
    {FailureKind::JPEGLibrary, "The JPEG library reported an error"},
    {FailureKind::IndexOutOfBounds, "Index out of bounds"},
    {FailureKind::Preferences, "A preference could not be read or written"},
};

const char* DescriptionOf(FailureKind kind) {
  for (const auto& [candidate, text] : kDescriptions) {
    if (candidate == kind) return text;
  }
  return "Application-defined or object-defined error";
}

}  // namespace

RuntimeFailure::RuntimeFailure(FailureKind kind) : RuntimeFailure(kind, DescriptionOf(kind)) {}

RuntimeFailure::RuntimeFailure(FailureKind kind, const std::string& description)
    : std::runtime_error(description), number_(static_cast<std::int32_t>(kind)) {}

}  // namespace vantorium::env
