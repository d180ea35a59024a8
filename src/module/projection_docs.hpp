// SPDX-License-Identifier: MIT
#pragma once

namespace gravelox::docs {

constexpr auto project_point = "To be written.";
constexpr auto project_list = "To be written.";
constexpr auto idw_projection = "To be written.";
constexpr auto idw_projection_init = "To be written.";
constexpr auto gaussian_mixture_projection = "To be written.";
constexpr auto gaussian_mixture_projection_init = "To be written.";
constexpr auto ok_projection = "To be written.";
constexpr auto ok_projection_init = "To be written.";
constexpr auto mds_projection = "To be written.";
constexpr auto mds_projection_init = "To be written.";
constexpr auto optimized_projection = "To be written.";
constexpr auto optimized_projection_init = "To be written.";
constexpr auto optimized_projection_centers = "To be written.";
constexpr auto optimized_projection_scales = "To be written.";
constexpr auto optimized_projection_weights = "To be written.";
constexpr auto optimized_projection_optimize = "To be written.";
constexpr auto projection = "To be written.";
constexpr auto projection_init = "To be written.";
constexpr auto projection_serialize = "To be written.";
constexpr auto projection_forward = "To be written.";
constexpr auto projection_forward_list = "To be written.";
constexpr auto isomorphism = "To be written.";
constexpr auto isomorphism_init = "To be written.";
constexpr auto isomorphism_init_of_projections = "To be written.";
constexpr auto isomorphism_serialize = "To be written.";
constexpr auto isomorphism_forward = "To be written.";
constexpr auto isomorphism_forward_list = "To be written.";
constexpr auto isomorphism_backward = "To be written.";
constexpr auto isomorphism_backward_list = "To be written.";
constexpr auto isomorphism_parameters = "To be written.";
constexpr auto isomorphism_parameters_init = "To be written.";
constexpr auto optimize_projection = "To be written.";
constexpr auto optimize_isomorphism = "To be written.";
constexpr auto optimize_isomorphism_by_parameters = "To be written.";

}  // namespace gravelox::docs
