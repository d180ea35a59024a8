// SPDX-License-Identifier: MIT
#include "common/report.hpp"

#include <iostream>
#include <mutex>

namespace gravelox {

namespace {

std::mutex stream_mutex;

void print(std::ostream& stream, const std::string& line) { stream << line + '\n' << std::flush; }

}  // namespace

void print_to_output(const std::string& line) {
  const std::lock_guard lock(stream_mutex);
  print(std::cout, line);
}

void print_to_error(const std::string& line) {
  const std::lock_guard lock(stream_mutex);
  print(std::cerr, line);
}

void print_to_both(const std::string& line) {
  const std::lock_guard lock(stream_mutex);
  print(std::cout, line);
  print(std::cerr, line);
}

}  // namespace gravelox
