// A table and a list of identifiers that are sound until one slip is made in them, chosen by SLIP:
// each must be refused with its own sentence when it is compiled.

#include "framework/Definitions.h"

#ifndef SLIP
#define SLIP 0
#endif

// clang-format off
#define VELMAR_FIELDS_Pretend(FIELD)                                  \
  FIELD(valid, Valid, VALID, U8, "the entry is valid")                \
  FID_ROW(FIELD)                                                      \
  FIELD(vfi, Vfi, VFI, U16, "virtual forwarding instance")
#define VELMAR_SPANS_Pretend(SPAN) SPAN(BCM56960_A0) SPAN_SLIP(SPAN)

#define FID_ROW(FIELD) FIELD(fidId, FidId, FID_ID, U16, "forwarding id")
#define SPAN_SLIP(SPAN)
#define OFFSET_SLIP 1
#define WIDTH_SLIP  12
#define VFI_ID      FieldId::VFI
#define VFI_MARK    Overlap::disjoint
#define COLUMN_SLIP first
#define CHIP_SLIP   BCM56970_A0
#define STRIDE_SLIP 0
#define RAW_SLIP    U64
#define BLOCK_SLIP  ingress
#define RULE_SLIP   anyVariant

#if SLIP == 1   // accessor is not derived from the hardware name
#undef FID_ROW
#define FID_ROW(FIELD) FIELD(fidID, FidID, FID_ID, U16, "forwarding id")
#elif SLIP == 2  // a row for a field that the class does not declare
#undef VFI_ID
#define VFI_ID FieldId::STG
#elif SLIP == 3  // a width of 0
#undef WIDTH_SLIP
#define WIDTH_SLIP 0
#elif SLIP == 4  // a column that does not exist
#undef COLUMN_SLIP
#define COLUMN_SLIP 2
#elif SLIP == 5  // a chip in two rows
#undef CHIP_SLIP
#define CHIP_SLIP BCM56960_A0
#elif SLIP == 6  // early and late chips in one row
#undef CHIP_SLIP
#define CHIP_SLIP BCM56970_A0, BCM56990_B0
#elif SLIP == 7  // a table with an array stride
#undef STRIDE_SLIP
#define STRIDE_SLIP 256
#elif SLIP == 8  // a field beyond its entry
#undef OFFSET_SLIP
#define OFFSET_SLIP 53
#elif SLIP == 9  // a value type that is too small
#undef FID_ROW
#define FID_ROW(FIELD) FIELD(fidId, FidId, FID_ID, U8, "forwarding id")
#elif SLIP == 10  // a value type that is larger than needed
#undef FID_ROW
#define FID_ROW(FIELD) FIELD(fidId, FidId, FID_ID, U32, "forwarding id")
#elif SLIP == 11  // two fields on one bit
#undef OFFSET_SLIP
#define OFFSET_SLIP 0
#elif SLIP == 12  // a mark without an overlap
#undef VFI_MARK
#define VFI_MARK alias
#elif SLIP == 13  // a raw type larger than needed
#undef RAW_SLIP
#define RAW_SLIP Raw128
#elif SLIP == 14  // two spans for one number of entries
#undef SPAN_SLIP
#define SPAN_SLIP(SPAN) SPAN(BCM56970_A0)
#elif SLIP == 15  // egress without the name
#undef BLOCK_SLIP
#define BLOCK_SLIP egress
#elif SLIP == 16  // variants on an early chip
#undef RULE_SLIP
#define RULE_SLIP variantZero
#elif SLIP == 17 || SLIP == 18
#undef VELMAR_FIELD_IDS_AFTER_PORTS
#if SLIP == 17  // a number twice
#define VELMAR_FIELD_IDS_AFTER_PORTS(ID) ID(585, STG) ID(585, VFI)
#else           // a name out of order
#define VELMAR_FIELD_IDS_AFTER_PORTS(ID) ID(585, VFI) ID(586, STG)
#endif
#endif

#include "Velmar/Declarations.h"
#include "framework/FieldId.cpp"

namespace Velmar {

class VELMAR_EXPORT Pretend : public AsicUtils::BcmAsicBase {
  VELMAR_DECLARE_TABLE(Pretend, RAW_SLIP)
};

namespace {

using namespace Framework;

constexpr ClassRow about = {"a pretended table", BLOCK_SLIP};

enum : U8 { first, columns };

constexpr FieldRow<columns> layout[] = {
  {FieldId::VALID,  {{0, 1}}},
  {FieldId::FID_ID, {{OFFSET_SLIP, WIDTH_SLIP}}},
  {VFI_ID,          {{16, 10}}, VFI_MARK},
};

constexpr ChipRow chips[] = {
  {{BCM56960_A0}, first,       RULE_SLIP,  2, 64, 0x1000, 9, STRIDE_SLIP},
  {{CHIP_SLIP},   COLUMN_SLIP, anyVariant, 2, 64, 0x2000, 9},
};
// clang-format on

}  // namespace

VELMAR_DEFINE_TABLE(Pretend, RAW_SLIP)

}  // namespace Velmar
