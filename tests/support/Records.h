#pragma once

#include <string>
#include <vector>

#include "AsicUtils/Types.h"

namespace VelmarTest {

constexpr const char* traceHandleName = "AsicUtilsVelmarMetaInfo";

struct TraceLine {
  std::string handle;
  U32 level;
  std::string file;
  U32 line;
  std::string function;
  std::string text;
};

struct SoftAssertion {
  std::string expression;
  std::string file;
  U32 line;
  std::string function;
  std::string text;
};

/// Captures trace lines and soft assertions while it lives; on level 8 only where asked.
class Records {
 public:
  enum class EntryLines { off, on };

  explicit Records(EntryLines entryLines = EntryLines::off);
  ~Records();
  Records(const Records&) = delete;
  Records& operator=(const Records&) = delete;

  std::vector<TraceLine> lines;
  std::vector<SoftAssertion> softAssertions;

  /// The texts of the lines so far, which are then forgotten.
  std::vector<std::string> takeTexts();
};

}  // namespace VelmarTest
