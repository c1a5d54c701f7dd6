// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryDocument.h"
#include "libraryfile/LibraryFixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace songsweep::test {

/// A library in a folder of its own, which a test deletes from.
class LibraryWriteFixture : public testing::Test {
  protected:
    LibraryDocument& open(const std::string& path) {
        LibraryDocument::Options options;
        options.lockTimeout = std::chrono::milliseconds(60);
        auto opened = LibraryDocument::open(path, options);
        EXPECT_TRUE(opened) << opened.error().message;
        m_library = std::move(opened).value();
        return *m_library;
    }

    LibraryDocument& openText(std::string_view text) { return open(m_folder.write("library.xml", text)); }

    void remove(const std::string& persistentId) {
        for (const auto track : m_library->tracksWithPersistentId(persistentId))
            EXPECT_TRUE(m_library->remove(track));
    }

    std::string content() const { return contentOf(m_library->path()); }

    Folder m_folder;
    std::unique_ptr<LibraryDocument> m_library;
};

} // namespace songsweep::test
