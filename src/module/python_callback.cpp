// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/python_callback.hpp"

namespace gravelox {

namespace {

/// The mutex that this thread has locked for a callback, if it is in one.
thread_local std::mutex* turn_mutex = nullptr;

/// With the interpreter lock held, before and after.
void take_turn(std::mutex& mutex) {
  while (!mutex.try_lock()) {
    const py::gil_scoped_release while_waiting;
    const std::lock_guard until_it_is_free(mutex);
  }
  turn_mutex = &mutex;
}

void give_turn_up() {
  turn_mutex->unlock();
  turn_mutex = nullptr;
}

}  // namespace

std::shared_ptr<std::mutex> python_callback_mutex;

callback_turn::callback_turn() {
  if (turn_mutex != nullptr) return;
  mutex_ = python_callback_mutex;
  take_turn(*mutex_);
}

callback_turn::~callback_turn() {
  if (mutex_) give_turn_up();
}

callback_release::callback_release() : mutex_(turn_mutex) {
  if (mutex_ != nullptr) give_turn_up();
  without_gil_.emplace();
}

// A lock that cannot be taken again ends the process, as it should.
// NOLINTNEXTLINE(bugprone-exception-escape)
callback_release::~callback_release() {
  without_gil_.reset();
  if (mutex_ != nullptr) take_turn(*mutex_);
}

python_callback::python_callback(py::object callable, const char* name) {
  if (PyCallable_Check(callable.ptr()) == 0) {
    throw py::type_error(std::string(name) + ": expected a callable, got " +
                         std::string(py::str(py::type::of(callable))));
  }
  // The last copy may go on any thread, with or without the interpreter lock.
  callable_.reset(new py::object(std::move(callable)), [](py::object* last) {
    const py::gil_scoped_acquire gil;
    delete last;
  });
}

double to_float(const py::object& result) {
  const double value = PyFloat_AsDouble(result.ptr());
  if (value == -1.0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  return value;
}

}  // namespace gravelox
