#pragma once

/// Marks what libVelmarMetaInfo exports; everything else stays inside it.
#define VELMAR_EXPORT __attribute__((visibility("default")))
