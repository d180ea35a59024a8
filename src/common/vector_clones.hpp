// SPDX-License-Identifier: MIT
#pragma once

// Loops over plain arrays for the widest vectors that the running processor has.

/// Before a function: compiles it for several vector widths, one of which is chosen when the module
/// is loaded. Every version gives the same bits, since each operation is rounded by itself (no
/// multiply-add is fused). Not for functions with types of the matrix library in them, whose
/// alignment depends on the width.
#if defined(__x86_64__) && defined(__gnu_linux__) && defined(__OPTIMIZE__) && \
    !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define GRAVELOX_VECTOR_CLONES __attribute__((target_clones("default", "avx2", "avx512f")))
#else
#define GRAVELOX_VECTOR_CLONES
#endif
