#include "support/Records.h"

#include <utility>

#include "Kiv/SassertHelper.h"
#include "Kiv/Trace.h"

namespace VelmarTest {

Records::Records(EntryLines entryLines) {
  Kiv::TraceFacility::sinkIs(
      [](const Kiv::TraceRecord& record, void* context) {
        static_cast<Records*>(context)->lines.push_back(
            {record.handle, record.level, record.file, record.line, record.function, record.text});
      },
      this);
  Kiv::SassertHelper::sinkIs(
      [](const Kiv::SassertRecord& record, void* context) {
        static_cast<Records*>(context)->softAssertions.push_back(
            {record.expression, record.file, record.line, record.function, record.text});
      },
      this);
  Kiv::TraceFacility::levelIs(traceHandleName, 8, entryLines == EntryLines::on);
}

Records::~Records() {
  Kiv::TraceFacility::levelIs(traceHandleName, 8, false);
  Kiv::TraceFacility::sinkIs(nullptr, nullptr);
  Kiv::SassertHelper::sinkIs(nullptr, nullptr);
}

std::vector<std::string> Records::takeTexts() {
  std::vector<std::string> texts;
  for (const TraceLine& line : std::exchange(lines, {})) texts.push_back(line.text);
  return texts;
}

}  // namespace VelmarTest
