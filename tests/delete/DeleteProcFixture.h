// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteFixture.h"
#include "platform/HfsPath.h"

#include <string>

namespace songsweep::test {

/// A deletion that is run as a whole, and what happens at an entry of its journal.
class DeleteProcFixture : public DeleteFixture {
  protected:
    static constexpr bool withFiles = true;
    static constexpr bool withoutFiles = false;

    std::string fileEntry(const std::string& name) const { return "file " + hfsPath(path(name)).value(); }

    /// Throws at the entry.
    template <class Thrown>
    void throwAt(const std::string& entry, Thrown thrown) {
        setHook([=](const std::string& noted) {
            if (noted == entry) throw Thrown(thrown);
        });
    }
    void cancelAt(const std::string& entry) {
        setHook([this, entry](const std::string& noted) {
            if (noted == entry) cancel();
        });
    }
};

} // namespace songsweep::test
