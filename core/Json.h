#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Text.h"

namespace Velmar {
namespace Core {

/// Writes JSON at the end of a text.
class JsonWriter {
 public:
  /// `indent`: blanks for each level, each member on a line of its own; 0: no blanks at all.
  explicit JsonWriter(std::string& to, unsigned indent = 0) : to_(to), indent_(indent) {}

  JsonWriter& openObject() { return open('{'); }
  JsonWriter& closeObject() { return close('}'); }
  JsonWriter& openList() { return open('['); }
  JsonWriter& closeList() { return close(']'); }
  JsonWriter& key(std::string_view name);
  JsonWriter& text(std::string_view value);
  JsonWriter& number(U64 value);
  JsonWriter& flag(bool value) { return raw(value ? "true" : "false"); }
  JsonWriter& null() { return raw("null"); }
  /// A value that is JSON already.
  JsonWriter& raw(std::string_view json);

 private:
  JsonWriter& open(char bracket);
  JsonWriter& close(char bracket);
  void separate();
  void newLine();

  std::string& to_;
  unsigned indent_;
  unsigned level_ = 0;
  bool isFirst_ = true;  ///< nothing stands in the object or list yet
  bool isAfterKey_ = false;
};

std::string jsonText(std::string_view text);
std::string jsonList(const std::vector<std::string>& list);

}  // namespace Core
}  // namespace Velmar
