// SPDX-License-Identifier: MIT
#include "common/solver_log.hpp"

#include <glog/logging.h>

#include <mutex>

namespace gravelox {

namespace {

std::mutex level_mutex;
int n_quiet = 0;
int loud_level = 0;

}  // namespace

quiet_solver_log::quiet_solver_log() {
  const std::lock_guard lock(level_mutex);
  if (n_quiet++ > 0) return;
  loud_level = FLAGS_minloglevel;
  FLAGS_minloglevel = google::GLOG_FATAL;
}

quiet_solver_log::~quiet_solver_log() {
  const std::lock_guard lock(level_mutex);
  if (--n_quiet == 0) FLAGS_minloglevel = loud_level;
}

}  // namespace gravelox
