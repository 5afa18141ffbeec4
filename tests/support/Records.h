#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Kiv/SassertHelper.h"
#include "Kiv/Trace.h"

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
  std::string text;
};

/// Captures trace lines and soft assertions during its lifetime; lines of level 8 only on request.
class Records {
 public:
  enum class EntryLines { off, on };

  explicit Records(EntryLines entryLines = EntryLines::off) {
    Kiv::TraceFacility::sinkIs(
        [](const Kiv::TraceRecord& each, void* context) {
          static_cast<Records*>(context)->lines.push_back(
              {each.handle, each.level, each.file, each.line, each.function, each.text});
        },
        this);
    Kiv::SassertHelper::sinkIs(
        [](const Kiv::SassertRecord& each, void* context) {
          static_cast<Records*>(context)->softAssertions.push_back(
              {each.expression, each.file, each.text});
        },
        this);
    Kiv::TraceFacility::levelIs(traceHandleName, 8, entryLines == EntryLines::on);
  }
  ~Records() {
    Kiv::TraceFacility::levelIs(traceHandleName, 8, false);
    Kiv::TraceFacility::sinkIs(nullptr, nullptr);
    Kiv::SassertHelper::sinkIs(nullptr, nullptr);
  }
  Records(const Records&) = delete;
  Records& operator=(const Records&) = delete;

  std::vector<TraceLine> lines;
  std::vector<SoftAssertion> softAssertions;

  /// The texts of the lines so far, which are then cleared.
  std::vector<std::string> takeTexts() {
    std::vector<std::string> texts;
    for (const TraceLine& line : std::exchange(lines, {})) texts.push_back(line.text);
    return texts;
  }
};

}  // namespace VelmarTest
