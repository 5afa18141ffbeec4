#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "Velmar/Entry.h"
#include "Velmar/FieldValue.h"

// What can be done with a view or an Entry of any class without a line for each class or field:
// reads by identifier or name, texts for logs, differences, translation to another chip. Fields are
// those of the catalogue. What fails, fails an assertion with the text of the view's own members.

namespace Velmar {

static_assert(__cplusplus >= 201703L, "Velmar/Generic.h needs C++17");

/// A view, with its class as data. Views and entries convert to it where a function below takes
/// one; it is valid as long as they are.
class VELMAR_EXPORT AnyView {
 public:
  template <class View, class = std::enable_if_t<std::is_base_of<AsicUtils::AsicBase, View>::value>>
  AnyView(const View& view)  // NOLINT(google-explicit-constructor)
      : table_(tableOf<View>()), view_(&view) {}
  template <class View>
  AnyView(const Entry<View>& entry)  // NOLINT(google-explicit-constructor)
      : AnyView(*entry) {}

  const Catalogue::Table& table() const { return table_; }
  const AsicUtils::AsicBase& view() const { return *view_; }

 private:
  template <class View>
  static Catalogue::Table tableOf() {
    static_assert(ViewClass<View>::isKnown,
                  "give the view by its own class, such as VlanEntry: a reference to a base class "
                  "does not say which table it is");
    return Catalogue::Table::of<typename ViewClass<View>::Type>();
  }

  Catalogue::Table table_;
  const AsicUtils::AsicBase* view_;
};

/// The chip of a name such as "BCM56990_B0", compared exactly.
VELMAR_EXPORT std::optional<Catalogue::Chip> findChip(std::string_view name);
/// The table of a name such as "VlanEntry", compared exactly.
VELMAR_EXPORT std::optional<Catalogue::Table> findTable(std::string_view name);

/// The name of the view's class, such as "VlanEntry".
VELMAR_EXPORT inline const char* className(const AnyView& view) { return view.table().name(); }
/// The chip of a view.
VELMAR_EXPORT Catalogue::Chip chipOf(const AnyView& view);
/// The variant of a view.
VELMAR_EXPORT U8 variantOf(const AnyView& view);
/// The bytes of the entry on the view's chip. Fails "len_ >= N" if the buffer is shorter.
VELMAR_EXPORT Span<U8> bytesOf(const AnyView& view);

/// The value of a field of up to 64 bits, by identifier (Velmar/FieldId.h) or by accessor name or
/// hardware name. Fails as the field's getter does; a bitmap, a wider field and one that the class
/// does not declare fail "false".
VELMAR_EXPORT U64 field64(const AnyView& view, U32 id);
VELMAR_EXPORT U64 field64(const AnyView& view, const char* name);
/// The same for a field of any width.
VELMAR_EXPORT FieldValue bits(const AnyView& view, U32 id);
VELMAR_EXPORT FieldValue bits(const AnyView& view, const char* name);

/// A view in one line, for logs: "VlanEntry on BCM56990_B0: valid=1 fidId=20 stg=2". Ports of a
/// family that have one value share a part: "spTreePort0-3,7=1". `velmar encode` takes the parts
/// after the colon, except for "outsideFields", the reserved bits that are set.
VELMAR_EXPORT std::string toText(const AnyView& view);

/// Calls `call(field, value)` with each field that the chip has: a Catalogue::Field and a FieldValue.
template <class Call>
VELMAR_EXPORT void forEachField(const AnyView& view, const Call& call) {
  const Span<U8> bytes = bytesOf(view);
  const U32 chip = chipOf(view).number;
  for (U32 i = 0; i < view.table().fieldCount(); ++i) {
    const Catalogue::BitRange range = view.table().range(i, chip);
    if (range.width == 0) continue;
    call(view.table().field(i),
         FieldValue::read(range, bytes.data(), static_cast<U32>(bytes.size())));
  }
}

/// A field whose value differs.
struct VELMAR_EXPORT FieldDifference {
  const char* accessor;  ///< or "outsideFields", the reserved bits as bits of the whole entry
  Catalogue::ValueType type;
  FieldValue before;
  FieldValue after;

  /// "stg: 2 -> 5".
  std::string text() const {
    return std::string(accessor) + ": " + before.text(type) + " -> " + after.text(type);
  }
};
/// The fields that differ between two views of one class on one chip, in the order of the catalogue.
/// Fails "className(before) == className(after)" or "chipOf(before) == chipOf(after)" for others.
VELMAR_EXPORT std::vector<FieldDifference> differences(const AnyView& before, const AnyView& after);

/// What an entry loses on another chip.
struct VELMAR_EXPORT Loss {
  enum class Reason : U8 { noField, tooLarge, sharesBits, outsideFields };

  U32 field;  ///< in the catalogue's table; the table's fieldCount() for reserved bits
  Reason reason;

  friend bool operator==(const Loss& a, const Loss& b) {
    return a.field == b.field && a.reason == b.reason;
  }
};
/// Moves an entry, of at least the bytes that the chip needs, to another chip, field by field; what
/// has no place there is lost. All bits of `into` are written.
VELMAR_EXPORT std::vector<Loss> translateEntry(const Catalogue::Table& table, U32 chipType,
                                               const U8* entry, U32 intoChipType, U8* into);
/// Why it is lost: "VlanEntry has no such field on BCM56980_A0".
VELMAR_EXPORT std::string lossText(const Catalogue::Table& table, const Loss& loss,
                                   const Catalogue::Chip& into);

/// Moves the contents of a view to a view of the same class on another chip. Returns whether all of
/// it has a place there; `losses` gets a sentence for each field that has none, and may be null.
template <class View>
VELMAR_EXPORT bool translate(const View& from, View& to,
                             std::vector<std::string>* losses = nullptr);

/// Number of ports in a family of fields of the view's chip: portCount(view, "spTreePort"). 0 if the
/// chip has none of the name.
VELMAR_EXPORT U32 portCount(const AnyView& view, std::string_view family);

/// The values of consecutive ports. operator[] takes the number of a port.
class VELMAR_EXPORT PortStates {
 public:
  static constexpr U32 mostPorts = 272;
  /// They are read byte by byte, two bits each.
  static constexpr U32 portsOfByte = 4;

  U32 firstPort() const { return first_; }
  U32 size() const { return size_; }
  bool has(U32 port) const { return port - first_ < size_; }
  U8 operator[](U32 port) const {
    if (!has(port)) failAssertion("port < ", first_ + size_, __PRETTY_FUNCTION__);
    return values_[port - first_];
  }
  /// The values, from that of firstPort() up.
  const U8* begin() const { return values_; }
  const U8* end() const { return values_ + size_; }

 private:
  friend VELMAR_EXPORT PortStates states(const AnyView& view);
  friend VELMAR_EXPORT PortStates states(const AnyView& lower, const AnyView& upper);
  void add(const AnyView& view);

  U32 first_ = 0;
  U32 size_ = 0;
  U8 values_[mostPorts + portsOfByte];
};

/// The values of all ports of a view with a port family, such as a spanning-tree group. No values if
/// the class has no ports on the chip.
VELMAR_EXPORT PortStates states(const AnyView& view);
/// The same over the two tables of chips whose ports are split: VlanStgEntry and VlanStgBEntry, or
/// EgrVlanStgEntry and EgrVlanStgBEntry. Fails "port == N" unless the second begins where the first
/// ends.
VELMAR_EXPORT PortStates states(const AnyView& lower, const AnyView& upper);

template <class View>
bool translate(const View& from, View& to, std::vector<std::string>* losses) {
  const AnyView source(from);
  const AnyView target(to);
  const Catalogue::Chip chip = chipOf(target);
  U8* const into = const_cast<U8*>(bytesOf(target).data());
  const std::vector<Loss> lost = translateEntry(source.table(), chipOf(source).number,
                                                bytesOf(source).data(), chip.number, into);
  for (const Loss& loss : lost) {
    if (losses == nullptr) break;
    const bool isField = loss.field < source.table().fieldCount();
    const char* const name = isField ? source.table().field(loss.field).accessor : "outsideFields";
    losses->push_back(std::string(name) + ": " + lossText(source.table(), loss, chip));
  }
  return lost.empty();
}

}  // namespace Velmar
