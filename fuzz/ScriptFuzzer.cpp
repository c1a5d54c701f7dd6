// SPDX-License-Identifier: MIT
//
// Any bytes as a script over applications with a few tracks: it runs to a result or to an error, within the
// interpreter's limits.
#include "Check.h"
#include "scripting/FakeApplications.h"
#include "scripting/InterpretedAppleScript.h"

namespace {

songsweep::test::FakeWorld smallWorld() {
    using songsweep::test::fakeTrack;
    songsweep::test::FakeWorld world;
    world.playlists.push_back(
        {"Library", false, false, {fakeTrack("Song", "0123456789ABCDEF", "/a.mp3", 1)}});
    world.playlists.push_back({"Mix", false, true, {fakeTrack("Ära", "1123456789ABCDEF", "")}});
    return world;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    songsweep::test::FakeWorld world = smallWorld();
    songsweep::InterpretedAppleScript script(songsweep::test::fakeApplications(world));
    const auto result = script.executeAndReturnError(songsweep::fuzz::textOf(data, size));
    if (!result) songsweep::fuzz::check(!result.error().message.empty(), "an error without a reason");
    return 0;
}
