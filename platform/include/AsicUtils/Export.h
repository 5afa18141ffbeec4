#pragma once

/// Marks what the platform library exports; everything else stays inside it. A static one is part of
/// what links it, and exports nothing.
#if defined(VELMAR_STATIC)
#define VELMAR_PLATFORM_EXPORT __attribute__((visibility("hidden")))
#elif defined(VELMAR_PLATFORM_BUILD)
#define VELMAR_PLATFORM_EXPORT __attribute__((visibility("default")))
#else
#define VELMAR_PLATFORM_EXPORT
#endif
