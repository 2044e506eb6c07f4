#include "env/RuntimeFailure.h"

namespace vantorium::env {
namespace {

TEST(RuntimeFailure, EachKindHasItsNumberAndDescription) {
  struct Case {
    FailureKind kind;
    std::int32_t number;
    const char* description;
  };
  const Case cases[] = {{FailureKind::FileTimeNotFound, 1, "Application-defined or object-defined error"},
                        {FailureKind::InvalidArgument, 5, "Invalid procedure call or argument"},
                        {FailureKind::Overflow, 6, "Overflow"},
                        {FailureKind::SubscriptOutOfRange, 9, "Subscript out of range"},
                        {FailureKind::DivisionByZero, 11, "Division by zero"},
                        {FailureKind::TypeMismatch, 13, "Type mismatch"},
                        {FailureKind::FileNotFound, 53, "File not found"},
                        {FailureKind::FileAccess, 75, "Path/File access error"},
                        {FailureKind::JPEGLibrary, 26001, "The JPEG library reported an error"},
                        {FailureKind::IndexOutOfBounds, 35600, "Index out of bounds"},
                        {FailureKind::Preferences, -2147221503, "A preference could not be read or written"}};
  for (const auto& [kind, number, description] : cases) {
    const RuntimeFailure failure(kind);
    EXPECT_EQ(failure.Number(), number);
    EXPECT_EQ(failure.Description(), description) << number;
  }
}

TEST(RuntimeFailure, AGivenDescriptionReplacesTheDescriptionOfTheKind) {
  const RuntimeFailure failure(FailureKind::FileAccess, "disk full");
  EXPECT_EQ(failure.Number(), 75);
  EXPECT_EQ(failure.Description(), "disk full");
  EXPECT_STREQ(failure.what(), "disk full");
}

TEST(RuntimeFailure, AnUnknownKindHasTheGeneralDescription) {
  EXPECT_EQ(RuntimeFailure(static_cast<FailureKind>(4711)).Description(),
            "Application-defined or object-defined error");
}

}  // namespace
}  // namespace vantorium::env
