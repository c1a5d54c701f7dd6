// SPDX-License-Identifier: MIT
#include "sample-library/OggSound.h"

#include "sample-library/Bytes.h"

#include <vector>

namespace songsweep::sample {

namespace {

constexpr std::uint64_t sampleRate = 44100;

Bytes little() { return Bytes(ByteOrder::little); }

std::uint32_t checksum(const std::string& page) {
    std::uint32_t sum = 0;
    for (const char c : page) {
        sum ^= std::uint32_t{static_cast<unsigned char>(c)} << 24U;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 0x80000000U) != 0 ? (sum << 1U) ^ 0x04C11DB7U : sum << 1U;
    }
    return sum;
}

/// A page with one packet in it.
std::string page(const std::string& packet, std::uint64_t place, unsigned flags, std::uint64_t number) {
    Bytes lacing = little();
    for (std::size_t left = packet.size();; left -= 255) {
        lacing.number(left < 255 ? left : 255, 1);
        if (left < 255) break;
    }
    Bytes begin = little();
    begin.text("OggS").number(0, 1).number(flags, 1).number(place, 8).number(1, 4).number(number, 4);
    const std::string end = little().number(lacing.take().size(), 1).text(lacing.take()).text(packet).take();
    const std::uint32_t sum = checksum(begin.take() + std::string(4, '\0') + end);
    return begin.number(sum, 4).text(end).take();
}

std::string noComments() { return little().number(6, 4).text("Sample").number(0, 4).take(); }

std::vector<std::string> vorbisHeaders(const SoundSample& sample) {
    const auto bits = static_cast<std::uint64_t>(sample.kilobits) * 1000;
    Bytes first = little();
    first.text("\x01vorbis").number(0, 4).number(2, 1).number(sampleRate, 4).zeros(4).number(bits, 4);
    first.zeros(4).number(0xB8, 1).number(1, 1);
    return {first.take(), "\x03vorbis" + noComments() + "\x01", std::string("\x05vorbis") + "BCV"};
}

std::vector<std::string> opusHeaders() {
    Bytes first = little();
    first.text("OpusHead").number(1, 1).number(2, 1).number(312, 2).number(48000, 4).number(0, 3);
    return {first.take(), "OpusTags" + noComments()};
}

std::vector<std::string> speexHeaders(const SoundSample& sample) {
    Bytes first = little();
    first.text("Speex   1.2.0").zeros(15).number(1, 4).number(80, 4).number(16000, 4).number(1, 4);
    first.number(4, 4).number(1, 4).number(static_cast<std::uint64_t>(sample.kilobits) * 1000, 4);
    first.number(320, 4).number(0, 4).number(1, 4).zeros(12);
    return {first.take(), noComments()};
}

std::vector<std::string> flacHeaders(std::uint64_t samples) {
    const std::string comments = noComments();
    Bytes second(ByteOrder::big);
    second.number(0x04, 1).number(comments.size(), 3).text(comments);
    return {"\x7F"
            "FLAC" +
                Bytes(ByteOrder::big).number(1, 1).number(0, 1).number(2, 2).take() + "fLaC" +
                flacStreamInfo(samples, LastBlock::no),
            second.take(), Bytes(ByteOrder::big).number(0x81, 1).number(8, 3).zeros(8).take()};
}

struct Stream {
    std::vector<std::string> headers;
    std::uint64_t samples = 0;
};

Stream streamOf(const SoundSample& sample) {
    const auto seconds = static_cast<std::uint64_t>(sample.seconds);
    switch (sample.kind) {
    case SoundKind::opus:
        return {opusHeaders(), seconds * 48000 + 312};
    case SoundKind::speex:
        return {speexHeaders(sample), seconds * 16000};
    case SoundKind::oggFlac:
        return {flacHeaders(seconds * sampleRate), seconds * sampleRate};
    default:
        return {vorbisHeaders(sample), seconds * sampleRate};
    }
}

} // namespace

std::string flacStreamInfo(std::uint64_t samples, LastBlock last) {
    constexpr std::uint64_t stereo = 1U;
    constexpr std::uint64_t bitsLessOne = 15U;
    Bytes block(ByteOrder::big);
    block.number(last == LastBlock::yes ? 0x80 : 0, 1).number(34, 3).number(4096, 2).number(4096, 2).zeros(6);
    block.number(sampleRate << 44U | stereo << 41U | bitsLessOne << 36U | samples, 8);
    return block.zeros(16).take();
}

std::string oggSound(const SoundSample& sample, const std::string& sound) {
    constexpr unsigned firstPage = 2;
    constexpr unsigned lastPage = 4;
    const Stream stream = streamOf(sample);
    std::string bytes;
    std::uint64_t number = 0;
    for (const std::string& header : stream.headers)
        bytes += page(header, 0, number == 0 ? firstPage : 0, number), ++number;
    return bytes + page(sound, stream.samples, lastPage, number);
}

} // namespace songsweep::sample
