// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/families.hpp"
#include "module/grid_defaults.hpp"
#include "module/grid_docs.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/drillholes.hpp"
#include "spatial/grid.hpp"

namespace gravelox {

namespace {

using py::arg;

py::arg_v default_deformation() {
  return {"deformation", Ellipsoid(1, 1, 1, 0, 0, 0), "Ellipsoid(1, 1, 1, 0, 0, 0)"};
}

void bind_cartesian_grid(py::class_<CartesianGrid>& grid) {
  using by_indices = location (CartesianGrid::*)(int, int, int) const;
  using by_id = location (CartesianGrid::*)(int) const;
  grid.def(py::init<const location&, const cell_triple&, const location&, const location&>(),
           arg("length"), arg("number_of_cells"), default_origin(), default_rotation(),
           docs::grid_from_counts)
      .def(py::init(&CartesianGrid::from_cell_size), arg("length"), arg("cell_size"),
           default_origin(), default_rotation(), docs::grid_from_cell_size)
      .def(py::init(&CartesianGrid::from_cells), arg("number_of_cells"), arg("cell_size"),
           default_origin(), default_rotation(), docs::grid_from_cells)
      .def("cell_size", &CartesianGrid::cell_size, py::return_value_policy::copy,
           docs::grid_cell_size)
      .def("locations", &CartesianGrid::locations, docs::grid_locations)
      .def("__len__", &CartesianGrid::size, docs::grid_len)
      .def("index", &CartesianGrid::index, docs::grid_index)
      .def("__call__", static_cast<by_indices>(&CartesianGrid::operator()), arg("i"), arg("j"),
           arg("k"), docs::grid_call_indices)
      .def("__call__", static_cast<by_id>(&CartesianGrid::operator()), arg("i"), docs::grid_call_id)
      .def("number_of_cells", &CartesianGrid::number_of_cells, docs::grid_number_of_cells)
      .def("ijk", &CartesianGrid::ijk, arg("i"), docs::grid_ijk)
      .def("transformation", &CartesianGrid::transformation, py::return_value_policy::copy,
           docs::grid_transformation)
      .def("corners", &CartesianGrid::corners, docs::grid_corners)
      .def("bounding_box", &CartesianGrid::bounding_box, docs::grid_bounding_box);
}

void bind_block_model(py::class_<BlockModel>& blocks) {
  using by_indices = location (BlockModel::*)(int, int, int) const;
  using by_position = location (BlockModel::*)(int) const;
  blocks
      .def(py::init<const CartesianGrid&, const std::vector<bool>&>(), arg("base_grid"),
           arg("mask"), docs::block_model_init)
      .def("cell_size", &BlockModel::cell_size, py::return_value_policy::copy, docs::grid_cell_size)
      .def("base_grid", &BlockModel::base_grid, py::return_value_policy::copy,
           docs::block_model_base_grid)
      .def("locations", &BlockModel::locations, docs::block_model_locations)
      .def("__len__", &BlockModel::size, docs::block_model_len)
      .def("full_size", &BlockModel::full_size, docs::block_model_full_size)
      .def("__call__", static_cast<by_indices>(&BlockModel::operator()), arg("i"), arg("j"),
           arg("k"), docs::block_model_call_indices)
      .def("__call__", static_cast<by_position>(&BlockModel::operator()), arg("i"),
           docs::block_model_call_position)
      .def("number_of_cells", &BlockModel::number_of_cells, docs::grid_number_of_cells)
      .def("ijk", &BlockModel::ijk, arg("i"), docs::block_model_ijk)
      .def("bounding_box", &BlockModel::bounding_box, docs::grid_bounding_box);
}

void bind_bounding_box(py::class_<BoundingBox>& box) {
  box.def(py::init<const location_list&>(), arg("corners"), docs::bounding_box_init)
      .def("corners", &BoundingBox::corners, docs::bounding_box_corners)
      .def("lower", &BoundingBox::lower, py::return_value_policy::copy, docs::bounding_box_lower)
      .def("upper", &BoundingBox::upper, py::return_value_policy::copy, docs::bounding_box_upper)
      .def("length", &BoundingBox::length, py::return_value_policy::copy,
           docs::bounding_box_length);
}

void bind_drillholes(py::module_& m) {
  using box_form =
      drillhole_samples (*)(const location&, const location&, int, double, double, int, int);
  using campaign_form =
      drillhole_samples (*)(double, double, int, double, double, double, double, double, double,
                            double, double, int, int, const Ellipsoid&, int);
  m.def("create_random_drillholes", static_cast<box_form>(&create_random_drillholes), arg("bottom"),
        arg("top"), arg("n_samples_by_dh"), arg("min_len"), arg("max_len"), arg("n_drillholes"),
        arg("seed") = 121415, docs::drillholes_in_box);
  m.def("create_random_drillholes", static_cast<campaign_form>(&create_random_drillholes),
        arg("l1"), arg("l2"), arg("n_drillholes"), arg("min_azimuth"), arg("max_azimuth"),
        arg("min_dip"), arg("max_dip"), arg("min_length"), arg("max_length"),
        arg("min_dist_to_bottom"), arg("max_dist_to_bottom"), arg("min_n_samples_by_dh"),
        arg("max_n_samples_by_dh"), default_deformation(), arg("seed") = 121415,
        docs::drillholes_of_campaign);
}

}  // namespace

void register_grid_module(py::module_& m) {
  // All classes first: a signature prints the Python name only of a class that is registered.
  py::class_<CartesianGrid> grid(m, "CartesianGrid", docs::grid);
  py::class_<BlockModel> blocks(m, "BlockModel", docs::block_model);
  py::class_<BoundingBox> box = place_class<BoundingBox>(m);
  bind_cartesian_grid(grid);
  bind_block_model(blocks);
  bind_bounding_box(box);
  bind_drillholes(m);
}

}  // namespace gravelox
