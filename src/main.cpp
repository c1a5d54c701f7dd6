// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstring>

int main(int argumentCount, char** arguments) {
    if (argumentCount > 1 && std::strcmp(arguments[1], "--version") == 0)
        std::puts("Songsweep " SONGSWEEP_VERSION);
    return 0;
}
