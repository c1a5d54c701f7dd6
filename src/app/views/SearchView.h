// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

struct ReadError;

/// What the controller tells of a search before it has results: the parameters dialog. See ApplicationView.
class SearchView {
  public:
    SearchView() = default;
    SearchView(const SearchView&) = delete;
    SearchView& operator=(const SearchView&) = delete;
    virtual ~SearchView() = default;

    virtual void showParamWindow() {}
    virtual void closeParamWindow() {}
    /// The playlists are yet to come, since the library is being read; there is no search before.
    virtual void setPlaylistsPending(bool /*pending*/) {}
    virtual void clearPlaylists() {}
    virtual void addPlaylist(const std::string& /*name*/) {}
    virtual void selectPlaylist(int /*index*/) {}
    /// The reader met its first error in the library file. It goes on until it is cancelled.
    virtual void tellReadError(const ReadError& /*error*/) {}
};

} // namespace songsweep
