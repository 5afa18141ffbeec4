#include "Kiv/SassertHelper.h"

#include <cstdio>

#include "SinkSlot.h"

namespace Kiv {
namespace {

void writeToStandardError(const SassertRecord& record, void*) {
  std::fprintf(stderr, "soft assertion \"%s\" %s:%u %s:%s\n", record.expression, record.file,
               record.line, record.function, record.text);
}

SinkSlot<SassertRecord>& sinkSlot() {
  static SinkSlot<SassertRecord>& theSlot = *new SinkSlot<SassertRecord>(&writeToStandardError);
  return theSlot;
}

}  // namespace

void SassertHelper::sinkIs(SassertSink sink, void* context) { sinkSlot().sinkIs(sink, context); }

SassertHelper::~SassertHelper() {
  sinkSlot().emit({expression_, file_, line_, function_, stream_.text().c_str()});
}

}  // namespace Kiv
