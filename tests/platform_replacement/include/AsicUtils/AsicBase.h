#pragma once

#include "AsicUtils/EntrySpans.h"
#include "Morvo/String.h"

namespace AsicUtils {

class AsicBase {
 public:
  virtual ~AsicBase() {}
  virtual void setField64(U32, U64) = 0;
  virtual U64 stringField(const Morvo::String&, U16) const { return 0; }
  virtual void stringFieldIs(const Morvo::String&, const U64&) {}
  virtual U16 fieldWidth(U32) const = 0;
  virtual U16 fieldOffset(U32) const = 0;
  virtual bool isFieldValid(U32) const = 0;
  virtual U16 width() const = 0;
  virtual U32 entries() const { return 0; }
  virtual U32 maxIdentifier() const { return 0; }
  virtual U32 fieldCount() const = 0;
  virtual bool isTable() const = 0;
  virtual Raw8192 allFieldsMask() const = 0;
  virtual S32 sdkDefinedId() const { return 0; }
  virtual U32 instanceCount() const = 0;
  virtual bool hasInstance(U32) const { return false; }
  virtual bool hasIdentifier(U32) const = 0;
  virtual U32 arrayElements() const = 0;
  virtual U32 tableVariantCount() const { return 0; }
  virtual EntrySpans entrySpans() const { return {nullptr, 0}; }
  virtual bool compareTo(const void*, U16) const { return false; }
  virtual bool getSchanAddress(U32&, U32&, U32&, U16, U32, U16) const = 0;

 protected:
  // clang-format off
  AsicBase(U8 chipType, U8* buf, U32 len, bool flag, U8 variant, U8)
      : chipType_(chipType), variant_(variant), flag_(flag), len_(static_cast<U16>(len)), buf_(buf) {}

  U8 chipType_, variant_;
  bool flag_;
  U16 len_;
  U8* buf_;
};

}  // namespace AsicUtils
