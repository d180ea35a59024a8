// SPDX-License-Identifier: MIT
#pragma once

// Calls from library code into Python.

#include <memory>
#include <mutex>

namespace gravelox {

/// Serialises calls into Python callbacks; taken after the interpreter lock. Each import of the
/// module makes a new one.
extern std::shared_ptr<std::mutex> python_callback_mutex;

}  // namespace gravelox
