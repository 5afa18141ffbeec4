// Writes the reference documents: a page for each class and an index.

#include <cstdio>
#include <fstream>

#include "Pages.h"

namespace {

bool writePage(const std::string& path, const std::string& page) {
  std::ofstream file(path, std::ios::binary);
  file << page;
  file.close();
  if (file) return true;
  std::fprintf(stderr, "reference-pages: %s: cannot be written\n", path.c_str());
  return false;
}

bool writePages(const std::string& directory) {
  using namespace Velmar;
  for (U32 i = 0; i < Catalogue::tableCount(); ++i) {
    const Catalogue::Table table = Catalogue::table(i);
    const std::string path = directory + "/" + table.name() + ".md";
    if (!writePage(path, Reference::pageOf(table))) return false;
  }
  return writePage(directory + "/README.md", Reference::indexPage());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: reference-pages DIRECTORY\n", stderr);
    return 2;
  }
  return writePages(argv[1]) ? 0 : 2;
}
