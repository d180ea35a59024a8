// SPDX-License-Identifier: MIT
#pragma once

// Calls from library code into Python.

#include "module/casters.hpp"

#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace gravelox {

/// Serialises calls into Python callbacks; taken after the interpreter lock. Each import of the
/// module makes a new one.
extern std::shared_ptr<std::mutex> python_callback_mutex;

/// The turn of a thread to run a callback: it holds the mutex. A callback that enters another one
/// on its own thread passes.
///
/// Python switches threads inside a callback. So a thread that waits for its turn with the
/// interpreter lock in hand would stop the one whose turn it is: it gives the lock up while it
/// waits, and then takes both anew, lock first.
class callback_turn {
 public:
  /// To be called with the interpreter lock held.
  callback_turn();
  ~callback_turn();
  callback_turn(const callback_turn&) = delete;
  callback_turn& operator=(const callback_turn&) = delete;

 private:
  std::shared_ptr<std::mutex> mutex_;
};

/// Gives up the interpreter lock, and the thread's turn if it has one, while worker threads call
/// back into Python; takes them again, lock first, at the end.
class callback_release {
 public:
  callback_release();
  ~callback_release();  // NOLINT(bugprone-exception-escape)
  callback_release(const callback_release&) = delete;
  callback_release& operator=(const callback_release&) = delete;

 private:
  std::mutex* mutex_;
  std::optional<py::gil_scoped_release> without_gil_;
};

/// A Python callable as library code holds it: any thread may copy, call and drop it.
class python_callback {
 public:
  /// Throws TypeError, for an argument of this name, for what cannot be called.
  explicit python_callback(py::object callable, const char* name = "python_callback");

  /// The callable, for Python's collector.
  PyObject* object() const { return callable_->ptr(); }

  /// convert(callable(args...)), with the interpreter lock and the turn taken for the conversions
  /// too. A Python exception passes through as it is.
  template <typename Convert, typename... Args>
  auto operator()(const Convert& convert, Args&&... args) const {
    const py::gil_scoped_acquire gil;
    const callback_turn turn;
    return convert((*callable_)(std::forward<Args>(args)...));
  }

 private:
  std::shared_ptr<py::object> callable_;
};

/// A callback's result as a float; Python's own TypeError for what is none.
double to_float(const py::object& result);

}  // namespace gravelox
