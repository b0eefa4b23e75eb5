#pragma once

#include <functional>

namespace Glyphor {

// Runs work that may fail, and has the interface show its failure. False where it failed or was
// stopped.
bool Guarded(const std::function<void()>& work);

} // namespace Glyphor
