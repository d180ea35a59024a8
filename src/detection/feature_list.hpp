// SPDX-License-Identifier: MIT
#pragma once

// What points carry beside their location, such as colours.

#include <Eigen/Core>
#include <vector>

namespace gravelox {

/// The features of each point, in one unit and all of one length, which may be 0.
using feature_list = std::vector<Eigen::VectorXd>;

}  // namespace gravelox
