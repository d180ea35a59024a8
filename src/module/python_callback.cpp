// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/python_callback.hpp"

namespace gravelox {

std::shared_ptr<std::mutex> python_callback_mutex;

}  // namespace gravelox
