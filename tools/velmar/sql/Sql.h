#pragma once

#include "verbs/Requests.h"

namespace Tool {

struct SqlRequest {
  Texts data;
  std::optional<Catalogue::Chip> chip;
  U8 variant = 0;
  std::string statement;  ///< or several; empty: those of standard input
  OutputRequest output;
  bool skipsBad = false;
};

/// Answers the statements, or those of standard input.
int runSql(const SqlRequest& request);

}  // namespace Tool
