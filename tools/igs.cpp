// The igs command-line tool.
#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
  if (argc > 1 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("igs 0.1.0\n");
    return 0;
  }
  std::fprintf(stderr, "usage: igs --version\n"
                       "(check, repair, print and stats arrive with the file reader)\n");
  return argc > 1 && std::strcmp(argv[1], "--help") == 0 ? 0 : 2;
}
