#pragma once

/// Marks what libVelmarMetaInfo exports; everything else stays inside it. A static library is part of
/// the program or plugin that links it, which then exports nothing of it: two plugins of one process
/// have a library each. Its CMake target and pkg-config file define VELMAR_STATIC.
#ifdef VELMAR_STATIC
#define VELMAR_EXPORT __attribute__((visibility("hidden")))
#else
#define VELMAR_EXPORT __attribute__((visibility("default")))
#endif

/// Marks a member whose result is all that it does. In C++14 it says nothing.
#if __cplusplus >= 201703L
#define VELMAR_NODISCARD [[nodiscard]]
#else
#define VELMAR_NODISCARD
#endif
