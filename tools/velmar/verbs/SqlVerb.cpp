#include "sql/Sql.h"
#include "verbs/Verbs.h"

namespace Tool {

Verb sqlVerb() {
  const auto request = std::make_shared<SqlRequest>();
  SqlRequest& to = *request;
  return {
      "sql",
      "Answers questions in SQL over dumps and snapshots, without an import.",
      "A table is named by its class, with or without Entry; a row is an entry that a dump has. "
      "Its "
      "columns are \"index\", identifier, address, nonzero, reserved and the fields; bitmaps are "
      "texts "
      "such as 0-3,17. Functions: has_port(bitmap, 21), port_count(bitmap), hex(number) and the "
      "table "
      "ports(bitmap). The manual page, velmar(1), has more under SQL. Statements only read. "
      "Without "
      "STATEMENT they come from standard input, on a terminal from a prompt.",
      {{Positionals::statement, into(to.statement)}},
      {{Options::data, into(to.data)},
       {Options::chipOfData, into(to.chip)},
       {Options::variant, intoVariant(to.variant)},
       {Options::skipBad, into(to.skipsBad)},
       {Options::listFormat, into(to.output.format)},
       {Options::output, into(to.output.file)},
       {Options::color, into(to.output.color)}},
      {"velmar sql --data samples/lab-bcm56990/ 'select stg, count(*) from vlan group by stg'",
       "velmar sql --chip 56980 --data egrvlan=samples/egr-vlan-bcm56980.bin --format csv 'select "
       "\"index\", port_count(portBitmap) from egrvlan'"},
      [request] { return runSql(*request); }};
}

}  // namespace Tool
