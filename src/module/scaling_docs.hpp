// SPDX-License-Identifier: MIT
#pragma once

namespace gravelox::docs {

constexpr auto dist_pair = "To be written.";
constexpr auto dist_pair_init = "To be written.";
constexpr auto dist_pair_i = "To be written.";
constexpr auto dist_pair_j = "To be written.";
constexpr auto dist_pair_d = "To be written.";
constexpr auto create_sparse_dist_matrix = "To be written.";
constexpr auto create_minimum_spanning_tree = "To be written.";
constexpr auto flood_fill_using_ball = "To be written.";
constexpr auto create_random_dense_set = "To be written.";
constexpr auto compute_geodesics = "To be written.";
constexpr auto compute_geodesic_based_distance_matrix = "To be written.";
constexpr auto dense_mds = "To be written.";
constexpr auto sparse_mds = "To be written.";
constexpr auto mds_using_random_search = "To be written.";

}  // namespace gravelox::docs
