#pragma once

// Everything that the source of a class needs.

#include "tables/Chips.h"
#include "tables/PortLists.h"

#ifdef VELMAR_TABLE_READER
// A program that reads the rows supplies its own VELMAR_DEFINE_TABLE and VELMAR_DEFINE_REGISTER.
#include VELMAR_TABLE_READER
#else
#include "Velmar/MetaInfo.h"
#include "framework/Definitions.h"
#endif

namespace Velmar {
namespace Tables {

/// The name of a class gives its pipeline: egress names begin with Egr, ingress names do not.
constexpr bool blockFitsName(const char* name, Framework::Block block) {
  const bool isEgress = name[0] == 'E' && name[1] == 'g' && name[2] == 'r';
  return isEgress == (block == Framework::egress);
}

}  // namespace Tables
}  // namespace Velmar

// clang-format off
#define VELMAR_CHECK_BLOCK(CLASS, about)                                                   \
  static_assert(::Velmar::Tables::blockFitsName(#CLASS, about.block),                      \
                #CLASS ": the block is egress for the Egr classes and ingress for all others");

/// Defines the class of a memory; the last line of its source.
#define VELMAR_TABLE(CLASS, RAW, FIELDS, SPANS, about, layout, chips) \
  VELMAR_CHECK_BLOCK(CLASS, about)                                    \
  VELMAR_DEFINE_TABLE(CLASS, RAW, FIELDS, SPANS, about, layout, chips, ::Velmar::Tables::chipFacts)

/// Defines the class of a register array; the last line of its source.
#define VELMAR_REGISTER(CLASS, RAW, FIELDS, SPANS, about, layout, chips) \
  VELMAR_CHECK_BLOCK(CLASS, about)                                       \
  VELMAR_DEFINE_REGISTER(CLASS, RAW, FIELDS, SPANS, about, layout, chips, ::Velmar::Tables::chipFacts)
// clang-format on
