// SPDX-License-Identifier: MIT
#include "Pieces.h"

#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <random>
#include <stdexcept>

namespace songsweep::test {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double beatSeconds = 0.42;

constexpr std::size_t waveLength = 4096;

/// One wave of a tone with its overtones, since a test has no time to work out each sample.
const std::array<float, waveLength>& toneWave() {
    static const std::array<float, waveLength> wave = [] {
        std::array<float, waveLength> made{};
        for (std::size_t i = 0; i < waveLength; ++i)
            for (int overtone = 1; overtone <= 4; ++overtone)
                made[i] += static_cast<float>(
                    std::sin(2 * pi * overtone * static_cast<double>(i) / waveLength) / overtone);
        return made;
    }();
    return wave;
}

/// A tone of the score, dying away.
void addTone(std::vector<float>& samples, double start, double seconds, double frequency, double volume) {
    const float* const wave = toneWave().data();
    const auto first = static_cast<std::size_t>(start * pieceSampleRate);
    const auto count = static_cast<std::size_t>(seconds * pieceSampleRate);
    const double step = frequency * waveLength / pieceSampleRate;
    const double fading = std::exp(-2.0 / static_cast<double>(count));
    double place = 0;
    double fade = volume;
    float* const sample = samples.data();
    for (std::size_t i = first; i < first + count && i < samples.size(); ++i) {
        sample[i] += static_cast<float>(fade) * wave[static_cast<std::size_t>(place) % waveLength];
        place += step;
        fade *= fading;
    }
}

void addDrum(std::vector<float>& samples, double start, std::mt19937& random) {
    const auto first = static_cast<std::size_t>(start * pieceSampleRate);
    for (std::size_t i = 0; i < 2000 && first + i < samples.size(); ++i)
        samples[first + i] += static_cast<float>(0.15 * std::exp(-static_cast<double>(i) / 400) *
                                                 (static_cast<double>(random() % 2001) / 1000 - 1));
}

double frequencyOf(int step) { return 110 * std::pow(2, step / 12.0); }

struct Form {
    const char* suffix;
    std::vector<const char*> options;
};

const std::vector<Form>& forms() {
    static const std::vector<Form> all = {
        {"-64.mp3", {"-b:a", "64k"}},
        {"-128.mp3", {"-b:a", "128k", "-af", "volume=0.25"}},
        {"-320.mp3", {"-b:a", "320k", "-af", "adelay=5000:all=1"}},
        {"-mono.mp3", {"-b:a", "96k", "-ac", "1", "-af", "adelay=1300:all=1,volume=0.5"}},
        {".m4a", {"-b:a", "128k"}},
        {".opus", {"-b:a", "64k", "-af", "atrim=start=2.7"}},
        {".flac", {"-ar", "44100"}},
        {"-late.flac", {"-af", "atrim=start=1.1,volume=0.1"}},
    };
    return all;
}

} // namespace

std::vector<float> play(const Piece& piece, double seconds) {
    constexpr std::array scale = {0, 2, 3, 5, 7, 8, 10};
    std::mt19937 score(piece.score + 1);
    std::mt19937 noise(piece.score * 7919U + static_cast<unsigned>(piece.tempo * 1000));
    std::vector<float> samples(static_cast<std::size_t>(seconds * pieceSampleRate));
    const int root = static_cast<int>(score() % 12);
    const double beat = beatSeconds * (0.8 + static_cast<double>(score() % 40) / 100) / piece.tempo;
    int place = 7;
    for (double start = 0; start < seconds; start += beat) {
        place = std::clamp(place + static_cast<int>(score() % 7) - 3, 0, 20);
        addTone(samples, start, beat * (1 + static_cast<double>(score() % 2)),
                frequencyOf(root + 12 + place / 7 * 12 + scale[static_cast<std::size_t>(place % 7)]), 0.12);
        if (score() % 4 == 0)
            for (const int step : {0, 2, 4})
                addTone(samples, start, beat * 4,
                        frequencyOf(root + scale[(static_cast<std::size_t>(step) + score() % 7) % 7]), 0.07);
        addDrum(samples, start, noise);
    }
    for (float& sample : samples)
        sample += static_cast<float>(0.005 * (static_cast<double>(noise() % 2001) / 1000 - 1));
    return samples;
}

void writeWave(const std::string& path, const std::vector<float>& samples) {
    std::ofstream file(path, std::ios::binary);
    const auto number = [&](std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            file.put(static_cast<char>(value >> 8 * i));
    };
    const auto size = static_cast<std::uint32_t>(samples.size() * 2);
    file << "RIFF";
    number(36 + size, 4);
    file << "WAVEfmt ";
    number(16, 4);
    number(1, 2);
    number(1, 2);
    number(pieceSampleRate, 4);
    number(pieceSampleRate * 2, 4);
    number(2, 2);
    number(16, 2);
    file << "data";
    number(size, 4);
    for (const float sample : samples)
        number(static_cast<std::uint16_t>(static_cast<std::int16_t>(std::clamp(sample, -1.0F, 1.0F) * 32767)),
               2);
}

std::vector<std::string> encodeForms(const std::string& wave, const std::string& folder,
                                     const std::string& name) {
    QStringList arguments = {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y"),
                             QStringLiteral("-i"), QString::fromStdString(wave)};
    std::vector<std::string> paths;
    for (const Form& form : forms()) {
        for (const char* option : form.options)
            arguments << QString::fromUtf8(option);
        paths.push_back(folder + "/" + name + form.suffix);
        arguments << QString::fromStdString(paths.back());
    }
    if (QProcess::execute(QStringLiteral("ffmpeg"), arguments) != 0)
        throw std::runtime_error("ffmpeg makes no forms of " + wave);
    return paths;
}

} // namespace songsweep::test
