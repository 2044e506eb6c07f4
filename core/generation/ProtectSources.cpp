#include "core/generation/ProtectSources.h"

#include "core/generation/OutputNaming.h"
#include "core/generation/RunOutputs.h"

namespace vantorium::generation {
namespace {

RunPlan PlanOf(const RunContext& context) {
  return {context.run, context.order, context.target.MayAskAhead() ? &context.target : nullptr};
}

PhaseResult Check(const RunContext& context, const FileSet& sources, const std::vector<Output>& outputs) {
  for (const Output& output : outputs) {
    if (!sources.WouldLoseOneTo(output)) continue;
    return context.Fail("File Error", output.failure + "  It would replace \"" + context.run.Shown(output.path) +
                                          "\", which this Gallery is made from.");
  }
  return kGoOn;
}

/// Gives the event loop a turn every so often: checking the files of a long list takes a while.
PhaseResult Pause(const RunContext& context, std::int32_t number) {
  constexpr std::int32_t kPauseEvery = 1000;
  if (number % kPauseEvery == 0 && context.Cancelled()) return RunEnd::Cancelled;
  return kGoOn;
}

PhaseResult FindSources(const RunContext& context, FileSet& sources) {
  const RunState& run = context.run;
  sources.AddSharedSources();
  for (std::int32_t number = 1; number <= run.ImageCount; ++number) {
    if (auto end = Pause(context, number)) return end;
    sources.Add(run.Info(number).Path);
  }
  return kGoOn;
}

PhaseResult CheckImages(const RunContext& context, const FileSet& sources) {
  for (std::int32_t number = 1; number <= context.run.ImageCount; ++number) {
    if (auto end = Pause(context, number)) return end;
    if (auto end = Check(context, sources, OutputsOfImage(PlanOf(context), number))) return end;
  }
  return kGoOn;
}

PhaseResult CheckPages(const RunContext& context, const FileSet& sources) {
  const RunState& run = context.run;
  if (!context.order.CreateHTML) return kGoOn;
  if (auto end = Check(context, sources, {PageOutput(run, run.IndexFileName)})) return end;
  for (std::int32_t page = 1; page <= run.ThumbnailPageCount; ++page) {
    if (auto end = Pause(context, page)) return end;
    if (auto end = Check(context, sources, {PageOutput(run, ThumbnailPageName(run.project, page))})) return end;
  }
  return kGoOn;
}

}  // namespace

PhaseResult ProtectSources(const RunContext& context) {
  FileSet sources(context.run);
  if (auto end = FindSources(context, sources)) return end;
  if (auto end = CheckImages(context, sources)) return end;
  if (auto end = Check(context, sources, AuxiliaryOutputs(context.run))) return end;
  return CheckPages(context, sources);
}

}  // namespace vantorium::generation
