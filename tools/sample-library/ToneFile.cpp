// SPDX-License-Identifier: MIT
#include "sample-library/ToneFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <numbers>
#include <string_view>
#include <vector>

namespace songsweep::sample {

namespace {

constexpr int sampleRate = 8000;
constexpr double loudness = 6000;

enum class ByteOrder { little, big };

/// The bytes of one chunk of a RIFF or IFF file, without its name and length.
class Chunk {
  public:
    explicit Chunk(ByteOrder order)
        : m_order(order) {}

    void number(std::uint32_t value, int bytes) {
        for (int place = 0; place < bytes; ++place) {
            const int shift = 8 * (m_order == ByteOrder::little ? place : bytes - 1 - place);
            m_bytes += static_cast<char>(value >> static_cast<unsigned>(shift));
        }
    }
    void text(std::string_view value) { m_bytes += value; }
    void chunk(std::string_view name, const Chunk& inner) {
        text(name);
        number(static_cast<std::uint32_t>(inner.m_bytes.size()), 4);
        text(inner.m_bytes);
        if (inner.m_bytes.size() % 2 != 0) m_bytes += '\0';
    }
    void chunk(std::string_view name, std::string_view content) {
        Chunk inner(m_order);
        inner.text(content);
        chunk(name, inner);
    }
    const std::string& bytes() const { return m_bytes; }

  private:
    ByteOrder m_order;
    std::string m_bytes;
};

/// One second, faded in and out, so that it does not click.
Chunk tone(ByteOrder order, double hertz) {
    Chunk samples(order);
    for (int place = 0; place < sampleRate; ++place) {
        const double time = static_cast<double>(place) / sampleRate;
        const double fade = std::min({1.0, 20 * time, 20 * (1 - time)});
        const double value = loudness * fade * std::sin(2 * std::numbers::pi * hertz * time);
        samples.number(static_cast<std::uint32_t>(std::lround(value)), 2);
    }
    return samples;
}

std::string wav(double hertz, const ToneTags& tags) {
    Chunk format(ByteOrder::little);
    format.number(1, 2); // plain samples
    format.number(1, 2); // one channel
    format.number(sampleRate, 4);
    format.number(2 * sampleRate, 4);
    format.number(2, 2);
    format.number(16, 2);
    Chunk info(ByteOrder::little);
    info.text("INFO");
    info.chunk("INAM", tags.name);
    info.chunk("IART", tags.artist);
    info.chunk("IPRD", tags.album);
    Chunk content(ByteOrder::little);
    content.text("WAVE");
    content.chunk("fmt ", format);
    content.chunk("LIST", info);
    content.chunk("data", tone(ByteOrder::little, hertz));
    Chunk file(ByteOrder::little);
    file.chunk("RIFF", content);
    return file.bytes();
}

std::string aiff(double hertz, const ToneTags& tags) {
    Chunk common(ByteOrder::big);
    common.number(1, 2); // one channel
    common.number(sampleRate, 4);
    common.number(16, 2);
    common.number(0x400B, 2); // 8000 as an 80-bit float: exponent 12, mantissa 8000 / 4096
    common.number(0xFA000000, 4);
    common.number(0, 4);
    Chunk samples(ByteOrder::big);
    samples.number(0, 4);
    samples.number(0, 4);
    samples.text(tone(ByteOrder::big, hertz).bytes());
    Chunk content(ByteOrder::big);
    content.text("AIFF");
    content.chunk("COMM", common);
    content.chunk("NAME", tags.name);
    content.chunk("AUTH", tags.artist);
    content.chunk("SSND", samples);
    Chunk file(ByteOrder::big);
    file.chunk("FORM", content);
    return file.bytes();
}

} // namespace

bool writeTone(const std::string& path, double hertz, const ToneTags& tags) {
    const auto bytes = path.ends_with(".aiff") ? aiff(hertz, tags) : wav(hertz, tags);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file.good();
}

} // namespace songsweep::sample
