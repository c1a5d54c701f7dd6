// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scan/FolderWalk.h"

#include <taglib/tiostream.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// A sound file as TagLib reads it: for reading alone, whatever the file's rights.
///
/// TagLib's own stream opens a file for writing where it can, and reads anew after each of its many jumps.
/// This one reads a window at a time, so that most of a file's tags cost one or two calls of the system, and
/// never asks for more memory than the file has bytes. What cannot be read is an end of the file to TagLib;
/// `error` tells it afterwards. One thread at a time.
class SoundStream final : public TagLib::IOStream {
  public:
    /// Opens a regular file; an error for anything else.
    static Result<void> open(const std::string& path, SoundStream& stream);

    SoundStream() = default;
    ~SoundStream() override;

    /// The size and the time of the file that was opened, whatever lies under its name now.
    std::uint64_t size() const { return m_size; }
    std::int64_t modificationNanoseconds() const { return m_modificationNanoseconds; }

    /// The reason of the first read that failed; nothing where all went well.
    const std::optional<Error>& error() const { return m_error; }

    /// A number made of the sound of the file: of bytes from its middle on, where no tags stand.
    std::uint64_t soundHash();

    TagLib::FileName name() const override { return m_path.c_str(); }
    TagLib::ByteVector readBlock(unsigned long length) override;
    bool readOnly() const override { return true; }
    bool isOpen() const override { return m_descriptor >= 0; }
    void seek(long offset, Position position) override;
    long tell() const override { return static_cast<long>(m_place); }
    long length() override { return static_cast<long>(m_size); }

    // A file is never changed here.
    void writeBlock(const TagLib::ByteVector&) override {}
    void insert(const TagLib::ByteVector&, unsigned long, unsigned long) override {}
    void removeBlock(unsigned long, unsigned long) override {}
    void truncate(long) override {}

  private:
    std::size_t readAt(std::uint64_t place, char* bytes, std::size_t count);

    std::string m_path;
    int m_descriptor = -1;
    std::uint64_t m_size = 0;
    std::int64_t m_modificationNanoseconds = 0;
    std::uint64_t m_place = 0;
    std::vector<char> m_window;
    std::uint64_t m_windowBegin = 0;
    std::optional<Error> m_error;
};

} // namespace songsweep
