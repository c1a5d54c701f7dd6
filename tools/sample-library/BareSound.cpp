// SPDX-License-Identifier: MIT
#include "sample-library/Bytes.h"
#include "sample-library/Mp4Sound.h"
#include "sample-library/OggSound.h"
#include "sample-library/SoundSample.h"

#include <algorithm>
#include <array>

namespace songsweep::sample {

namespace {

constexpr std::uint32_t sampleRate = 44100;
constexpr std::size_t fillerSize = 4096;

/// Bytes that differ from song to song, and hold nothing that looks like a header.
std::string filler(const SoundSample& sample) {
    std::string seed = std::to_string(sample.seconds * 1000 + sample.kilobits);
    for (const auto& [key, value] : sample.tags)
        seed += value;
    std::uint32_t state = 2166136261U;
    for (const char c : seed)
        state = (state ^ static_cast<unsigned char>(c)) * 16777619U;
    std::string bytes;
    while (bytes.size() < fillerSize) {
        state = state * 1664525U + 1013904223U;
        bytes += static_cast<char>(state >> 25U);
    }
    return bytes;
}

std::uint64_t samplesOf(const SoundSample& sample) {
    return std::uint64_t{sampleRate} * static_cast<std::uint64_t>(sample.seconds);
}

/// The first frame tells how many there are; one of silence follows for each kilobyte.
std::string mp3(const SoundSample& sample) {
    constexpr std::array<int, 15> rates = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    unsigned rate = 1;
    while (rate + 1 < rates.size() && rates[rate] < sample.kilobits)
        ++rate;
    const auto frameSize = static_cast<std::size_t>(144000 * rates[rate] / int(sampleRate));
    const auto frames = static_cast<std::uint64_t>(sample.seconds) * sampleRate / 1152;
    Bytes first(ByteOrder::big);
    first.number(0xFFFB0064U | rate << 12U, 4).zeros(32).text("Xing").number(3, 4);
    first.number(frames, 4).number(frames * frameSize, 4);
    std::string bytes = first.take();
    bytes.resize(frameSize);
    const std::string sound = filler(sample);
    for (int i = 0; i < 8; ++i) {
        std::string frame = Bytes(ByteOrder::big).number(0xFFFB0064U | rate << 12U, 4).zeros(32).take();
        frame += sound.substr(static_cast<std::size_t>(i) * 512, 512);
        frame.resize(frameSize);
        bytes += frame;
    }
    return bytes;
}

/// Some twenty samples a second, so that minutes are kilobytes.
std::string wav(const SoundSample& sample) {
    std::string sound = filler(sample);
    const auto seconds = static_cast<std::size_t>(sample.seconds);
    const std::size_t bytesPerSecond = std::max<std::size_t>(1, sound.size() / seconds);
    sound.resize(bytesPerSecond * seconds);
    Bytes bytes(ByteOrder::little);
    bytes.text("RIFF").number(36 + sound.size(), 4).text("WAVEfmt ").number(16, 4).number(1, 2).number(1, 2);
    bytes.number(bytesPerSecond, 4).number(bytesPerSecond, 4).number(1, 2).number(8, 2);
    return bytes.text("data").number(sound.size(), 4).text(sound).take();
}

std::string aiff(const SoundSample& sample) {
    const std::string sound = filler(sample);
    Bytes bytes(ByteOrder::big);
    bytes.text("FORM").number(46 + sound.size(), 4).text("AIFFCOMM").number(18, 4).number(1, 2);
    bytes.number(samplesOf(sample), 4).number(16, 2);
    bytes.number(0x400E, 2).number(0xAC44000000000000U, 8); // 44100 as a float of 80 bits
    bytes.text("SSND").number(8 + sound.size(), 4).zeros(8);
    return bytes.text(sound).take();
}

std::string flac(const SoundSample& sample) {
    return "fLaC" + flacStreamInfo(samplesOf(sample), LastBlock::yes) + filler(sample);
}

std::string ape(const SoundSample& sample) {
    constexpr std::uint64_t blocks = 73728;
    const std::uint64_t frames = samplesOf(sample) / blocks + 1;
    Bytes bytes(ByteOrder::little);
    bytes.text("MAC ").number(3990, 2).zeros(2).number(52, 4).zeros(40);
    bytes.number(2000, 2).zeros(2).number(blocks, 4).number(samplesOf(sample) % blocks, 4).number(frames, 4);
    return bytes.number(16, 2).number(2, 2).number(sampleRate, 4).text(filler(sample)).take();
}

std::string musepack(const SoundSample& sample) {
    const std::uint64_t frames = samplesOf(sample) / 1152;
    return Bytes(ByteOrder::little).text("MP+\x07").number(frames, 4).zeros(48).text(filler(sample)).take();
}

std::string wavPack(const SoundSample& sample) {
    constexpr std::uint64_t flags = 1U | 0x800U | 0x1000U | 9U << 23U; // 16 bits, a whole block, 44100 Hz
    const std::string sound = filler(sample);
    Bytes bytes(ByteOrder::little);
    bytes.text("wvpk").number(24 + sound.size(), 4).number(0x410, 2).zeros(2).number(samplesOf(sample), 4);
    return bytes.zeros(4).number(sampleRate, 4).number(flags, 4).zeros(4).text(sound).take();
}

std::string guid(std::uint64_t first, std::uint64_t second, std::uint64_t third, std::uint64_t rest) {
    Bytes bytes(ByteOrder::little);
    bytes.number(first, 4).number(second, 2).number(third, 2);
    return bytes.take() + Bytes(ByteOrder::big).number(rest, 8).take();
}

std::string wma(const SoundSample& sample) {
    constexpr std::uint64_t unitsPerSecond = 10'000'000;
    const std::uint64_t duration = static_cast<std::uint64_t>(sample.seconds) * unitsPerSecond;
    const auto bytesPerSecond = static_cast<std::uint64_t>(sample.kilobits) * 1000 / 8;
    Bytes properties(ByteOrder::little);
    properties.text(guid(0x8CABDCA1, 0xA947, 0x11CF, 0x8EE400C00C205365)).number(104, 8).zeros(16);
    properties.zeros(24).number(duration, 8).number(duration, 8).zeros(8).number(2, 4);
    properties.number(1000, 4).number(1000, 4).number(bytesPerSecond * 8, 4);
    Bytes stream(ByteOrder::little);
    stream.text(guid(0xB7DC0791, 0xA9B7, 0x11CF, 0x8EE600C00C205365)).number(96, 8);
    stream.text(guid(0xF8699E40, 0x5B4D, 0x11CF, 0xA8FD00805F5C442B)).zeros(16).zeros(8).number(18, 4);
    stream.zeros(4).number(1, 2).zeros(4).number(0x161, 2).number(2, 2).number(sampleRate, 4);
    stream.number(bytesPerSecond, 4).number(1, 2).number(16, 2).zeros(2);
    const std::string sound = filler(sample);
    Bytes file(ByteOrder::little);
    file.text(guid(0x75B22630, 0x668E, 0x11CF, 0xA6D900AA0062CE6C)).number(30 + 200, 8).number(2, 4);
    file.number(0x0201, 2).text(properties.take()).text(stream.take());
    file.text(guid(0x75B22636, 0x668E, 0x11CF, 0xA6D900AA0062CE6C)).number(24 + sound.size(), 8);
    return file.text(sound).take();
}

} // namespace

std::string bareSound(const SoundSample& sample) {
    switch (sample.kind) {
    case SoundKind::aac:
    case SoundKind::alac:
        return mp4Sound(sample, filler(sample));
    case SoundKind::aiff:
        return aiff(sample);
    case SoundKind::ape:
        return ape(sample);
    case SoundKind::flac:
        return flac(sample);
    case SoundKind::mp3:
        return mp3(sample);
    case SoundKind::musepack:
        return musepack(sample);
    case SoundKind::oggFlac:
    case SoundKind::opus:
    case SoundKind::speex:
    case SoundKind::vorbis:
        return oggSound(sample, filler(sample));
    case SoundKind::wav:
        return wav(sample);
    case SoundKind::wavPack:
        return wavPack(sample);
    case SoundKind::wma:
        return wma(sample);
    }
    return {};
}

} // namespace songsweep::sample
