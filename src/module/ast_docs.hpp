// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-modules of expressions.

namespace gravelox::docs {

constexpr const char* expression = "A node of an expression tree.";
constexpr const char* expression_type =
    "0 value, 1 variable, 2 transformation, 3 expression, 4 kernel, 5 function.";
constexpr const char* expression_kind_name = "\"scalar\" or \"vector\".";
constexpr const char* expression_type_name = "The name of the type.";
constexpr const char* expression_vec = "The current vector result.";
constexpr const char* expression_scalar = "The current scalar result.";
constexpr const char* expression_print = "Print type, kind and value on the standard output.";
constexpr const char* expression_eval = "The scalar result.";
constexpr const char* expression_eval_scalar = "The scalar result with a number as input.";
constexpr const char* expression_eval_vector = "The vector result.";
constexpr const char* expression_eval_vector_of = "The vector result with a vector as input.";
constexpr const char* expression_with_node = "Combine with another expression of the same kind.";
constexpr const char* expression_with_scalar = "Combine with a number.";
constexpr const char* expression_with_vector = "Combine with a vector.";
constexpr const char* expression_function =
    "The function of an expression; of a vector, element by element.";
constexpr const char* expression_pow = "An expression to the fixed power p.";

constexpr const char* variable = "A variable: the one way in which values enter a tree.";
constexpr const char* variable_init_scalar = "Make a scalar variable.";
constexpr const char* variable_init_vector = "Make a vector variable.";
constexpr const char* variable_init_expression =
    "Make a variable with the value that an expression has now.";
constexpr const char* variable_name = "The name, by which a fit knows the variable.";
constexpr const char* variable_type_name = "\"variable\".";
constexpr const char* value = "A constant.";
constexpr const char* value_init_scalar = "Make a scalar constant.";
constexpr const char* value_init_vector = "Make a vector constant.";
constexpr const char* transformation = "An expression of other expressions.";
constexpr const char* kernel = "A compiled function over vectors as a node.";
constexpr const char* kernel_init = "Make the node of a function.";

constexpr const char* function = "A body with arguments.";
constexpr const char* function_make = "Make a function from its arguments and its body.";
constexpr const char* function_scalar_function = "Compile to a function of numbers.";
constexpr const char* function_transformation = "Compile to a function of vectors to a vector.";
constexpr const char* function_kernel = "Compile to a function of vectors to a number.";
constexpr const char* function_call =
    "The body with its arguments replaced by expressions, in order.";
constexpr const char* function_call_expression =
    "The body with its first argument replaced by an expression.";
constexpr const char* function_call_vector =
    "The body with its one argument replaced by a vector, or several by its elements in order.";
constexpr const char* scalar_function = "A compiled function of numbers.";
constexpr const char* scalar_function_call = "The number for the arguments' values, in order.";
constexpr const char* trans_function = "A compiled function of vectors to a vector.";
constexpr const char* trans_function_call = "The vector for the arguments' values, one a row.";
constexpr const char* kernel_function = "A compiled function of vectors to a number.";
constexpr const char* kernel_function_call = "The number for the arguments' values, one a row.";
constexpr const char* scalar_cost = "A cost of a fit: a function at a list of numbers.";
constexpr const char* scalar_cost_init = "Make the cost of a function.";
constexpr const char* scalar_cost_call = "The number for the arguments' values, in order.";

}  // namespace gravelox::docs
