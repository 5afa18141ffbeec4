#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

#include "c/velmar.h"
#include "core/Layout.h"
#include "core/Reading.h"

// What all functions of the C interface share.

/// A layout is the address of one of these.
struct velmar_layout {
  U8 table;
  U8 chip;
};

struct velmar_dump {
  Velmar::Core::Layout layout;
  Velmar::Core::Dump entries;
};

namespace Velmar {
namespace Binding {

using Core::Code;
using Core::Fault;

/// Keeps the fault for velmar_message() and velmar_last_fault(), and returns its code.
velmar_code fail(const Fault& fault);

inline Catalogue::Table tableOf(const velmar_layout* layout) {
  return Catalogue::table(layout->table);
}
inline Catalogue::Chip chipOf(const velmar_layout* layout) { return Catalogue::chip(layout->chip); }
inline Catalogue::Geometry geometryOf(const velmar_layout* layout) {
  return tableOf(layout).geometry(chipOf(layout).number);
}

velmar_code checkPointer(const void* pointer, const char* name);
struct NamedPointer {
  const void* pointer;
  const char* name;
};
velmar_code checkPointers(std::initializer_list<NamedPointer> pointers);
velmar_code checkTable(U32 table);
velmar_code checkChip(U32 chip);
velmar_code checkIndex(const char* what, size_t index, size_t count);
/// The field of a layout, which the chip has.
velmar_code checkField(const velmar_layout* layout, U32 field);
velmar_code checkSize(const char* what, size_t size, size_t expected, const char* unit = "bytes");

/// Whether bytes are whole entries, and at most as many as the table has.
velmar_code checkEntries(const velmar_layout* layout, size_t size);

/// The result of a function of the core; `into` stays as it is if it failed.
template <class Result>
velmar_code take(const Core::Expected<Result>& result, Result& into) {
  if (!result) return fail(result.error());
  into = *result;
  return VELMAR_OK;
}

/// Gives a structure to a caller, who may have an earlier or a later one. `first`: the size in the
/// first release.
template <class Facts>
velmar_code give(const Facts& facts, Facts* into, size_t size, size_t first = sizeof(Facts)) {
  if (const auto code = checkPointer(into, "the structure")) return code;
  if (size < first) {
    return fail(Fault(Code::size, "the structure has {} bytes", size)
                    .advise("give sizeof, at least {}", first));
  }
  std::memcpy(into, &facts, std::min(size, sizeof(facts)));
  if (size > sizeof(facts)) {
    std::memset(reinterpret_cast<U8*>(into) + sizeof(facts), 0, size - sizeof(facts));
  }
  return VELMAR_OK;
}

/// What a caller asks of a dump; `variant` is that of its layout.
velmar_code takeOptions(const velmar_read_options* options, Core::ReadOptions& into, U32& variant);

/// Runs what allocates: the one fault that the core does not give as a value is that there is no
/// memory.
template <class Body>
velmar_code allocating(const Body& body) {
#ifndef __cpp_exceptions
  return body();  // the C++ library ends the program
#else
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return fail(Fault(Code::memory, "there is no memory for the result")
                    .advise("free dumps and texts that are not needed any more"));
  }
#endif
}

}  // namespace Binding
}  // namespace Velmar
