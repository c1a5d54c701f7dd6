// SPDX-License-Identifier: MIT
#include "hosts/ITunesObjects.h"

#include "hosts/TrackChanges.h"
#include "hosts/TrackProperties.h"
#include "hosts/TrackValues.h"
#include "library/PersistentId.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace songsweep {

namespace {

using interpreter::Candidates;
using interpreter::ObjectPointer;
using interpreter::PropertyTest;
using interpreter::TermCode;
using interpreter::Value;

/// An artwork: something that can be counted and named, and no more.
class ArtworkObject final : public ITunesObject {
  public:
    ArtworkObject(ITunesServices& services, std::string specifier)
        : ITunesObject(services)
        , m_specifier(std::move(specifier)) {}

    std::string specifier() const override { return m_specifier; }
    Result<Value> property(TermCode property) override { return noSuchProperty(property); }

  private:
    std::string m_specifier;
};

std::string quotedName(const interpreter::Terminology& words, TermCode property) {
    const auto term = std::ranges::find(words.properties, property, &interpreter::PropertyTerm::code);
    return term == words.properties.end() ? "such property" : "“" + term->name + "”";
}

/// Whether tracks can be put into a playlist and taken out of it. What is in the others is not theirs to say.
Result<void> checkChangeable(const LibraryDocument& document, std::size_t playlist) {
    const PlaylistSlot& slot = document.playlist(playlist);
    if (!slot.smart && !slot.folder && slot.distinguishedKind == 0) return {};
    return Error{Error::Code::notSupported,
                 "playlist " + std::to_string(playlist + 1) + " is filled by iTunes and cannot be changed"};
}

} // namespace

Error ITunesObject::noSuchProperty(TermCode property) const {
    return {Error::Code::notFound, specifier() + " has no " + quotedName(terminology(), property)};
}

Result<void> ITunesObject::setProperty(TermCode property, const Value&) {
    return Error{Error::Code::notSupported,
                 quotedName(terminology(), property) + " of " + specifier() + " cannot be set"};
}

std::string PlaylistObject::specifier() const { return "playlist " + std::to_string(m_index + 1); }

Result<Value> PlaylistObject::property(TermCode property) {
    const auto document = library();
    if (!document) return document.error();
    // A file without playlists has its library all the same, without a name.
    const bool listed = m_index < document.value()->playlistCount();
    const PlaylistSlot unlisted;
    const PlaylistSlot& slot = listed ? document.value()->playlist(m_index) : unlisted;
    switch (static_cast<ITunesProperty>(property)) {
    case ITunesProperty::name:
        return Value(slot.name);
    case ITunesProperty::index:
        return Value(static_cast<std::int64_t>(m_index + 1));
    case ITunesProperty::smart:
        return Value(m_index == 0 || slot.smart);
    case ITunesProperty::persistentId:
        return Value(slot.persistentId);
    default:
        return noSuchProperty(property);
    }
}

Result<std::size_t> PlaylistObject::count(TermCode elementClass) {
    if (elementClass != static_cast<TermCode>(ITunesClass::track)) return HostObject::count(elementClass);
    const auto document = library();
    if (!document) return document.error();
    return document.value()->listing(m_index).size();
}

Result<ObjectPointer> PlaylistObject::element(TermCode elementClass, std::size_t index) {
    const auto number = count(elementClass);
    if (!number) return number.error();
    if (index == 0 || index > number.value()) return Error{Error::Code::notFound, "there is no such track"};
    const TrackListing& tracks = library().value()->listing(m_index);
    return ObjectPointer(std::make_shared<TrackObject>(
        services(), tracks.track(index - 1), TrackObject::Place{m_index, tracks.item(index - 1)},
        "track " + std::to_string(index) + " of " + specifier()));
}

/// The elements that are one of these tracks, in the order of the playlist.
Candidates PlaylistObject::elements(LibraryDocument& document, const Tracks& tracks,
                                    const std::string& which) {
    Candidates found;
    const auto add = [&](LibraryDocument::TrackPosition track, std::uint32_t item) {
        found.objects.push_back(std::make_shared<TrackObject>(
            services(), track, TrackObject::Place{m_index, item}, which + " of " + specifier()));
    };
    if (m_index == 0) {
        for (const auto track : tracks)
            add(track, 0);
        return found;
    }
    TrackListing& members = document.listing(m_index);
    std::vector<std::size_t> places;
    for (const auto track : tracks)
        std::ranges::copy(members.placesOfTrack(track), std::back_inserter(places));
    std::ranges::sort(places);
    for (const std::size_t place : places)
        add(members.track(place), members.item(place));
    return found;
}

Result<std::optional<Candidates>> PlaylistObject::candidates(TermCode elementClass,
                                                             const PropertyTest& test) {
    const bool isTest = elementClass == static_cast<TermCode>(ITunesClass::track) &&
                        test.comparison == interpreter::Comparison::equal;
    const auto property = static_cast<ITunesProperty>(test.property);
    const auto* const number = std::get_if<std::int64_t>(&test.operand);
    const bool isNumber =
        number && (property == ITunesProperty::databaseId || property == ITunesProperty::id);
    if (!isTest || (property != ITunesProperty::persistentId && !isNumber))
        return HostObject::candidates(elementClass, test);
    const auto document = library();
    if (!document) return document.error();
    LibraryDocument& tracks = *document.value();
    if (isNumber) {
        return std::optional(
            elements(tracks, tracks.tracksWithTrackId(*number), "track id " + std::to_string(*number)));
    }
    const auto* id = std::get_if<std::string>(&test.operand);
    if (id == nullptr) return std::optional(Candidates()); // Nothing but a text is an ID.
    Candidates found =
        elements(tracks, tracks.tracksWithPersistentId(*id), "track whose persistent ID is \"" + *id + "\"");
    const bool isExact = PersistentId::of(*id).kind == PersistentId::Kind::exact;
    if (isExact) found.certainty = Candidates::Certainty::exact;
    return std::optional(std::move(found));
}

Result<ObjectPointer> PlaylistObject::add(const TrackObject& track) {
    const auto document = library();
    if (!document) return document.error();
    LibraryDocument& tracks = *document.value();
    if (m_index == 0) return Error{Error::Code::notSupported, "the library has each track once"};
    if (auto changeable = checkChangeable(tracks, m_index); !changeable) return changeable.error();
    if (tracks.isDeleted(track.track())) return Error{Error::Code::notFound, "the track has been deleted"};
    const auto item = tracks.add(m_index, track.track());
    if (!item) return item.error();
    return ObjectPointer(std::make_shared<TrackObject>(
        services(), track.track(), TrackObject::Place{m_index, item.value()},
        "track " + std::to_string(tracks.listing(m_index).size()) + " of " + specifier()));
}

Result<Value> SourceObject::property(TermCode property) {
    if (static_cast<ITunesProperty>(property) == ITunesProperty::name) return Value(std::string("Library"));
    if (static_cast<ITunesProperty>(property) == ITunesProperty::index) return Value(std::int64_t{1});
    return noSuchProperty(property);
}

Result<std::size_t> SourceObject::count(TermCode elementClass) {
    switch (static_cast<ITunesClass>(elementClass)) {
    case ITunesClass::playlist:
    case ITunesClass::userPlaylist:
    case ITunesClass::libraryPlaylist:
        return m_library.count(elementClass);
    default:
        return HostObject::count(elementClass);
    }
}

Result<ObjectPointer> SourceObject::element(TermCode elementClass, std::size_t index) {
    return m_library.element(elementClass, index);
}

Result<LibraryDocument*> TrackObject::libraryWithTrack() const {
    auto document = library();
    if (!document) return document.error();
    if (document.value()->isDeleted(m_track))
        return Error{Error::Code::notFound, "the track has been deleted"};
    return document;
}

Result<Value> TrackObject::property(TermCode code) {
    const auto document = libraryWithTrack();
    if (!document) return document.error();
    const auto property = static_cast<ITunesProperty>(code);
    if (property == ITunesProperty::index) return index();
    if (property == ITunesProperty::databaseId || property == ITunesProperty::id)
        return Value(document.value()->trackId(m_track));
    if (const TrackProperty* const row = trackProperty(property)) {
        const auto values = document.value()->values(m_track);
        return values ? Result<Value>(valueOf(*row, *values.value())) : values.error();
    }
    const auto values = document.value()->fields(m_track);
    if (!values) return values.error();
    auto value = trackValue(*values.value(), property, services().files);
    if (!value) return noSuchProperty(code);
    return std::move(*value);
}

Result<void> TrackObject::setProperty(TermCode property, const Value& value) {
    const auto document = libraryWithTrack();
    if (!document) return document.error();
    const auto changes = changesOf(static_cast<ITunesProperty>(property), value);
    if (!changes) return changes.error();
    if (changes.value().empty()) return ITunesObject::setProperty(property, value);
    for (const ValueChange& change : changes.value())
        if (auto set = document.value()->setValue(m_track, change); !set) return set;
    return {};
}

Result<void> TrackObject::remove() const {
    const auto document = library();
    if (!document) return document.error();
    LibraryDocument& tracks = *document.value();
    if (m_place.playlist == 0) return tracks.remove(m_track);
    if (auto changeable = checkChangeable(tracks, m_place.playlist); !changeable) return changeable;
    tracks.takeOut(m_place.playlist, m_place.item);
    return {};
}

Result<ObjectPointer> TrackObject::replaceBy(const TrackObject& other) const {
    const auto document = other.libraryWithTrack();
    if (!document) return document.error();
    if (m_place.playlist == 0) return Error{Error::Code::notSupported, "the library has each track once"};
    LibraryDocument& tracks = *document.value();
    if (auto changeable = checkChangeable(tracks, m_place.playlist); !changeable) return changeable.error();
    const auto put = tracks.putInPlaceOf(m_place.playlist, m_place.item, other.m_track);
    if (!put) return put.error();
    return ObjectPointer(std::make_shared<TrackObject>(services(), other.m_track, m_place, m_specifier));
}

/// The place that the track has now in its playlist.
Result<Value> TrackObject::index() const {
    TrackListing& tracks = library().value()->listing(m_place.playlist);
    if (m_place.playlist == 0)
        return Value(static_cast<std::int64_t>(tracks.placesOfTrack(m_track).front() + 1));
    const auto place = tracks.placeOfItem(m_place.item);
    if (!place) return Error{Error::Code::notFound, "the track is in the playlist no more"};
    return Value(static_cast<std::int64_t>(*place + 1));
}

Result<std::size_t> TrackObject::count(TermCode elementClass) {
    if (elementClass != static_cast<TermCode>(ITunesClass::artwork)) return HostObject::count(elementClass);
    const auto document = libraryWithTrack();
    if (!document) return document.error();
    const auto values = document.value()->fields(m_track);
    if (!values) return values.error();
    return artworkCount(*values.value());
}

Result<ObjectPointer> TrackObject::element(TermCode elementClass, std::size_t index) {
    if (elementClass != static_cast<TermCode>(ITunesClass::artwork))
        return HostObject::element(elementClass, index);
    return ObjectPointer(std::make_shared<ArtworkObject>(services(), "artwork " + std::to_string(index) +
                                                                         " of " + m_specifier));
}

bool TrackObject::isSame(const HostObject& other) const {
    const auto* track = dynamic_cast<const TrackObject*>(&other);
    return track != nullptr && track->m_track == m_track;
}

} // namespace songsweep
