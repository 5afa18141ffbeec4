#include "tools/headers/HeaderText.h"

#include <algorithm>

#include "framework/Names.h"

namespace Headers {
namespace {

constexpr std::size_t lineWidth = 100;

std::string join(const std::vector<std::string>& parts, const std::string& separator) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : separator) + part;
  return text;
}

std::string capitalised(std::string text) {
  text[0] = toUpper(text[0]);
  return text;
}

/// A comment, folded to the width of a line.
std::string comment(const std::string& indent, const std::string& text) {
  const std::string margin = indent + "///";
  std::string lines;
  std::string line = margin;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find(' ', from), text.size());
    const std::string word = text.substr(from, end - from);
    if (line.size() + 1 + word.size() > lineWidth) {
      lines += line + "\n";
      line = margin;
    }
    line += " " + word;
    from = end + 1;
  }
  return lines + line + "\n";
}

std::string bits(U32 width) { return std::to_string(width) + (width == 1 ? " bit" : " bits"); }

/// The width of a field, folded: "12 bits, 13 from BCM56990_B0".
std::string widthText(const ClassRows& rows, const FieldRows& field) {
  std::string text;
  U32 last = 0;
  for (std::size_t i = 0; i < rows.chips.size(); ++i) {
    const U32 width = field.widths[i];
    if (width == 0 || width == last) continue;
    text += last == 0 ? bits(width) : ", " + std::to_string(width) + " from " + rows.chips[i];
    last = width;
  }
  return text;
}

/// The chips that have a field, in the shorter form: "all chips", "all chips but A", "A, B".
std::string chipsText(const ClassRows& rows, const FieldRows& field) {
  std::vector<std::string> present;
  std::vector<std::string> absent;
  for (std::size_t i = 0; i < rows.chips.size(); ++i) {
    (field.widths[i] == 0 ? absent : present).push_back(rows.chips[i]);
  }
  if (absent.empty()) return "all chips";
  if (absent.size() < present.size()) return "all chips but " + join(absent, ", ");
  return join(present, ", ");
}

/// The getter's comment.
std::string fieldText(const ClassRows& rows, const FieldRows& field) {
  const std::string start = capitalised(field.name.meaning) + ". " + field.name.hardwareName;
  const std::string width = widthText(rows, field);
  if (width.empty()) return start + ": on no chip.";
  return start + ": " + width + "; on " + chipsText(rows, field) + ".";
}

/// Begins the declaration of a member whose result is all that it does.
const std::string query = "VELMAR_NODISCARD ";

std::string member(const std::string& text, const std::string& declaration) {
  const std::string line = "  " + declaration + ";\n";
  if (line.size() <= lineWidth + 1) return comment("  ", text) + line;
  // Too long for a line: broken after the last comma that fits, as the formatter does.
  const std::size_t open = declaration.find('(');
  const std::size_t comma = declaration.rfind(", ", lineWidth - 3);
  return comment("  ", text) + "  " + declaration.substr(0, comma + 1) + "\n" +
         std::string(open + 3, ' ') + declaration.substr(comma + 2) + ";\n";
}

std::string fieldMembers(const ClassRows& rows, const FieldRows& field) {
  const std::string name = field.name.accessor;
  const std::string hardwareName = field.name.hardwareName;
  return "\n" +
         member(fieldText(rows, field),
                query + std::string(valueName(field.name.type)) + " " + name + "() const") +
         member("Sets " + hardwareName + ".",
                "void " + name + "Is(" + parameterName(field.name.type) + " value)") +
         member("Width of " + hardwareName + " in bits.", "U16 " + name + "Len() const") +
         member("First bit of " + hardwareName + " in the entry.",
                "U16 " + name + "Offset() const") +
         member("Whether the view has " + hardwareName + ".",
                query + std::string("bool is") + field.name.capitalised + "Valid() const");
}

/// A geometry value: the static member, and the one for the view's chip and variant.
std::string geometry(const std::string& text, const std::string& type, const std::string& name,
                     bool overrides = true) {
  return member(text, query + "static " + type + " " + name + "(U32 chipType, U8 variant)") +
         member("The same for the view's chip and variant.",
                query + type + " " + name + "() const" + (overrides ? " override" : ""));
}

std::string classComment(const ClassRows& rows) {
  const bool isTable = rows.kind == Kind::table;
  const std::string kind = isTable ? "memory" : "register array";
  const std::string block = rows.about.block == ingress ? "ingress" : "egress";
  const std::string part = isTable ? "entry" : "element";
  return comment("", capitalised(rows.about.purpose) + ".") + "///\n" +
         comment("", "A view of one " + part + " of this " + block + " " + kind +
                         ". The caller owns the bytes; bit 0 of the " + part +
                         " is bit 0 of the first byte. On " + join(rows.chips, ", ") +
                         ": \"from\" in the comments below follows this order.") +
         "///\n" +
         comment(
             "",
             "Two threads must not write through views of the same bytes, not even to different "
             "fields.") +
         R"(///
/// The members of a field F trace at level 8, then check in this order:
///  - F() and FIs(): "0" if the chip lacks the field, "variant_ == 0" if only the variant lacks it,
///    "len_ >= N" if the buffer ends before the end of the field. FIs() also: "value <= 0x<mask>"
///    if the value is too large and the width is not a multiple of 8. A bitmap with too few words
///    throws Morvo::VectorOutOfRangeException after its last word is written; surplus words are
///    ignored.
///  - FLen(): if the view lacks the field, the soft assertion " does not have field
///    <HARDWARE_NAME>", then "\"0\" == nullptr". FOffset(): "0" and "variant_ == 0" as for F().
///  - isFValid() never fails.
)" +
         comment("",
                 "A static member fails \"0\" for a chip without the " + kind +
                     " and \"variant == 0\" for a variant that the chip does not have, unless its "
                     "comment says otherwise.");
}

/// The members that every view has before its fields.
std::string viewMembers(const ClassRows& rows) {
  const std::string missing = "\" not in metainfo for " + rows.name + "!\"";
  const std::string rawBytes =
      std::to_string(rows.about.allFieldsBytes != 0 ? rows.about.allFieldsBytes
                     : rows.raw[0] == 'U'           ? std::stoul(rows.raw.substr(1)) / 8
                                                    : std::stoul(rows.raw.substr(3)) / 8);
  return "  using EntrySpans = AsicUtils::EntrySpans;\n\n" +
         member(
             "Binds the view to `buf`, `len` bytes that outlive it. If the chip or variant lacks "
             "the class: the soft assertion " +
                 missing + ", then \"\\\"0\\\" == nullptr\".",
             rows.name + "(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 variant)") +
         member("Does nothing.",
                "static void handleBuf(ChipType_ chipType, U8* buf, U16 len, bool flag, U8 "
                "variant)") +
         member("Whether the constructor accepts the pair. Never fails.",
                query + "static bool chipTypeVariantValid(ChipType_ chipType, U8 variant)") +
         member("True.", "bool isPrimary() const") +
         member(rows.kind == Kind::table ? "True: a memory." : "False: a register array.",
                "bool isTable() const override") +
         "\n" +
         member(
             "Sets a scalar field by identifier (Velmar/FieldId.h). The value is first "
             "truncated to the field's type. Any other identifier fails \"false\".",
             "void setField64(U32 fieldId, U64 value) override") +
         member("Width of a field in bits; 0 if the view lacks it.",
                "U16 fieldWidth(U32 fieldId) const override") +
         member(
             "First bit of a field. An identifier that the class does not declare fails \"false\".",
             "U16 fieldOffset(U32 fieldId) const override") +
         member("Whether the view has a field. Never fails.",
                query + "bool isFieldValid(U32 fieldId) const override") +
         member("The entry with its reserved bits zero. Fails \"len_ >= " + rawBytes +
                    "\" if the buffer is shorter, also on chips whose entries are shorter.",
                rows.raw + " getAllFields() const") +
         geometry("A one at every bit of an entry that belongs to a field.", "Raw8192",
                  "allFieldsMask") +
         geometry("Number of fields that the chip has.", "U32", "fieldCount") + "\n" +
         member("Whether an instance identifier is accepted.",
                query + "static bool hasIdentifier(U32 chipType, U8 variant, U32 identifier)") +
         member("The same for the view's chip and variant.",
                query + "bool hasIdentifier(U32 identifier) const override");
}

std::string addressMembers(const ClassRows& rows) {
  const std::string checks =
      rows.kind == Kind::table
          ? "\"tableEntry < N\", \"arrayIndex == 0\""
          : "\"tableEntry == 0\", \"arrayIndex < " + std::to_string(rows.about.elements) + "\"";
  return member(
             "S-channel address, access code and block (1 ingress, 2 egress). Returns false "
             "and writes nothing if the chip or variant lacks the class. Fails " +
                 checks + ", \"hasIdentifier( chipType, variant, identifier )\".",
             "static bool getSchanAddress(U32 chipType, U8 variant, U32& address, U32& "
             "accessType, U32& block, U16 identifier, U32 tableEntry, U16 arrayIndex)") +
         member("The same for the view's chip and variant.",
                "bool getSchanAddress(U32& address, U32& accessType, U32& block, U16 identifier, "
                "U32 tableEntry, U16 arrayIndex) const override");
}

std::string geometryMembers(const ClassRows& rows) {
  const bool isTable = rows.kind == Kind::table;
  std::string text = "\n" + geometry("Size of an entry in 32-bit words.", "U16", "width");
  text += member("The same as width().", query + std::string("static U16 ") +
                                             (isTable ? "tableWidth" : "regWidth") +
                                             "(U32 chipType, U8 variant)");
  text += geometry(isTable ? "1." : "Number of elements.", "U32", "arrayElements") +
          geometry("Number of instances: 1.", "U32", "instanceCount");
  if (!isTable) {
    return text + geometry("Address distance between two elements.", "U32", "addrStride", false) +
           geometry("0, even if hasIdentifier() accepts more.", "U32", "maxIdentifier");
  }
  text += geometry("Number of entries.", "U32", "entries") +
          geometry("Lowest index of an entry: 0.", "U32", "index_min", false) +
          geometry("0.", "U32", "arrayIndex_min", false) +
          geometry("The ranges of valid indices.", "EntrySpans", "entrySpans") +
          member("1 if the chip has the memory, else 0. Never fails.",
                 "static U32 tableVariantCount(U32 chipType)") +
          member("The same for the view's chip.", "U32 tableVariantCount() const override");
  for (const std::string& chip : rows.spans) {
    text += member("The valid indices on " + chip + " and on chips with as many entries.",
                   "static const AsicUtils::EntrySpan _entrySpans_" + chip + "[1]");
  }
  return text;
}

}  // namespace

std::string classHeader(const ClassRows& rows) {
  const bool hasBitmap =
      std::any_of(rows.fields.begin(), rows.fields.end(),
                  [](const FieldRows& field) { return field.name.type == ValueType::bitmap; });
  std::string text = derivedFrom("tables/" + rows.name + ".cpp") +
                     "#pragma once\n\n#include \"AsicUtils/BcmAsicBase.h\"\n"
                     "#include \"AsicUtils/ChipType.h\"\n";
  if (hasBitmap) text += "#include \"Oru/PerUnitBitmap.h\"\n";
  text += "#include \"Velmar/Export.h\"\n\nnamespace Velmar {\n\n" + classComment(rows) +
          "class VELMAR_EXPORT " + rows.name + " : public AsicUtils::BcmAsicBase {\n public:\n" +
          viewMembers(rows) + addressMembers(rows) + geometryMembers(rows);
  for (const FieldRows& field : rows.fields) text += fieldMembers(rows, field);
  return text + "};\n\n}  // namespace Velmar\n";
}

}  // namespace Headers
