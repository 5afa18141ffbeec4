// Loads two plugins, with global symbols, and traces in one.

#include <dlfcn.h>

#include <cstdio>

using LinesOf = unsigned (*)(bool);

int main(int count, char** paths) {
  LinesOf linesOf[2] = {};
  for (int i = 0; i < 2 && i + 1 < count; ++i) {
    void* const plugin = dlopen(paths[i + 1], RTLD_NOW | RTLD_GLOBAL);
    if (plugin == nullptr) std::fprintf(stderr, "%s\n", dlerror());
    if (plugin != nullptr) linesOf[i] = reinterpret_cast<LinesOf>(dlsym(plugin, "linesOf"));
    if (linesOf[i] == nullptr) return 1;
  }
  const unsigned first = linesOf[0](true);
  const unsigned second = linesOf[1](false);
  std::printf("the first plugin traced %u lines, the second %u\n", first, second);
  return first != 0 && first < 1000 && second == 0 ? 0 : 1;
}
