// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Preferences.h"

namespace songsweep {

/// iTunes' own preferences on macOS, by NSUserDefaults. Holds nothing, so that any thread may ask.
class MacPreferences final : public Preferences {
  public:
    std::optional<IAppsDomain> iAppsDomain() const override;
    std::optional<IAppsDomain> iAppsPropertyList(const std::string& path) const override;
    std::string homeFolder() const override;
};

} // namespace songsweep
