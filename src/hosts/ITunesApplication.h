// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ITunesObjects.h"

namespace songsweep {

/// The embedded iTunes: the application that scripts tell, over one library file.
///
/// It has a name, a version, playlists (all of them user playlists, the library first) and the tracks of the
/// library; it plays, stops, deletes and duplicates. A track that is deleted goes from the library where it
/// was named by the library, else from the playlist that it was named by.
class ITunesApplication final : public interpreter::HostApplication {
  public:
    explicit ITunesApplication(ITunesServices& services)
        : m_services(services)
        , m_tracks(std::make_shared<PlaylistObject>(services, 0)) {}

    const interpreter::Terminology& terminology() const override { return m_services.words; }
    std::string specifier() const override { return "application \"iTunes\""; }
    Result<interpreter::Value> property(interpreter::TermCode property) override;
    Result<std::size_t> count(interpreter::TermCode elementClass) override;
    Result<interpreter::ObjectPointer> element(interpreter::TermCode elementClass,
                                               std::size_t index) override;
    Result<std::optional<interpreter::Candidates>> candidates(interpreter::TermCode elementClass,
                                                              const interpreter::PropertyTest& test) override;
    Result<std::optional<interpreter::Value>> perform(const interpreter::Command& command) override;

  private:
    Result<void> play(const interpreter::Command& command);
    Result<std::string> fileOf(const interpreter::Value& value);
    Result<void> deleteTracks(const interpreter::Value& value);
    Result<interpreter::Value> duplicate(const interpreter::Command& command);
    static Result<interpreter::Value> putInPlaceOf(const TrackObject& place, const interpreter::Value& value);
    Result<std::size_t> playlistCount() const;

    ITunesServices& m_services;
    std::shared_ptr<PlaylistObject> m_tracks;
};

} // namespace songsweep
