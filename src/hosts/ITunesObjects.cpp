// SPDX-License-Identifier: MIT
#include "hosts/ITunesObjects.h"

#include "hosts/TrackValues.h"
#include "library/PersistentId.h"

#include <utility>

namespace songsweep {

namespace {

using interpreter::Candidates;
using interpreter::ObjectPointer;
using interpreter::PropertyTest;
using interpreter::TermCode;
using interpreter::Value;

Error noSuchProperty() { return {Error::Code::notFound, "the object has no such property"}; }

/// An artwork: something that can be counted and named, and no more.
class ArtworkObject final : public ITunesObject {
  public:
    ArtworkObject(ITunesServices& services, std::string specifier)
        : ITunesObject(services)
        , m_specifier(std::move(specifier)) {}

    std::string specifier() const override { return m_specifier; }
    Result<Value> property(TermCode) override { return noSuchProperty(); }

  private:
    std::string m_specifier;
};

} // namespace

std::string PlaylistObject::specifier() const { return "playlist " + std::to_string(m_index + 1); }

Result<Value> PlaylistObject::property(TermCode property) {
    const auto document = library();
    if (!document) return document.error();
    // A file without playlists has its library all the same, without a name.
    const bool listed = m_index < document.value()->playlistCount();
    const PlaylistSlot slot = listed ? document.value()->playlist(m_index) : PlaylistSlot();
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
        return noSuchProperty();
    }
}

Result<std::size_t> PlaylistObject::count(TermCode elementClass) {
    if (elementClass != static_cast<TermCode>(ITunesClass::track)) return HostObject::count(elementClass);
    const auto document = library();
    if (!document) return document.error();
    return document.value()->tracksOf(m_index).size();
}

Result<ObjectPointer> PlaylistObject::element(TermCode elementClass, std::size_t index) {
    const auto number = count(elementClass);
    if (!number) return number.error();
    if (index == 0 || index > number.value()) return Error{Error::Code::notFound, "there is no such track"};
    const auto track = library().value()->tracksOf(m_index)[index - 1];
    return ObjectPointer(std::make_shared<TrackObject>(
        services(), track, "track " + std::to_string(index) + " of " + specifier()));
}

Result<std::optional<Candidates>> PlaylistObject::candidates(TermCode elementClass,
                                                             const PropertyTest& test) {
    const bool indexed = elementClass == static_cast<TermCode>(ITunesClass::track) &&
                         test.property == static_cast<TermCode>(ITunesProperty::persistentId) &&
                         test.comparison == interpreter::Comparison::equal;
    if (!indexed) return HostObject::candidates(elementClass, test);
    const auto document = library();
    if (!document) return document.error();
    Candidates found;
    const auto* id = std::get_if<std::string>(&test.operand);
    if (id == nullptr) return std::optional(std::move(found)); // Nothing but a text is an ID.
    const bool isExact = PersistentId::of(*id).kind == PersistentId::Kind::exact;
    if (isExact) found.certainty = Candidates::Certainty::exact;
    for (const auto track : document.value()->tracksOfWithPersistentId(m_index, *id))
        found.objects.push_back(std::make_shared<TrackObject>(
            services(), track, "track whose persistent ID is \"" + *id + "\" of " + specifier()));
    return std::optional(std::move(found));
}

Result<const TrackFields*> TrackObject::fields() const {
    const auto document = library();
    if (!document) return document.error();
    if (document.value()->isDeleted(m_track))
        return Error{Error::Code::notFound, "the track has been deleted"};
    return document.value()->fields(m_track);
}

Result<Value> TrackObject::property(TermCode property) {
    const auto values = fields();
    if (!values) return values.error();
    auto value = trackValue(*values.value(), static_cast<ITunesProperty>(property), services().files);
    if (!value) return noSuchProperty();
    return std::move(*value);
}

Result<std::size_t> TrackObject::count(TermCode elementClass) {
    if (elementClass != static_cast<TermCode>(ITunesClass::artwork)) return HostObject::count(elementClass);
    const auto values = fields();
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
