#pragma once

#include <functional>

namespace archive
{

/// How many processors this process may use.
unsigned processorCount();

/// Runs the work on the calling thread and on one more thread for each other processor, and waits
/// for all of them. Fewer threads if the system gives no more. The ending signals stay with the
/// calling thread. The first exception of any thread is thrown again here; before that `stop` is
/// called once, so that the others end soon.
void onAllProcessors(const std::function<void()> &work, const std::function<void()> &stop);

} // namespace archive
