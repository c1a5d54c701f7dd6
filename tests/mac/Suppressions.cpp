// SPDX-License-Identifier: MIT

// GNUstep keeps its tables of classes to the end of the process; what the program itself leaks still counts.
// The name is LeakSanitizer's.
extern "C" const char* __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier)

extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libobjc\nleak:libgnustep-base\n";
}
