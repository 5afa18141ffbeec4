// Joins the page of the layout explorer from its template, style sheet and modules and the
// catalogue of the library.

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "CatalogueText.h"
#include "Modules.h"

namespace {

using Explorer::readFile;

/// Puts a text in the place of "@name@".
void replace(std::string& page, const std::string& name, const std::string& text) {
  const std::string mark = "@" + name + "@";
  const size_t at = page.find(mark);
  if (at == std::string::npos) throw std::runtime_error("page.html has no " + mark);
  page.replace(at, mark.size(), text);
}

void writePage(const std::string& sources, const std::string& path) {
  std::string page = readFile(sources + "/page.html");
  replace(page, "style", readFile(sources + "/style.css"));
  replace(page, "catalogue", Explorer::catalogueText());
  replace(page, "modules", Explorer::joinedModules(sources + "/modules", "main.js"));
  std::ofstream file(path, std::ios::binary);
  file << page;
  file.close();
  if (!file) throw std::runtime_error(path + ": cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: explorer-page SOURCES PAGE\n", stderr);
    return 2;
  }
  try {
    writePage(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "explorer-page: %s\n", error.what());
    return 2;
  }
  return 0;
}
