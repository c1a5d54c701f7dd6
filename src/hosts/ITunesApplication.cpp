// SPDX-License-Identifier: MIT
#include "hosts/ITunesApplication.h"

#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/HfsPath.h"

#include <algorithm>

namespace songsweep {

namespace {

using interpreter::Command;
using interpreter::ObjectPointer;
using interpreter::TermCode;
using interpreter::Value;

/// The track behind a value, null where it is none.
std::shared_ptr<TrackObject> trackOf(const Value& value) {
    const auto* object = std::get_if<ObjectPointer>(&value);
    return object ? std::dynamic_pointer_cast<TrackObject>(*object) : nullptr;
}

/// The path that a text names, in HFS notation or as it stands.
std::string pathNamed(const std::string& text) {
    return text.starts_with('/') ? text : posixPath(text).value_or(text);
}

} // namespace

Result<Value> ITunesApplication::property(TermCode property) {
    // A library that was refused fails every question to this application.
    const auto library = m_services.library.document();
    if (!library) return library.error();
    switch (static_cast<ITunesProperty>(property)) {
    case ITunesProperty::name:
        return Value(std::string("iTunes"));
    case ITunesProperty::version:
        return Value(m_services.version);
    default:
        return Error{Error::Code::notFound, "the application has no such property"};
    }
}

Result<std::size_t> ITunesApplication::playlistCount() const {
    const auto library = m_services.library.document();
    if (!library) return library.error();
    return library.value()->playlistCount();
}

Result<std::size_t> ITunesApplication::count(TermCode elementClass) {
    switch (static_cast<ITunesClass>(elementClass)) {
    case ITunesClass::source:
    case ITunesClass::libraryPlaylist:
        return 1;
    case ITunesClass::userPlaylist:
        return playlistCount();
    case ITunesClass::playlist: {
        // A library without any playlist listed is a playlist all the same.
        const auto number = playlistCount();
        return number ? Result<std::size_t>(std::max<std::size_t>(number.value(), 1)) : number;
    }
    default:
        return m_tracks->count(elementClass);
    }
}

Result<ObjectPointer> ITunesApplication::element(TermCode elementClass, std::size_t index) {
    if (elementClass == static_cast<TermCode>(ITunesClass::track))
        return m_tracks->element(elementClass, index);
    const auto number = count(elementClass);
    if (!number) return number.error();
    if (index == 0 || index > number.value())
        return Error{Error::Code::notFound, "there is no such playlist"};
    if (elementClass == static_cast<TermCode>(ITunesClass::source))
        return ObjectPointer(std::make_shared<SourceObject>(m_services, *this));
    return ObjectPointer(std::make_shared<PlaylistObject>(m_services, index - 1));
}

Result<std::optional<interpreter::Candidates>>
ITunesApplication::candidates(TermCode elementClass, const interpreter::PropertyTest& test) {
    return m_tracks->candidates(elementClass, test);
}

Result<std::optional<Value>> ITunesApplication::perform(const Command& command) {
    if (static_cast<ITunesCommand>(command.code) == ITunesCommand::duplicate) {
        auto made = duplicate(command);
        return made ? Result<std::optional<Value>>(std::move(made).value()) : made.error();
    }
    const auto done = [&]() -> Result<void> {
        switch (static_cast<ITunesCommand>(command.code)) {
        case ITunesCommand::activate:
            // It has no window that could come to the front.
            if (!command.direct) return {};
            return Error{Error::Code::notSupported, "only an application can be activated"};
        case ITunesCommand::play:
            return play(command);
        case ITunesCommand::stop:
            return m_services.desktop.stopPlaying();
        case ITunesCommand::deleteObject:
            if (!command.direct) return Error{Error::Code::invalid, "there is nothing to delete"};
            return deleteTracks(*command.direct);
        case ITunesCommand::duplicate:
            break;
        }
        return Error{Error::Code::notSupported, "the command is not known"};
    }();
    if (!done) return done.error();
    return std::optional<Value>();
}

Result<void> ITunesApplication::play(const Command& command) {
    if (!command.direct) return Error{Error::Code::notSupported, "there is nothing to play"};
    const auto path = fileOf(*command.direct);
    if (!path) return path.error();
    if (!m_services.files.exists(path.value()))
        return Error{Error::Code::notFound, "there is no file " + path.value()};
    return m_services.desktop.play(m_services.files.localPath(path.value()));
}

Result<std::string> ITunesApplication::fileOf(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return pathNamed(*text);
    if (const auto* alias = std::get_if<interpreter::Alias>(&value)) return alias->posixPath;
    if (const auto* items = interpreter::listItems(value); items && items->size() == 1)
        return fileOf(items->front());
    if (const auto track = trackOf(value)) {
        const auto location = track->property(static_cast<TermCode>(ITunesProperty::location));
        if (!location) return location.error();
        return fileOf(location.value());
    }
    return Error{Error::Code::notFound, "there is no file to play"};
}

Result<void> ITunesApplication::deleteTracks(const Value& value) {
    if (const auto* items = interpreter::listItems(value)) {
        for (const Value& item : *items)
            if (auto deleted = deleteTracks(item); !deleted) return deleted;
        return {};
    }
    const auto track = trackOf(value);
    if (!track) return Error{Error::Code::notSupported, "only tracks can be deleted"};
    return track->remove();
}

/// To the end of a playlist, or to the place of a track in one. Gives the tracks as they are there: one, or a
/// list of several.
Result<Value> ITunesApplication::duplicate(const Command& command) {
    const Value* const to = command.argument(static_cast<TermCode>(ITunesParameter::to));
    const auto* const object = to ? std::get_if<ObjectPointer>(to) : nullptr;
    const auto playlist = object ? std::dynamic_pointer_cast<PlaylistObject>(*object) : nullptr;
    if (to && command.direct && trackOf(*to)) return putInPlaceOf(*trackOf(*to), *command.direct);
    if (!playlist || !command.direct)
        return Error{Error::Code::notSupported, "tracks are duplicated to a playlist"};
    const auto addOne = [&](const Value& value) -> Result<ObjectPointer> {
        const auto track = trackOf(value);
        if (!track) return Error{Error::Code::notSupported, "only tracks can be duplicated"};
        return playlist->add(*track);
    };
    const auto* const items = interpreter::listItems(*command.direct);
    if (!items) {
        auto added = addOne(*command.direct);
        return added ? Result<Value>(std::move(added).value()) : added.error();
    }
    std::vector<Value> all;
    for (const Value& item : *items) {
        auto added = addOne(item);
        if (!added) return added.error();
        all.emplace_back(std::move(added).value());
    }
    return interpreter::makeList(std::move(all));
}

Result<Value> ITunesApplication::putInPlaceOf(const TrackObject& place, const Value& value) {
    const auto track = trackOf(value);
    if (!track) return Error{Error::Code::notSupported, "one track takes the place of another"};
    auto put = place.replaceBy(*track);
    return put ? Result<Value>(std::move(put).value()) : put.error();
}

} // namespace songsweep
