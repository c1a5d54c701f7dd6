// SPDX-License-Identifier: MIT
#include "platform/GivenLibrary.h"

#include "platform/FileUrl.h"
#include "platform/HomeFolder.h"

namespace songsweep {

GivenLibrary::GivenLibrary(const std::string& path)
    : m_url(fileUrl(path)) {}

std::optional<IAppsDomain> GivenLibrary::iAppsDomain() const { return IAppsDomain{{m_url}}; }

std::optional<IAppsDomain> GivenLibrary::iAppsPropertyList(const std::string&) const { return std::nullopt; }

std::string GivenLibrary::homeFolder() const { return passwordHomeFolder(); }

} // namespace songsweep
