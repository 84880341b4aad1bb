#pragma once

#include <functional>

#include "batch/Console.h"
#include "recipes/RunError.h"

namespace vorlan {

/// The worse of two ends.
ExitStatus worse(ExitStatus a, ExitStatus b);

/// Runs the task, says on err what it threw, and returns how it ended.
ExitStatus guarded(Console& console, const std::function<void(Console&)>& task);

/// Runs task(i) for i in 0..count-1, each in a process of its own, up to jobs of them at a time, and returns the worst
/// end. What they write to err is passed on by whole lines as it comes, what they write to out in the order of the
/// tasks. No toolkit may run in this process yet.
ExitStatus runInProcesses(int count, int jobs, Console& console, const std::function<void(int, Console&)>& task);

}  // namespace vorlan
