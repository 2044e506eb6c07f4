#pragma once

#include "core/Ports.h"
#include "core/Project.h"
#include "core/generation/RunOrder.h"
#include "core/generation/RunState.h"

namespace vantorium::generation {

/// Returns the state in which a run begins: nothing is known of its images, and its folders are not set. It refers to
/// the project and the ports.
[[nodiscard]] RunState StateOf(const core::Project& project, const RunOrder& order, const core::Ports& ports);

/// Sets the folders of the pictures, as URLs and as paths.
void SetFolders(RunState& run);

}  // namespace vantorium::generation
