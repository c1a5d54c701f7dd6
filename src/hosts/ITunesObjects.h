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

  private:
    ITunesServices& m_services;
};

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
    /// certain.
    Result<std::optional<interpreter::Candidates>> candidates(interpreter::TermCode elementClass,
                                                              const interpreter::PropertyTest& test) override;

  private:
    std::size_t m_index;
};

/// A track by its position in the library document.
class TrackObject final : public ITunesObject {
  public:
    TrackObject(ITunesServices& services, LibraryDocument::TrackPosition track, std::string specifier)
        : ITunesObject(services)
        , m_track(track)
        , m_specifier(std::move(specifier)) {}

    std::string specifier() const override { return m_specifier; }
    Result<interpreter::Value> property(interpreter::TermCode property) override;
    Result<std::size_t> count(interpreter::TermCode elementClass) override;
    Result<interpreter::ObjectPointer> element(interpreter::TermCode elementClass,
                                               std::size_t index) override;
    bool isSame(const interpreter::HostObject& other) const override;

    LibraryDocument::TrackPosition track() const { return m_track; }

  private:
    Result<const TrackFields*> fields() const;

    LibraryDocument::TrackPosition m_track;
    std::string m_specifier;
};

} // namespace songsweep
