#include "output/Cell.h"

#include <nlohmann/json.hpp>

#include "model/Text.h"

namespace Tool {

Cell::Cell(U64 number) : json_(std::to_string(number)), text_(json_) {}
Cell::Cell(const std::vector<std::string>& list)
    : Cell(nlohmann::json(list).dump(), join(list, " ")) {}

Cell Cell::shownAs(std::string text) && { return {json(), std::move(text)}; }

std::string Cell::json() const { return json_.empty() ? nlohmann::json(text_).dump() : json_; }

std::string jsonObject(const std::vector<std::string>& names, const Row& row) {
  std::string object = "{";
  for (size_t i = 0; i < row.size(); ++i) {
    if (i != 0) object += ',';
    object += '"' + names[i] + "\":" + row[i].json();
  }
  return object + '}';
}

}  // namespace Tool
