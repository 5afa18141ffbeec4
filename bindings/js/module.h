#ifndef VELMAR_MODULE_H
#define VELMAR_MODULE_H

#include "c/velmar.h"

// What the module for JavaScript has beside velmar.h: calls that spare it documents of megabytes.

#ifdef __cplusplus
extern "C" {
#endif

/// First bit, width and 1 for an overlap of each field of the table, three numbers each; the width of a
/// field that the chip lacks is 0.
VELMAR_API void velmar_places(const velmar_layout* layout, uint32_t* places);
/// The value of a field as people read it: a number, or the ports of a bitmap such as "0-3,17". It is
/// good until the next call.
VELMAR_API const char* velmar_value_text(const velmar_layout* layout, uint32_t field,
                                         const void* entry, size_t entry_size);
/// The entries at `count` positions, or all if `positions` is NULL and `count` 0, as CSV.
VELMAR_API velmar_code velmar_entries_csv(const velmar_dump* dump, const uint32_t* positions,
                                          size_t count, char** text);
/// The indexes of the entries that differ between two dumps of one layout, or that one of them lacks.
/// `room` is at least the number of entries of both.
VELMAR_API velmar_code velmar_differing(const velmar_dump* before, const velmar_dump* after,
                                        uint32_t* indexes, size_t room, size_t* count);
/// What velmar_diff() gives, of entries that meet all conditions in one of the dumps; or as CSV.
VELMAR_API velmar_code velmar_diff_where(const velmar_dump* before, const velmar_dump* after,
                                         const char* const* conditions, size_t condition_count,
                                         uint32_t is_csv, char** text);
/// What velmar_compare() gives as people read it, with a row for fields of a family that change alike:
/// a JSON list of the texts table, part, old, new, change.
VELMAR_API velmar_code velmar_compare_rows(uint32_t before, uint32_t after, uint32_t table,
                                           char** text);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif
