// SPDX-License-Identifier: MIT
//
// Grouping a million tracks where small differences do not count, against the exact grouping of the same
// tracks in the same run, with all its events. One name in ten has letters beyond ASCII, one in ten a part of
// its own, one in five its number before it; one track in ten is a copy. CPU time, the least of several
// turns.
#include "dupes/BuildResultProc.h"
#include "library/TrackStorage.h"
#include "library/ValueFormats.h"
#include "operations/NotificationCenter.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <memory>
#include <random>
#include <string>

namespace {

using namespace songsweep;

constexpr int trackCount = 1'000'000;
constexpr int tracksOfAlbum = 12;
constexpr int turns = 3;
constexpr double aimedRatio = 1.4;

constexpr std::array firstWords = {"Silent", "Golden", "Midnight", "Paper",   "Électric",
                                   "Broken", "Summer", "Hidden",   "Endless", "Crimson"};
constexpr std::array parts = {" (Live)", " (feat. Someone)", " - Remastered 2009", " [Remix]"};

std::string nameOf(int number, std::mt19937& random) {
    std::string name = firstWords[random() % firstWords.size()];
    name += " Song, No. " + std::to_string(number);
    if (random() % 10 == 0) name += parts[random() % parts.size()];
    const int onAlbum = number % tracksOfAlbum + 1;
    return random() % 5 == 0 ? (onAlbum < 10 ? "0" : "") + std::to_string(onAlbum) + " " + name : name;
}

std::shared_ptr<TrackList> makeTracks() {
    auto list = std::make_shared<TrackList>();
    std::mt19937 random(20261121);
    for (int i = 0; i < trackCount; ++i) {
        const int number = i % 10 == 9 ? static_cast<int>(random() % trackCount) : i;
        TrackRecord& record = list->storage->makeRecord();
        record.name = list->storage->store(nameOf(number, random));
        record.artist = list->storage->intern("The Artist of " + std::to_string(number / 100));
        record.album = list->storage->intern("Album " + std::to_string(number / tracksOfAlbum));
        record.timev = 120 + number % 240;
        record.time = list->storage->intern(SecToTime(record.timev * 1000));
        record.tracknumber = static_cast<std::int16_t>(number % tracksOfAlbum + 1);
        list->records.push_back(&record);
    }
    return list;
}

double cpuSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct Cost {
    double seconds = 1e9;
    int rows = 0;
};

void measure(Cost& cost, const SearchParameters& parameters, const TrackList& tracks) {
    const auto list = std::make_shared<TrackList>(tracks);
    NotificationCenter<WorkerEvent> center;
    int rows = 0;
    center.setObserver([&](const WorkerEvent& event) { rows += event.name == EventName::step2; });
    const double before = cpuSeconds();
    BuildResultProc(list, parameters, center).main();
    cost = {std::min(cost.seconds, cpuSeconds() - before), rows};
}

} // namespace

int main() {
    const std::shared_ptr<TrackList> tracks = makeTracks();
    const SearchParameters exactly{.issamename = true, .issameartist = true, .issametime = true};
    SearchParameters similarly = exactly;
    similarly.issimilar = true;
    Cost exact;
    Cost similar;
    for (int turn = 0; turn < turns; ++turn) {
        measure(exact, exactly, *tracks);
        measure(similar, similarly, *tracks);
    }
    const double ratio = similar.seconds / exact.seconds;
    std::printf("exact %.3f s, %d rows; similar %.3f s, %d rows; ratio %.2f (%.1f) %s\n", exact.seconds,
                exact.rows, similar.seconds, similar.rows, ratio, aimedRatio,
                ratio <= aimedRatio ? "reached" : "missed");
    return 0;
}
