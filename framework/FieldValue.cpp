#include "Velmar/FieldValue.h"

#include <algorithm>

#include "Detail/CopyBits.h"

namespace Velmar {
namespace {

/// The value of a hexadecimal digit.
U32 digitValue(char digit) {
  if (digit <= '9') return static_cast<U32>(digit - '0');
  return static_cast<U32>((digit | 0x20) - 'a') + 10;
}

/// std::to_string would make the library export a table of the C++ library's.
void appendDecimal(std::string& text, U64 number) {
  char digits[20];
  char* at = digits + sizeof(digits);
  do *--at = static_cast<char>('0' + number % 10);
  while ((number /= 10) != 0);
  text.append(at, digits + sizeof(digits));
}

}  // namespace

FieldValue::FieldValue(U32 width) : width_(width) {
  for (U32 i = 0; i < wordCount(); ++i) words_[i] = 0;
}

FieldValue FieldValue::read(Catalogue::BitRange range, const U8* entry, U32 entryBytes) {
  FieldValue value(range.width);
  Detail::copyBits(reinterpret_cast<U8*>(value.words_.data()),
                   static_cast<int>(4 * value.wordCount()), entry, static_cast<int>(entryBytes),
                   range.width, 0, range.offset);
  return value;
}

void FieldValue::write(Catalogue::BitRange range, U8* entry, U32 entryBytes) const {
  Detail::copyBits(entry, static_cast<int>(entryBytes), reinterpret_cast<const U8*>(words_.data()),
                   static_cast<int>(4 * wordCount()), range.width, range.offset, 0);
}

bool FieldValue::isZero() const {
  for (U32 i = 0; i < wordCount(); ++i) {
    if (words_[i] != 0) return false;
  }
  return true;
}

std::optional<FieldValue> FieldValue::resized(U32 width) const {
  FieldValue value(width);
  if (nextBit(std::min(width, width_)) != width_) return std::nullopt;
  for (U32 i = 0; i < std::min(wordCount(), value.wordCount()); ++i) value.words_[i] = words_[i];
  return value;
}

bool operator==(const FieldValue& a, const FieldValue& b) {
  if (a.width_ != b.width_) return false;
  for (U32 i = 0; i < a.wordCount(); ++i) {
    if (a.words_[i] != b.words_[i]) return false;
  }
  return true;
}

bool operator<(const FieldValue& a, const FieldValue& b) {
  for (U32 i = a.wordCount(); i-- > 0;) {
    if (a.words_[i] != b.words_[i]) return a.words_[i] < b.words_[i];
  }
  return false;
}

bool FieldValue::contains(const FieldValue& other) const {
  FieldValue both = *this;
  both.add(other);
  return both == *this;
}

bool FieldValue::overlaps(const FieldValue& other) const {
  FieldValue rest = *this;
  rest.remove(other);
  return rest != *this;
}

void FieldValue::add(const FieldValue& other) {
  for (U32 i = 0; i < wordCount(); ++i) words_[i] |= other.words_[i];
}

void FieldValue::remove(const FieldValue& other) {
  for (U32 i = 0; i < wordCount(); ++i) words_[i] &= ~other.words_[i];
}

std::string FieldValue::hexDigits() const {
  char digits[mostBits / 4];
  char* const end = digits + 8 * wordCount();
  char* at = end;
  for (U32 i = 0; i < wordCount(); ++i) {
    for (U32 shift = 0; shift < 32; shift += 4) *--at = "0123456789abcdef"[words_[i] >> shift & 15];
  }
  while (at + 1 < end && *at == '0') ++at;
  return {at, end};
}

std::optional<U64> FieldValue::number() const {
  for (U32 i = 2; i < wordCount(); ++i) {
    if (words_[i] != 0) return std::nullopt;
  }
  const U64 high = wordCount() > 1 ? words_[1] : 0;
  return high << 32 | words_[0];
}

std::vector<U32> FieldValue::ports() const {
  std::vector<U32> ports;
  for (U32 bit = nextBit(0); bit < width_; bit = nextBit(bit + 1)) ports.push_back(bit);
  return ports;
}

std::string FieldValue::portRanges() const { return isZero() ? "none" : rangesText(ports()); }

std::string FieldValue::text(Catalogue::ValueType type) const {
  if (type == Catalogue::ValueType::bitmap) return portRanges();
  if (width_ > exactBits) return hex();
  std::string text;
  appendDecimal(text, *number());
  return text;
}

U32 FieldValue::nextBit(U32 bit) const {
  while (bit < width_) {
    const U32 rest = words_[bit / 32] >> bit % 32;
    if (rest != 0) return std::min(width_, bit + static_cast<U32>(__builtin_ctz(rest)));
    bit = (bit / 32 + 1) * 32;
  }
  return width_;
}

void FieldValue::setBit(U32 bit) { words_[bit / 32] |= 1U << bit % 32; }

bool FieldValue::setHexDigits(std::string_view digits) {
  U32 bit = 0;
  for (size_t i = digits.size(); i-- > 0; bit += 4) {
    const U32 digit = digitValue(digits[i]);
    if (digit == 0) continue;
    if (bit >= width_ || (width_ - bit < 4 && digit >> (width_ - bit) != 0)) return false;
    words_[bit / 32] |= digit << bit % 32;
  }
  return true;
}

bool FieldValue::setNumber(U64 number) {
  if (width_ < 64 && number >> width_ != 0) return false;
  words_[0] = static_cast<U32>(number);
  if (wordCount() > 1) words_[1] = static_cast<U32>(number >> 32);
  return true;
}

std::string rangesText(Span<U32> numbers) {
  std::string text;
  for (std::size_t first = 0, next; first < numbers.size(); first = next) {
    for (next = first + 1; next < numbers.size() && numbers[next] - numbers[next - 1] <= 1;) ++next;
    if (!text.empty()) text += ',';
    appendDecimal(text, numbers[first]);
    if (numbers[next - 1] == numbers[first]) continue;
    text += '-';
    appendDecimal(text, numbers[next - 1]);
  }
  return text;
}

}  // namespace Velmar
