#pragma once

#include "AsicUtils/ChipType.h"
#include "AsicUtils/EntrySpans.h"
#include "AsicUtils/Export.h"
#include "AsicUtils/Types.h"
#include "Morvo/String.h"

namespace AsicUtils {

/// Base of every view of a hardware memory or register: the caller's buffer, the chip and variant
/// that determine its layout, and the interface to walk its fields without knowing the view's
/// class. The view never owns the buffer.
///
/// The order of the virtual members is part of the binary interface. A virtual member that is not
/// pure has a default that fails an assertion.
class VELMAR_PLATFORM_EXPORT AsicBase {
 public:
  virtual ~AsicBase() = default;

  /// Writes a scalar field chosen by identifier; high bits beyond its value type are dropped.
  virtual void setField64(U32 fieldId, U64 value) = 0;
  /// Fails "false && \"stringField function not implemented\"".
  virtual U64 stringField(const Morvo::String&, U16) const;
  /// Fails "false && \"stringFieldIs is invalid for this class\"".
  virtual void stringFieldIs(const Morvo::String&, const U64&);
  /// Width in bits of a field, 0 if the view's chip does not have it.
  virtual U16 fieldWidth(U32 fieldId) const = 0;
  /// First bit of a field.
  virtual U16 fieldOffset(U32 fieldId) const = 0;
  /// Whether the view's chip has the field.
  virtual bool isFieldValid(U32 fieldId) const = 0;
  /// Width of an entry in 32-bit words.
  virtual U16 width() const = 0;
  /// Number of entries. Default: fails "false && \"entries invalid for this class\"".
  virtual U32 entries() const;
  /// Largest identifier. Default: fails "false && \"maxIdentifier invalid for this class\"".
  virtual U32 maxIdentifier() const;
  /// Number of fields that the view's chip has.
  virtual U32 fieldCount() const = 0;
  /// Whether this is a memory (true) or a register (false).
  virtual bool isTable() const = 0;
  /// A one at every bit of an entry that belongs to a field.
  virtual Raw8192 allFieldsMask() const = 0;
  /// Fails "false".
  virtual S32 sdkDefinedId() const;
  /// Number of instances of the object on the chip.
  virtual U32 instanceCount() const = 0;
  /// Fails "false".
  virtual bool hasInstance(U32) const;
  /// Whether the object accepts the instance identifier.
  virtual bool hasIdentifier(U32 identifier) const = 0;
  /// Number of array elements of the object.
  virtual U32 arrayElements() const = 0;
  /// Number of variants of the table. Default: fails "false".
  virtual U32 tableVariantCount() const;
  /// Ranges of valid entry indices. Default: fails "false".
  virtual EntrySpans entrySpans() const;
  /// Fails "0".
  virtual bool compareTo(const void*, U16) const;
  /// S-channel address, access code and block of an entry; false if the chip has no such object.
  virtual bool getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier,
                               U32 tableEntry, U16 arrayIndex) const = 0;

 protected:
  /// `len` is in bytes and is stored in 16 bits: a longer buffer counts as 65,535 bytes.
  AsicBase(U8 chipType, U8* buf, U32 len, bool flag, U8 variant, U8 last)
      : buf_(buf),
        len_(static_cast<U16>(len < 0xffffU ? len : 0xffffU)),
        chipType_(chipType),
        variant_(variant),
        flag_(flag),
        last_(last) {}
  AsicBase(const AsicBase&) = default;
  AsicBase& operator=(const AsicBase&) = default;

  U8* buf_;      ///< the caller's entry; bit 0 of the entry is bit 0 of the first byte
  U16 len_;      ///< length of the buffer in bytes
  U8 chipType_;  ///< number of the chip
  U8 variant_;   ///< table variant
  bool flag_;    ///< the constructor's flag, kept for the caller
  U8 last_;      ///< the constructor's last argument, kept for the caller
};

}  // namespace AsicUtils
