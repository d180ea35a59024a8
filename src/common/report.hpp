// SPDX-License-Identifier: MIT
#pragma once

// Progress of long runs on the standard streams of the process (not on Python's sys.stdout).

#include <string>

namespace gravelox {

/// Writes a line and its end in one go, also from several threads, and flushes: to the standard
/// output, to the standard error, or to the one and then the other.
void print_to_output(const std::string& line);
void print_to_error(const std::string& line);
void print_to_both(const std::string& line);

}  // namespace gravelox
