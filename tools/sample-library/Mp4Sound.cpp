// SPDX-License-Identifier: MIT
#include "sample-library/Mp4Sound.h"

#include "sample-library/Bytes.h"

namespace songsweep::sample {

namespace {

constexpr std::uint64_t sampleRate = 44100;

Bytes big() { return Bytes(ByteOrder::big); }

std::string box(std::string_view name, const std::string& contents) {
    return big().number(8 + contents.size(), 4).text(name).text(contents).take();
}

/// What both sample descriptions begin with: stereo, 16 bits.
Bytes soundEntry() {
    Bytes entry = big();
    entry.zeros(6).number(1, 2).zeros(8).number(2, 2).number(16, 2).zeros(4).number(sampleRate << 16U, 4);
    return entry;
}

std::string aacEntry(const SoundSample& sample) {
    const auto bits = static_cast<std::uint64_t>(sample.kilobits) * 1000;
    Bytes decoder = big();
    decoder.number(0x40, 1).number(0x15, 1).zeros(3).number(bits, 4).number(bits, 4);
    decoder.number(5, 1).number(2, 1).number(0x1210, 2);
    Bytes descriptor = big();
    descriptor.zeros(4).number(3, 1).number(3 + 2 + decoder.take().size(), 1).zeros(3);
    descriptor.number(4, 1).number(decoder.take().size(), 1).text(decoder.take());
    return box("mp4a", soundEntry().text(box("esds", descriptor.take())).take());
}

std::string losslessEntry(const SoundSample& sample) {
    Bytes cookie = big();
    cookie.zeros(4).number(4096, 4).number(0, 1).number(16, 1).number(40, 1).number(10, 1).number(14, 1);
    cookie.number(2, 1).number(255, 2).number(0, 4);
    cookie.number(static_cast<std::uint64_t>(sample.kilobits) * 1000, 4).number(sampleRate, 4);
    return box("alac", soundEntry().text(box("alac", cookie.take())).take());
}

std::string track(const SoundSample& sample) {
    const auto duration = static_cast<std::uint64_t>(sample.seconds) * sampleRate;
    const std::string media =
        box("mdhd", big().zeros(12).number(sampleRate, 4).number(duration, 4).zeros(4).take());
    const std::string handler = box("hdlr", big().zeros(8).text("soun").zeros(13).take());
    const std::string entry = sample.kind == SoundKind::alac ? losslessEntry(sample) : aacEntry(sample);
    const std::string table = box("stbl", box("stsd", big().zeros(4).number(1, 4).text(entry).take()));
    return box("trak", box("mdia", media + handler + box("minf", table)));
}

} // namespace

std::string mp4Sound(const SoundSample& sample, const std::string& sound) {
    const std::string header = box("mvhd", big().zeros(12).number(1000, 4).zeros(84).take());
    return box("ftyp", "M4A " + std::string(4, '\0') + "M4A mp42") + box("moov", header + track(sample)) +
           box("mdat", sound);
}

} // namespace songsweep::sample
