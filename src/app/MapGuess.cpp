// SPDX-License-Identifier: MIT
#include "app/MapGuess.h"

#include "platform/Files.h"
#include "platform/PathMap.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace songsweep {

namespace {

constexpr std::size_t mostPaths = 32;
/// A folder of more is somebody's whole disk.
constexpr std::size_t mostSubfolders = 200;

/// The folder, and those in it: whoever is asked for a music folder may choose the one that it lies in.
std::vector<std::string> withSubfolders(const std::string& folder) {
    std::vector<std::string> folders = {folder};
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        if (entry->is_directory(unknown)) folders.push_back(entry->path().string());
        if (folders.size() > mostSubfolders) break;
    }
    return folders;
}

/// The rule by which the path is found in the folder; the longest end of the path decides.
std::optional<MapRule> ruleFor(const std::string& path, const std::string& folder, const Files& files) {
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1))
        if (files.exists(folder + path.substr(slash))) return MapRule{path.substr(0, slash), folder};
    return std::nullopt;
}

/// "/Users/ann" for "/Users/ann/Abba" where both ends are the same: what holds for an artist holds for all.
std::optional<MapRule> widened(const MapRule& rule) {
    const std::size_t from = rule.from.rfind('/');
    const std::size_t to = rule.to.rfind('/');
    if (from == std::string::npos || to == std::string::npos || to == 0) return std::nullopt;
    if (rule.from.substr(from) != rule.to.substr(to)) return std::nullopt;
    return MapRule{rule.from.substr(0, from), rule.to.substr(0, to)};
}

MapGuess tried(const MapRule& rule, const std::vector<std::string>& paths, const Files& files) {
    PathMap map;
    map.add(rule.from, rule.to);
    const auto found = std::count_if(paths.begin(), paths.end(),
                                     [&](const std::string& path) { return files.exists(map.map(path)); });
    return {rule, static_cast<int>(found), static_cast<int>(paths.size())};
}

} // namespace

void PathSample::add(std::string_view path) {
    if (m_seen++ % m_stride != 0) return;
    m_paths.emplace_back(path);
    if (m_paths.size() <= mostPaths) return;
    for (std::size_t place = 1; 2 * place < m_paths.size(); ++place)
        m_paths[place] = std::move(m_paths[2 * place]);
    m_paths.resize((m_paths.size() + 1) / 2);
    m_stride *= 2;
}

std::optional<MapGuess> guessMap(const std::vector<std::string>& paths,
                                 const std::vector<std::string>& folders) {
    const Files files;
    std::optional<MapGuess> best;
    const auto offer = [&](const MapRule& rule) {
        const MapGuess guess = tried(rule, paths, files);
        if (guess.found > (best ? best->found : 0)) best = guess;
    };
    for (const std::string& chosen : folders)
        for (const std::string& folder : withSubfolders(chosen))
            for (const std::string& path : paths) {
                if (best && best->found == best->tried) return best;
                std::optional<MapRule> rule = ruleFor(path, folder, files);
                for (; rule; rule = widened(*rule))
                    offer(*rule);
            }
    return best;
}

} // namespace songsweep
