#pragma once

/// Marks what the platform library exports; everything else stays inside it.
#if defined(VELMAR_PLATFORM_BUILD)
#define VELMAR_PLATFORM_EXPORT __attribute__((visibility("default")))
#else
#define VELMAR_PLATFORM_EXPORT
#endif
