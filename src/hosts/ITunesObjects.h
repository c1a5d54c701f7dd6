// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/EmbeddedLibrary.h"
#include "hosts/ITunesTerms.h"
#include "scripting/interpreter/HostObject.h"

#include <cstddef>
#include <memory>
#include <string>

namespace songsweep {

class Desktop;
class Files;

/// What the objects of the embedded iTunes work with; it outlives every script.
struct ITunesServices {
    EmbeddedLibrary& library;
    Files& files;
    Desktop& desktop;
    std::string version;
    interpreter::Terminology words = iTunesTerminology();
};

/// An object that belongs to the embedded iTunes.
class ITunesObject : public interpreter::HostObject {
  public:
    explicit ITunesObject(ITunesServices& services)
        : m_services(services) {}

    const interpreter::Terminology& terminology() const override { return m_services.words; }

  protected:
    ITunesServices& services() const { return m_services; }
    Result<LibraryDocument*> library() const { return m_services.library.document(); }
    /// Refused, with the name of the property.
    Result<void> setProperty(interpreter::TermCode property, const interpreter::Value& value) override;
    /// "playlist 2 has no “genre”"
    Error noSuchProperty(interpreter::TermCode property) const;

  private:
    ITunesServices& m_services;
};

class TrackObject;

/// A playlist by its place, counted from 0, in the order of the library document.
class PlaylistObject final : public ITunesObject {
  public:
    PlaylistObject(ITunesServices& services, std::size_t index)
        : ITunesObject(services)
        , m_index(index) {}

    std::string specifier() const override;
    Result<interpreter::Value> property(interpreter::TermCode property) override;
    Result<std::size_t> count(interpreter::TermCode elementClass) override;
    Result<interpreter::ObjectPointer> element(interpreter::TermCode elementClass,
                                               std::size_t index) override;
    /// Tracks by persistent ID are found by the index of the library, which knows an ID of 16 digits for
    /// certain, and tracks by database ID.
    Result<std::optional<interpreter::Candidates>> candidates(interpreter::TermCode elementClass,
                                                              const interpreter::PropertyTest& test) override;

    /// Puts a track at the end, and gives it as it is there.
    Result<interpreter::ObjectPointer> add(const TrackObject& track);

  private:
    using Tracks = std::vector<LibraryDocument::TrackPosition>;
    interpreter::Candidates elements(LibraryDocument& document, const Tracks& tracks,
                                     const std::string& which);

    std::size_t m_index;
};

/// The library as a place that has playlists: the only source that there is.
class SourceObject final : public ITunesObject {
  public:
    /// `library` has the elements; it outlives every script.
    SourceObject(ITunesServices& services, interpreter::HostObject& library)
        : ITunesObject(services)
        , m_library(library) {}

    std::string specifier() const override { return "source 1"; }
    Result<interpreter::Value> property(interpreter::TermCode property) override;
    Result<std::size_t> count(interpreter::TermCode elementClass) override;
    Result<interpreter::ObjectPointer> element(interpreter::TermCode elementClass,
                                               std::size_t index) override;

  private:
    interpreter::HostObject& m_library;
};

/// A track by its position in the library document, and the place in a playlist that it was named by.
class TrackObject final : public ITunesObject {
  public:
    /// As the document counts them; of the library, which is playlist 0, the item says nothing.
    struct Place {
        std::size_t playlist = 0;
        std::uint32_t item = 0;
    };

    TrackObject(ITunesServices& services, LibraryDocument::TrackPosition track, Place place,
                std::string specifier)
        : ITunesObject(services)
        , m_track(track)
        , m_place(place)
        , m_specifier(std::move(specifier)) {}

    std::string specifier() const override { return m_specifier; }
    Result<interpreter::Value> property(interpreter::TermCode property) override;
    /// Seen at once, and written as deletions are.
    Result<void> setProperty(interpreter::TermCode property, const interpreter::Value& value) override;
    Result<std::size_t> count(interpreter::TermCode elementClass) override;
    Result<interpreter::ObjectPointer> element(interpreter::TermCode elementClass,
                                               std::size_t index) override;
    bool isSame(const interpreter::HostObject& other) const override;

    /// Deletes the track, where it was named by its place in the library; else takes it out of the playlist.
    Result<void> remove() const;

    /// Puts another track where this one is in its playlist, and gives it as it is there.
    Result<interpreter::ObjectPointer> replaceBy(const TrackObject& other) const;

    LibraryDocument::TrackPosition track() const { return m_track; }

  private:
    Result<LibraryDocument*> libraryWithTrack() const;
    Result<interpreter::Value> index() const;

    LibraryDocument::TrackPosition m_track;
    Place m_place;
    std::string m_specifier;
};

} // namespace songsweep
