// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Preferences.h"

#include <string>

namespace songsweep {

/// Preferences that name one library file, the one that the user gave, whatever iTunes itself has stored.
///
/// A value of its own, and no option of each platform's class, since "--library" means the same on all of
/// them. Never changes, so that any thread may ask it; another library is another object.
class GivenLibrary final : public Preferences {
  public:
    /// `path` is the library file's absolute path.
    explicit GivenLibrary(const std::string& path);

    std::optional<IAppsDomain> iAppsDomain() const override;
    std::optional<IAppsDomain> iAppsPropertyList(const std::string& path) const override;
    std::string homeFolder() const override;

  private:
    std::string m_url;
};

} // namespace songsweep
