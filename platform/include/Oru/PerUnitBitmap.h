#pragma once

#include <cstddef>

#include "AsicUtils/Export.h"
#include "AsicUtils/Types.h"
#include "Morvo/String.h"

namespace Oru {

/// A set of ports, held as a list of 32-bit words: word i holds ports 32i to 32i + 31, port 32i in
/// bit 0. Up to 288 ports are stored in the object, more on the heap.
class VELMAR_PLATFORM_EXPORT PerUnitBitmap {
 public:
  /// No words, no ports.
  PerUnitBitmap() noexcept : wordCount_(0), heap_(nullptr), heapWords_(0) {}
  /// The words for `ports` ports, with no port set.
  explicit PerUnitBitmap(U32 ports) : PerUnitBitmap() {
    if (ports != 0) growTo((ports - 1) / 32);
  }
  PerUnitBitmap(const PerUnitBitmap& other) : PerUnitBitmap() { assign(other); }
  PerUnitBitmap(PerUnitBitmap&& other) noexcept : PerUnitBitmap() { take(other); }
  PerUnitBitmap& operator=(const PerUnitBitmap& other) {
    if (this != &other) assign(other);
    return *this;
  }
  PerUnitBitmap& operator=(PerUnitBitmap&& other) noexcept {
    if (this != &other) {
      release();
      take(other);
    }
    return *this;
  }
  ~PerUnitBitmap() { release(); }

  /// Number of words in the list.
  U32 wordCount() const { return wordCount_; }
  /// Word `index`; an index outside the list throws Morvo::VectorOutOfRangeException.
  U32 word(U32 index) const {
    if (index >= wordCount_) throwOutOfRange(index);
    return words()[index];
  }
  /// Sets word `index`; a shorter list grows to it with zero words. The largest index throws
  /// std::length_error: the count of words would overflow.
  void bitListIs(U32 index, U32 word) {
    if (__builtin_expect(index >= wordCount_, false)) growTo(index);
    words()[index] = word;
  }

  /// Adds a port; the list grows to the word that holds it.
  void set(U32 port);
  /// Removes a port; does nothing for a port outside the list.
  void clear(U32 port);
  /// Whether a port is in the set; false outside the list.
  bool test(U32 port) const;
  /// The first port of the set that is not below `from`, or `noPort`.
  U32 nextPort(U32 from) const;
  static constexpr U32 noPort = 0xffffffffU;

  /// Iterates over the ports of the set in ascending order: `for (U32 port : bitmap)`.
  class Iterator {
   public:
    Iterator(const PerUnitBitmap& bitmap, U32 port) : bitmap_(&bitmap), port_(port) {}
    U32 operator*() const { return port_; }
    Iterator& operator++() {
      port_ = bitmap_->nextPort(port_ + 1);
      return *this;
    }
    bool operator!=(const Iterator& other) const { return port_ != other.port_; }

   private:
    const PerUnitBitmap* bitmap_;
    U32 port_;
  };
  Iterator begin() const { return {*this, nextPort(0)}; }
  Iterator end() const { return {*this, noPort}; }

  /// The ports as ranges, such as "0-3,17"; empty for no ports.
  Morvo::String ranges() const;

  /// Equal if the same ports are set, whatever the number of words.
  friend VELMAR_PLATFORM_EXPORT bool operator==(const PerUnitBitmap& a, const PerUnitBitmap& b);
  friend bool operator!=(const PerUnitBitmap& a, const PerUnitBitmap& b) { return !(a == b); }

 private:
  static constexpr U32 inlineWords = 9;

  const U32* words() const { return heap_ == nullptr ? inline_ : heap_; }
  U32* words() { return heap_ == nullptr ? inline_ : heap_; }

  void growTo(U32 index) {
    if (index >= inlineWords && index >= heapWords_) moveToHeap(index);
    if (wordCount_ == 0 && heap_ == nullptr) {
      // All at once: a few wide stores.
      for (U32& word : inline_) word = 0;
    } else {
      U32* list = words();
      for (U32 i = wordCount_; i <= index; ++i) list[i] = 0;
    }
    wordCount_ = index + 1;
  }
  void assign(const PerUnitBitmap& other) {
    wordCount_ = 0;
    if (other.wordCount_ > inlineWords && other.wordCount_ > heapWords_) {
      moveToHeap(other.wordCount_ - 1);
    }
    U32* list = words();
    const U32* from = other.words();
    for (U32 i = 0; i < other.wordCount_; ++i) list[i] = from[i];
    wordCount_ = other.wordCount_;
  }
  void take(PerUnitBitmap& other) noexcept {
    wordCount_ = other.wordCount_;
    heap_ = other.heap_;
    heapWords_ = other.heapWords_;
    if (heap_ == nullptr) {
      for (U32 i = 0; i < wordCount_; ++i) inline_[i] = other.inline_[i];
    }
    other.wordCount_ = 0;
    other.heap_ = nullptr;
    other.heapWords_ = 0;
  }
  void release() noexcept {
    if (heap_ != nullptr) freeHeap();
  }
  /// Makes room for word `index`.
  void moveToHeap(U32 index);
  void freeHeap() noexcept;
  [[noreturn]] void throwOutOfRange(U32 index) const;

  U32 wordCount_;
  U32 inline_[inlineWords];
  U32* heap_;
  U32 heapWords_;
};

}  // namespace Oru
