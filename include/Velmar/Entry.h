#pragma once

#include <cstddef>
#include <cstring>
#include <optional>
#include <type_traits>
#include <utility>

#include "AsicUtils/BcmAsicBase.h"
#include "AsicUtils/ChipType.h"
#include "Velmar/Catalogue.h"
#include "Velmar/Export.h"
#include "Velmar/Span.h"

namespace Velmar {

static_assert(__cplusplus >= 201703L, "Velmar/Entry.h needs C++17; the view headers do with C++14");

/// What a bus needs to read or write an entry.
struct VELMAR_EXPORT EntryAddress {
  U32 address;     ///< S-channel address
  U32 accessType;  ///< S-channel access code
  U32 block;       ///< 1 ingress, 2 egress

  friend bool operator==(const EntryAddress& a, const EntryAddress& b) {
    return a.address == b.address && a.accessType == b.accessType && a.block == b.block;
  }
  friend bool operator!=(const EntryAddress& a, const EntryAddress& b) { return !(a == b); }
};

/// The address of an entry of a table, or of an element of a register array; nothing if the chip or
/// variant lacks the table, the table has no such entry, or it does not accept the identifier.
VELMAR_EXPORT std::optional<EntryAddress> addressOf(const Catalogue::Table& table, U32 chipType,
                                                    U8 variant, U32 index, U32 identifier = 0);

/// Fails the assertion "<expression><number>", as the views fail theirs.
[[noreturn]] VELMAR_EXPORT void failAssertion(const char* expression, U32 number,
                                              const char* function);

/// The view class of a type: itself, or the one that it derives from. A type that is not of a view
/// class has none.
template <class View, class = void>
struct ViewClass {
  static constexpr bool isKnown = false;
};
template <class View>
struct ViewClass<View, std::void_t<decltype(&View::isPrimary)>> {
  template <class Class>
  static Class* classOf(bool (Class::*)() const);

  static constexpr bool isKnown = true;
  using Type = std::remove_pointer_t<decltype(classOf(&View::isPrimary))>;
};

/// An entry with its bytes, and a view of them: `Entry<VlanEntry> vlan(BCM56990_B0)`, `vlan->stgIs(5)`.
///
/// The bytes are zero at first. Nothing is allocated: the object has room for the largest entry of
/// the class, and the view sees all of it, so that getAllFields() works too. What follows concerns
/// the bytes of an entry on the chip. Bytes and views are as safe as an array: one thread at a time
/// may write them.
template <class View>
class VELMAR_EXPORT Entry {
  static_assert(ViewClass<View>::isKnown,
                "Entry takes a view class, such as Entry<VlanEntry>: a base class does not say "
                "which table it is");
  using Raw = decltype(std::declval<const View&>().getAllFields());

 public:
  /// An entry of zeros. Fails as the view's constructor does if the chip or variant lacks the class.
  explicit Entry(ChipType_ chip, U8 variant = 0)
      : view_(chip, bytes(), sizeof(words_), false, variant),
        chip_(chip),
        variant_(variant),
        wordCount_(View::width(chip, variant)) {}
  Entry(const Entry& other) : Entry(other.chip_, other.variant_) { copyFrom(other); }
  Entry& operator=(const Entry& other) {
    if (this == &other) return *this;
    if (chip_ != other.chip_ || variant_ != other.variant_) {
      view_ = View(other.chip_, bytes(), sizeof(words_), false, other.variant_);
    }
    chip_ = other.chip_;
    variant_ = other.variant_;
    wordCount_ = other.wordCount_;
    copyFrom(other);
    return *this;
  }
  ~Entry() = default;

  View& operator*() { return view_; }
  const View& operator*() const { return view_; }
  View* operator->() { return &view_; }
  const View* operator->() const { return &view_; }

  ChipType_ chip() const { return chip_; }
  U8 variant() const { return variant_; }

  /// The bytes of the entry; bit 0 of the entry is bit 0 of the first.
  U8* data() { return bytes(); }
  const U8* data() const { return reinterpret_cast<const U8*>(words_); }
  /// Number of bytes.
  std::size_t size() const { return 4 * std::size_t{wordCount_}; }
  /// The entry as a bus takes it. Valid as long as the object, and changes with it.
  Words words() const { return {words_, wordCount_}; }

  /// Takes the bytes of an entry. Fails "size == N" unless there are as many as size().
  void assign(const U8* data, std::size_t size) {
    if (size != this->size()) failSize(this->size());
    std::memcpy(words_, data, size);
  }
  /// Takes the words of an entry, lowest first. Fails "size == N" unless there are as many as in
  /// words().
  void assign(const U32* data, std::size_t size) {
    if (size != wordCount_) failSize(wordCount_);
    std::memcpy(words_, data, 4 * size);
  }
  void assign(Words words) { assign(words.data(), words.size()); }

  /// The address of an entry, or of an element of a register array; nothing if there is no such
  /// entry or the class does not accept the identifier.
  std::optional<EntryAddress> address(U32 index, U32 identifier = 0) const {
    return addressOf(Catalogue::Table::of<typename ViewClass<View>::Type>(), chip_, variant_, index,
                     identifier);
  }

  /// Whether chip, variant and all bits of the entries agree, also those outside all fields.
  friend bool operator==(const Entry& a, const Entry& b) {
    return a.chip_ == b.chip_ && a.variant_ == b.variant_ && a.words() == b.words();
  }
  friend bool operator!=(const Entry& a, const Entry& b) { return !(a == b); }

 private:
  U8* bytes() { return reinterpret_cast<U8*>(words_); }
  void copyFrom(const Entry& other) { std::memcpy(words_, other.words_, sizeof(words_)); }
  [[noreturn, gnu::cold]] static void failSize(std::size_t size) {
    failAssertion("size == ", static_cast<U32>(size), __PRETTY_FUNCTION__);
  }

  U32 words_[sizeof(Raw) / sizeof(U32)] = {};
  View view_;
  ChipType_ chip_;
  U8 variant_;
  U16 wordCount_;
};

}  // namespace Velmar
