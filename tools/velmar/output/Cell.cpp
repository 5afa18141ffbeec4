#include "output/Cell.h"

#include <rapidjson/writer.h>

#include "model/Json.h"
#include "model/Text.h"

namespace Tool {
namespace {

using JsonWriter = rapidjson::Writer<JsonBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonMemory>;

std::string quoted(const std::string& text) {
  JsonBuffer json;
  JsonWriter(json).String(text.c_str());
  return json.GetString();
}

std::string listJson(const std::vector<std::string>& list) {
  JsonBuffer json;
  JsonWriter writer(json);
  writer.StartArray();
  for (const std::string& text : list) writer.String(text.c_str());
  writer.EndArray();
  return json.GetString();
}

}  // namespace

Cell::Cell(U64 number) : json_(std::to_string(number)), text_(json_) {}
Cell::Cell(const std::vector<std::string>& list) : Cell(listJson(list), join(list, " ")) {}

Cell Cell::shownAs(std::string text) && { return {json(), std::move(text)}; }

std::string Cell::json() const { return json_.empty() ? quoted(text_) : json_; }

std::string jsonObject(const std::vector<std::string>& names, const Row& row) {
  std::string object = "{";
  for (size_t i = 0; i < row.size(); ++i) {
    if (i != 0) object += ',';
    object += '"' + names[i] + "\":" + row[i].json();
  }
  return object + '}';
}

}  // namespace Tool
