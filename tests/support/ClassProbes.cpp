#include "support/ClassProbes.h"

#include <cstring>
#include <stdexcept>
#include <type_traits>

#include "FieldLists.h"
#include "support/GoldenData.h"

namespace VelmarTest {
namespace {

template <class T>
Words wordsOf(const T& value) {
  if constexpr (std::is_same_v<T, Oru::PerUnitBitmap>) {
    Words words;
    for (U32 i = 0; i < value.wordCount(); ++i) words.push_back(value.word(i));
    return words;
  } else if constexpr (std::is_integral_v<T>) {
    Words words = {static_cast<U32>(value)};
    if constexpr (sizeof(T) == 8) words.push_back(static_cast<U32>(value >> 32));
    return words;
  } else {
    return Words(value.words, value.words + T::wordCount);
  }
}

template <class T>
T valueOf(const Words& words) {
  if constexpr (std::is_same_v<T, Oru::PerUnitBitmap>) {
    T bitmap;
    for (U32 i = 0; i < words.size(); ++i) bitmap.bitListIs(i, words[i]);
    return bitmap;
  } else if constexpr (std::is_integral_v<T>) {
    U64 value = words.at(0);
    if (words.size() > 1) value |= static_cast<U64>(words[1]) << 32;
    return static_cast<T>(value);
  } else {
    T value{};
    for (U32 i = 0; i < T::wordCount && i < words.size(); ++i) value.words[i] = words[i];
    return value;
  }
}

/// A member of a view's class as a member pointer of the common base type.
template <class View, class T>
constexpr T (Base::*ofBase(T (View::*member)() const))() const {
  return static_cast<T (Base::*)() const>(member);
}
template <class View, class T>
void (Base::*erased(T (View::*getter)() const))() const {
  return reinterpret_cast<void (Base::*)() const>(ofBase(getter));
}
template <class View, class T>
void (Base::*erased(void (View::*setter)(T)))() {
  return reinterpret_cast<void (Base::*)()>(static_cast<void (Base::*)(T)>(setter));
}

template <class T>
Words callGetter(const Base& view, void (Base::*getter)() const) {
  return wordsOf((view.*reinterpret_cast<T (Base::*)() const>(getter))());
}
template <class T, class Parameter>
void callSetter(Base& view, void (Base::*setter)(), const Words& words) {
  (view.*reinterpret_cast<void (Base::*)(Parameter)>(setter))(valueOf<T>(words));
}

/// Accesses the protected members of a view, as a caller's derived class can.
template <class View>
class Opened : public View {
 public:
  Opened(U32 goodChip, U32 chipType, U8* buf, U16 len, U8 variant)
      : View(static_cast<ChipType_>(goodChip), buf, len, false, 0) {
    this->chipType_ = static_cast<U8>(chipType);
    this->variant_ = variant;
  }
};

/// The first chip on which a class exists.
U32 firstChip(bool (*chipTypeVariantValid)(ChipType_, U8)) {
  for (const auto& [chip, name] : chipNames()) {
    if (chipTypeVariantValid(static_cast<ChipType_>(chip), 0)) return chip;
  }
  throw std::runtime_error("a class is on none of the chips");
}

template <class View, class = void>
constexpr bool isTableView = false;
template <class View>
constexpr bool isTableView<View, std::void_t<decltype(&View::tableWidth)>> = true;

template <class View, class T>
GeometryProbe makeGeometry(const char* name, const char* type, bool isTraced, T (*ofChip)(U32, U8),
                           T (View::*ofView)() const) {
  return {name, type, isTraced, ofChip,
          [ofView](const Base& view) -> U32 { return (static_cast<const View&>(view).*ofView)(); }};
}

#define VELMAR_GEOMETRY(TYPE, member, isTraced) \
  makeGeometry<View, TYPE>(#member, #TYPE, isTraced, &View::member, &View::member)

template <class View>
ClassProbe makeClass(const char* name, const char* rawName, std::vector<FieldProbe> fields,
                     std::vector<const AsicUtils::EntrySpan*> spanMembers) {
  ClassProbe probe{};
  probe.name = name;
  probe.rawName = rawName;
  probe.isTable = isTableView<View>;
  probe.fields = std::move(fields);
  probe.spanMembers = std::move(spanMembers);
  probe.geometry = {VELMAR_GEOMETRY(U16, width, false), VELMAR_GEOMETRY(U32, arrayElements, false),
                    VELMAR_GEOMETRY(U32, instanceCount, true),
                    VELMAR_GEOMETRY(U32, fieldCount, true)};
  if constexpr (isTableView<View>) {
    probe.geometry.push_back(VELMAR_GEOMETRY(U32, entries, false));
    probe.geometry.push_back(VELMAR_GEOMETRY(U32, index_min, false));
    probe.geometry.push_back(VELMAR_GEOMETRY(U32, arrayIndex_min, false));
    probe.entrySpans = static_cast<AsicUtils::EntrySpans (*)(U32, U8)>(&View::entrySpans);
    probe.tableVariantCount = static_cast<U32 (*)(U32)>(&View::tableVariantCount);
  } else {
    probe.geometry.push_back(VELMAR_GEOMETRY(U32, addrStride, false));
    probe.geometry.push_back(VELMAR_GEOMETRY(U32, maxIdentifier, false));
  }
  probe.make = [](U32 chipType, U8* buf, U16 len, U8 variant) -> std::unique_ptr<Base> {
    return std::make_unique<View>(static_cast<ChipType_>(chipType), buf, len, false, variant);
  };
  probe.open = [](U32 chipType, U8* buf, U16 len, U8 variant) -> std::unique_ptr<Base> {
    static const U32 goodChip = firstChip(&View::chipTypeVariantValid);
    return std::make_unique<Opened<View>>(goodChip, chipType, buf, len, variant);
  };
  probe.chipTypeVariantValid = &View::chipTypeVariantValid;
  probe.hasIdentifier = static_cast<bool (*)(U32, U8, U32)>(&View::hasIdentifier);
  probe.allFieldsMask = static_cast<Raw8192 (*)(U32, U8)>(&View::allFieldsMask);
  probe.getSchanAddress = [](U32 chipType, U8 variant, SchanTriple& out, U16 identifier,
                             U32 tableEntry, U16 arrayIndex) {
    return View::getSchanAddress(chipType, variant, out.address, out.accessType, out.block,
                                 identifier, tableEntry, arrayIndex);
  };
  probe.getAllFields = [](const Base& view) {
    return wordsOf(static_cast<const View&>(view).getAllFields());
  };
  probe.isPrimary = [](const Base& view) { return static_cast<const View&>(view).isPrimary(); };
  return probe;
}

// The type words of the field lists, as the golden files and signatures spell them.
#define VELMAR_SPELLING_U8 "U8", "U8", "U8"
#define VELMAR_SPELLING_U16 "U16", "U16", "U16"
#define VELMAR_SPELLING_U32 "U32", "U32", "U32"
#define VELMAR_SPELLING_U64 "U64", "U64", "const U64&"
#define VELMAR_SPELLING_Raw128 "raw128", "Raw128", "const Raw128&"
#define VELMAR_SPELLING_Bitmap "bitmap", "Oru::PerUnitBitmap", "Oru::PerUnitBitmap"

#define VELMAR_FIELD_PROBE(accessor, Accessor, HARDWARE_NAME, TYPE) \
  {#accessor,                                                                \
   #Accessor,                                                                \
   #HARDWARE_NAME,                                                           \
   Velmar::FieldId::HARDWARE_NAME,                                           \
   VELMAR_SPELLING_##TYPE,                                                   \
   ofBase(&View::accessor##Len),                                             \
   ofBase(&View::accessor##Offset),                                          \
   ofBase(&View::is##Accessor##Valid),                                       \
   erased(&View::accessor),                                                  \
   erased(&View::accessor##Is)},
#define VELMAR_SPAN_POINTER(CHIP) View::_entrySpans_##CHIP,

template <class Raw>
const char* rawNameOf() {
  if constexpr (std::is_same_v<Raw, U32>) return "U32";
  if constexpr (std::is_same_v<Raw, U64>) return "U64";
  if constexpr (std::is_same_v<Raw, Raw128>) return "Raw128";
  if constexpr (std::is_same_v<Raw, Raw256>) return "Raw256";
  if constexpr (std::is_same_v<Raw, Raw512>) return "Raw512";
  if constexpr (std::is_same_v<Raw, Raw1024>) return "Raw1024";
}

#define VELMAR_CLASS_PROBE(CLASS)                                                              \
  ClassProbe makeProbe_##CLASS() {                                                             \
    using View = Velmar::CLASS;                                                                \
    static const FieldProbe fields[] = {VELMAR_FIELDS_##CLASS(VELMAR_FIELD_PROBE)};            \
    return makeClass<View>(#CLASS, rawNameOf<decltype(std::declval<View>().getAllFields())>(), \
                           {std::begin(fields), std::end(fields)},                             \
                           {VELMAR_SPANS_##CLASS(VELMAR_SPAN_POINTER)});                       \
  }
VELMAR_CLASSES(VELMAR_CLASS_PROBE)

}  // namespace

Words FieldProbe::get(const Base& view) const {
  if (type == "U8") return callGetter<U8>(view, getter);
  if (type == "U16") return callGetter<U16>(view, getter);
  if (type == "U32") return callGetter<U32>(view, getter);
  if (type == "U64") return callGetter<U64>(view, getter);
  if (type == "raw128") return callGetter<Raw128>(view, getter);
  return callGetter<Oru::PerUnitBitmap>(view, getter);
}

void FieldProbe::set(Base& view, const Words& words) const {
  if (type == "U8") return callSetter<U8, U8>(view, setter, words);
  if (type == "U16") return callSetter<U16, U16>(view, setter, words);
  if (type == "U32") return callSetter<U32, U32>(view, setter, words);
  if (type == "U64") return callSetter<U64, const U64&>(view, setter, words);
  if (type == "raw128") return callSetter<Raw128, const Raw128&>(view, setter, words);
  callSetter<Oru::PerUnitBitmap, Oru::PerUnitBitmap>(view, setter, words);
}

U32 FieldProbe::typeBits() const {
  return type[0] == 'U' ? static_cast<U32>(std::stoul(std::string(type.substr(1)))) : 0;
}

std::string FieldProbe::getterSignature(const std::string& view) const {
  return std::string(value) + " Velmar::" + view + "::" + accessor + "() const";
}
std::string FieldProbe::setterSignature(const std::string& view) const {
  return "void Velmar::" + view + "::" + accessor + "Is(" + std::string(parameter) + ")";
}
std::string FieldProbe::lengthSignature(const std::string& view) const {
  return "U16 Velmar::" + view + "::" + accessor + "Len() const";
}
std::string FieldProbe::offsetSignature(const std::string& view) const {
  return "U16 Velmar::" + view + "::" + accessor + "Offset() const";
}
std::string FieldProbe::validitySignature(const std::string& view) const {
  return "bool Velmar::" + view + "::is" + capitalised + "Valid() const";
}

const FieldProbe* ClassProbe::find(const std::string& accessor) const {
  for (const FieldProbe& probe : fields) {
    if (probe.accessor == accessor) return &probe;
  }
  return nullptr;
}

const std::vector<ClassProbe>& classProbes() {
  static const std::vector<ClassProbe> probes = {
#define VELMAR_MAKE_PROBE(CLASS) makeProbe_##CLASS(),
      VELMAR_CLASSES(VELMAR_MAKE_PROBE)
#undef VELMAR_MAKE_PROBE
  };
  return probes;
}

U32 anyChipOf(const ClassProbe& probe) { return firstChip(probe.chipTypeVariantValid); }

}  // namespace VelmarTest
