// SPDX-License-Identifier: MIT
//
// Listening to MP3 files of four minutes, against a bare decode of the same minute by the same codecs, in one
// run: copies a second and core, and the ratio of the CPU times. Then the comparison of a group of 10 000
// copies, of one recording, of 100 and of 10 000.
//
//   sound-benchmark FILE.mp3
#include "platform/StandardDescriptors.h"
#include "sound/ListenProcess.h"
#include "sound/SoundSets.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace {

using namespace songsweep;
using namespace std::chrono_literals;

constexpr int heardFiles = 40;
constexpr int copies = 10'000;
constexpr double aimedRatio = 1.5;
constexpr double aimedCopies = 15;
constexpr double aimedSeconds = 10;

const char* verdict(bool reached) { return reached ? "reached" : "missed"; }

double cpuSeconds(int who) {
    rusage usage{};
    getrusage(who, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double listenToAll(const std::string& file) {
    const double before = cpuSeconds(RUSAGE_CHILDREN);
    {
        ListenProcess process(SONGSWEEP_LISTEN, 10s);
        for (int i = 0; i < heardFiles; ++i)
            if (!process.listen(file, [] { return false; })) std::exit(1);
    }
    return cpuSeconds(RUSAGE_CHILDREN) - before;
}

/// The CPU time of as many runs of the tool, each of which decodes so many seconds.
double decodeAll(const std::string& file, const std::string& seconds) {
    const double before = cpuSeconds(RUSAGE_CHILDREN);
    const std::string command =
        "ffmpeg -v quiet -nostdin -threads 1 -t " + seconds + " -i '" + file + "' -f null -";
    for (int i = 0; i < heardFiles; ++i)
        if (std::system(command.c_str()) != 0) std::exit(1);
    return cpuSeconds(RUSAGE_CHILDREN) - before;
}

double compareGroup(unsigned recordings) {
    std::vector<Fingerprint> sounds;
    std::vector<HeardCopy> group(copies);
    for (unsigned i = 0; i < copies; ++i) {
        std::mt19937 random(i % recordings);
        std::mt19937 wear(i);
        Fingerprint sound(470);
        for (std::uint32_t& item : sound)
            item = static_cast<std::uint32_t>(random() ^ (wear() & wear() & wear() & wear()));
        sounds.push_back(std::move(sound));
    }
    for (unsigned i = 0; i < copies; ++i)
        group[i] = {&sounds[i], 240};
    const double before = cpuSeconds(RUSAGE_SELF);
    if (soundSets(group).size() != copies) std::exit(1);
    return cpuSeconds(RUSAGE_SELF) - before;
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) return 2;
    survivePipesThatClose();
    const double heard = listenToAll(arguments[1]);
    const double start = decodeAll(arguments[1], "0.03"); // of the tool, which is no decoding
    const double decoded = decodeAll(arguments[1], "60") - start;
    std::printf("%.1f copies a second and core (%.0f) %s\n", heardFiles / heard, aimedCopies,
                verdict(heardFiles / heard >= aimedCopies));
    std::printf("%.2f times a bare decode (%.1f) %s\n", heard / decoded, aimedRatio,
                verdict(heard / decoded <= aimedRatio));
    for (const unsigned recordings : {1U, 100U, 10'000U}) {
        const double seconds = compareGroup(recordings);
        std::printf("10000 copies of %u recordings compared in %.2f s (%.0f) %s\n", recordings, seconds,
                    aimedSeconds, verdict(seconds < aimedSeconds));
    }
    return 0;
}
