// SPDX-License-Identifier: MIT
#include "scripting/FakeApplications.h"

#include "scripting/interpreter/TextFolding.h"

namespace songsweep::test {
namespace {

using namespace interpreter;

enum Property : TermCode {
    name,
    artist,
    album,
    time,
    bitRate,
    size,
    dateAdded,
    rating,
    persistentId,
    playedCount,
    location,
    smart,
    version,
    index,
    soundVolume,
    grouping,
    locked
};
enum Class : TermCode { track, playlist, userPlaylist, artwork };
enum CommandCode : TermCode { play, stop, remove, setVolume, make };
enum Parameter : TermCode { once, outputMuted, outputVolume, to };

const Terminology& playerWords() {
    static const Terminology words{{{"name", name},
                                    {"artist", artist},
                                    {"album", album},
                                    {"time", time},
                                    {"bit rate", bitRate},
                                    {"size", size},
                                    {"date added", dateAdded},
                                    {"rating", rating},
                                    {"persistent ID", persistentId},
                                    {"played count", playedCount},
                                    {"location", location},
                                    {"smart", smart},
                                    {"version", version},
                                    {"index", index},
                                    {"sound volume", soundVolume},
                                    {"grouping", grouping}},
                                   {{"track", "tracks", track},
                                    {"playlist", "playlists", playlist},
                                    {"user playlist", "user playlists", userPlaylist},
                                    {"artwork", "artworks", artwork}},
                                   {{"play", play, {{"once", once}}},
                                    {"stop", stop, {}},
                                    {"delete", remove, {}},
                                    {"duplicate", make, {{"to", to}}}}};
    return words;
}

const Terminology& finderWords() {
    static const Terminology words{
        {{"name", name}, {"locked", locked}},
        {},
        {{"delete", remove, {}},
         {"set volume", setVolume, {{"output muted", outputMuted}, {"output volume", outputVolume}}}}};
    return words;
}

Error absent() { return {Error::Code::notFound, "there is no such thing"}; }

class Artwork final : public HostObject {
  public:
    explicit Artwork(std::size_t place)
        : m_place(place) {}
    const Terminology& terminology() const override { return playerWords(); }
    std::string specifier() const override { return "artwork " + std::to_string(m_place); }
    Result<Value> property(TermCode) override { return absent(); }

  private:
    std::size_t m_place;
};

class Track final : public HostObject {
  public:
    Track(FakeWorld& world, std::shared_ptr<FakeTrack> data)
        : m_world(world)
        , m_data(std::move(data)) {}
    const Terminology& terminology() const override { return playerWords(); }
    std::string specifier() const override { return "track id " + textOf("persistent ID"); }
    Result<Value> property(TermCode property) override {
        ++m_world.propertiesRead;
        for (const PropertyTerm& term : playerWords().properties) {
            if (term.code != property) continue;
            const auto found = m_data->properties.find(term.name);
            if (found != m_data->properties.end()) return found->second;
        }
        return absent();
    }
    Result<void> setProperty(TermCode property, const Value& value) override {
        if (property != name && property != rating) {
            return Error{Error::Code::notSupported, "the property cannot be set"};
        }
        m_data->properties[property == name ? "name" : "rating"] = value;
        return {};
    }
    Result<std::size_t> count(TermCode elementClass) override {
        if (elementClass != artwork) return absent();
        return static_cast<std::size_t>(m_data->artworks);
    }
    Result<ObjectPointer> element(TermCode, std::size_t place) override {
        return ObjectPointer(std::make_shared<Artwork>(place));
    }
    std::string textOf(const std::string& property) const {
        const auto found = m_data->properties.find(property);
        if (found == m_data->properties.end()) return {};
        const auto* const text = std::get_if<std::string>(&found->second);
        return text ? *text : std::string();
    }

  private:
    FakeWorld& m_world;
    std::shared_ptr<FakeTrack> m_data;
};

class Playlist final : public HostObject {
  public:
    Playlist(FakeWorld& world, std::size_t place)
        : m_world(world)
        , m_place(place) {}
    const Terminology& terminology() const override { return playerWords(); }
    std::string specifier() const override { return "playlist " + std::to_string(m_place + 1); }
    Result<Value> property(TermCode property) override {
        ++m_world.propertiesRead;
        switch (property) {
        case name:
            return Value(data().name);
        case smart:
            return Value(data().isSmart);
        case index:
            return Value(static_cast<std::int64_t>(m_place) + 1);
        default:
            return absent();
        }
    }
    Result<std::size_t> count(TermCode elementClass) override {
        if (elementClass != track) return absent();
        return data().tracks.size();
    }
    Result<ObjectPointer> element(TermCode, std::size_t place) override {
        ++m_world.elementsTaken;
        return ObjectPointer(std::make_shared<Track>(m_world, data().tracks.at(place - 1)));
    }
    Result<std::optional<Candidates>> candidates(TermCode elementClass, const PropertyTest& test) override {
        ++m_world.candidatesAsked;
        Candidates found;
        found.certainty = m_world.indexCertainty;
        const auto* const id = std::get_if<std::string>(&test.operand);
        const bool isIndexed = m_world.hasIndex && id && elementClass == track &&
                               test.property == persistentId && test.comparison == Comparison::equal;
        if (!isIndexed) return std::optional<Candidates>();
        for (const auto& candidate : data().tracks) {
            auto object = std::make_shared<Track>(m_world, candidate);
            if (isSameText(object->textOf("persistent ID"), *id)) found.objects.push_back(std::move(object));
        }
        return std::optional(std::move(found));
    }

  private:
    const FakePlaylist& data() const { return m_world.playlists.at(m_place); }

    FakeWorld& m_world;
    std::size_t m_place;
};

/// A direct parameter as the list of commands shows it.
std::string shown(const std::optional<Value>& value) {
    if (!value) return {};
    if (const auto* const text = std::get_if<std::string>(&*value)) return " " + *text;
    if (const auto* const number = std::get_if<std::int64_t>(&*value)) return " " + std::to_string(*number);
    if (const auto* const truth = std::get_if<bool>(&*value)) return *truth ? " true" : " false";
    if (const auto* const alias = std::get_if<Alias>(&*value)) return " " + alias->posixPath;
    if (const auto* const object = std::get_if<ObjectPointer>(&*value)) return " " + (*object)->specifier();
    std::string items = " {";
    if (const auto* const list = listItems(*value)) {
        for (const Value& item : *list)
            items += shown(item);
    }
    return items + "}";
}

class Player final : public HostApplication {
  public:
    explicit Player(FakeWorld& world)
        : m_world(world) {}
    const Terminology& terminology() const override { return playerWords(); }
    std::string specifier() const override { return "application"; }
    Result<Value> property(TermCode property) override {
        if (property == version) return Value(std::string("12.0"));
        if (property == name) return Value(std::string("iTunes"));
        if (property == soundVolume) return Value(std::int64_t(m_world.volume));
        return absent();
    }
    Result<void> setProperty(TermCode property, const Value& value) override {
        const auto* const number = std::get_if<std::int64_t>(&value);
        if (property != soundVolume || !number) return Error{Error::Code::notSupported, "cannot be set"};
        m_world.volume = static_cast<int>(*number);
        return {};
    }
    Result<std::size_t> count(TermCode elementClass) override { return places(elementClass).size(); }
    Result<ObjectPointer> element(TermCode elementClass, std::size_t place) override {
        if (elementClass == track) return library()->element(track, place);
        ++m_world.elementsTaken;
        return ObjectPointer(std::make_shared<Playlist>(m_world, places(elementClass).at(place - 1)));
    }
    Result<std::optional<Candidates>> candidates(TermCode elementClass, const PropertyTest& test) override {
        return library()->candidates(elementClass, test);
    }
    Result<std::optional<Value>> perform(const Command& command) override {
        for (const CommandTerm& term : playerWords().commands) {
            if (term.code == command.code) m_world.commands.push_back(term.name + shown(command.direct));
        }
        for (const CommandArgument& argument : command.arguments)
            m_world.commands.back() += shown(argument.value);
        if (command.code == make) return std::optional<Value>(Value(std::string("made")));
        return std::optional<Value>();
    }

  private:
    std::shared_ptr<Playlist> library() { return std::make_shared<Playlist>(m_world, 0); }
    std::vector<std::size_t> places(TermCode elementClass) const {
        std::vector<std::size_t> places;
        if (elementClass == track) return std::vector<std::size_t>(m_world.playlists.at(0).tracks.size());
        for (std::size_t i = 0; i < m_world.playlists.size(); ++i) {
            const bool belongs = elementClass == playlist || m_world.playlists[i].isUserPlaylist;
            if (belongs) places.push_back(i);
        }
        return places;
    }

    FakeWorld& m_world;
};

class File final : public HostObject {
  public:
    File(FakeWorld& world, std::string path)
        : m_world(world)
        , m_path(std::move(path)) {}
    const Terminology& terminology() const override { return finderWords(); }
    std::string specifier() const override { return "file " + m_path; }
    Result<Value> property(TermCode property) override {
        if (property == locked) return Value(m_world.lockedFiles.at(m_path));
        return Value(m_path);
    }
    Result<void> setProperty(TermCode property, const Value& value) override {
        if (property != locked) return Error{Error::Code::notSupported, "cannot be set"};
        m_world.lockedFiles[m_path] = std::get<bool>(value);
        return {};
    }

  private:
    FakeWorld& m_world;
    std::string m_path;
};

class FileManager final : public HostApplication {
  public:
    explicit FileManager(FakeWorld& world)
        : m_world(world) {}
    const Terminology& terminology() const override { return finderWords(); }
    std::string specifier() const override { return "application"; }
    Result<Value> property(TermCode) override { return absent(); }
    Result<ObjectPointer> objectFor(const Value& value) override {
        const auto* const alias = std::get_if<Alias>(&value);
        if (!alias || !m_world.lockedFiles.contains(alias->posixPath)) return absent();
        return ObjectPointer(std::make_shared<File>(m_world, alias->posixPath));
    }
    Result<std::optional<Value>> perform(const Command& command) override {
        m_world.commands.push_back((command.code == remove ? "delete" : "set volume") +
                                   shown(command.direct));
        for (const CommandArgument& argument : command.arguments) {
            m_world.commands.back() += argument.parameter == outputMuted ? " output muted" : " output volume";
            m_world.commands.back() += shown(argument.value);
        }
        return std::optional<Value>();
    }

  private:
    FakeWorld& m_world;
};

} // namespace

std::shared_ptr<FakeTrack> fakeTrack(const std::string& trackName, const std::string& id,
                                     const std::string& posixPath, int artworks) {
    auto track = std::make_shared<FakeTrack>();
    track->artworks = artworks;
    track->properties = {
        {"name", trackName},
        {"artist", std::string("Ann")},
        {"album", std::string("First")},
        {"time", std::string("4:05")},
        {"bit rate", std::int64_t(192)},
        {"size", std::int64_t(1048576)},
        {"date added", Date{3'000'000'000}},
        {"rating", std::int64_t(60)},
        {"persistent ID", id},
        {"played count", std::int64_t(7)},
        {"location", posixPath.empty() ? Value(MissingValue()) : Value(Alias{posixPath})},
        {"grouping", MissingValue()},
    };
    return track;
}

std::vector<NamedApplication> fakeApplications(FakeWorld& world) {
    return {{"iTunes", std::make_shared<Player>(world)}, {"Finder", std::make_shared<FileManager>(world)}};
}

} // namespace songsweep::test
