#pragma once

/// Marks what libVelmarMetaInfo exports; everything else stays inside it.
#define VELMAR_EXPORT __attribute__((visibility("default")))

/// Marks a member whose result is all that it does. In C++14 it says nothing.
#if __cplusplus >= 201703L
#define VELMAR_NODISCARD [[nodiscard]]
#else
#define VELMAR_NODISCARD
#endif
