// SPDX-License-Identifier: MIT
//
// songsweep-listen: takes the fingerprints of the files whose paths come on standard input, each ended by a
// zero byte, and answers each with a line of ListenAnswer.h. It is started, watched and ended by
// ListenProcess.
#include "sound/ListenAnswer.h"
#include "sound/listen/Listener.h"
#include "sound/listen/ProcessLimits.h"

#include <iostream>
#include <string>

namespace {

constexpr unsigned longestSeconds = 15; // beyond what the parent waits

} // namespace

int main() {
    using namespace songsweep;
    limitThisProcess();
    for (std::string path; std::getline(std::cin, path, '\0');) {
        endThisProcessAfter(longestSeconds);
        const std::string answer = answerLine(listenTo(path));
        endThisProcessAfter(0);
        std::cout << answer << std::flush;
    }
    return 0;
}
