// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <string>

struct AVIOContext;

namespace songsweep {

/// The bytes of one file for the codecs: a regular file, at most a certain part of it, and no other file that
/// its contents may name. Reads by a descriptor that was opened without waiting, so that a pipe is no file.
class SoundFile {
  public:
    static Result<SoundFile> open(const std::string& path);

    SoundFile(SoundFile&& other) noexcept;
    SoundFile& operator=(SoundFile&&) = delete;
    ~SoundFile();

    AVIOContext* context() const { return m_context; }

  private:
    explicit SoundFile(int descriptor);

    struct Source {
        int descriptor;
        std::int64_t bytesLeft;
    };
    static int read(void* source, std::uint8_t* bytes, int count);
    static std::int64_t seek(void* source, std::int64_t place, int whence);

    Source* m_source; ///< on the heap, since the context points to it
    AVIOContext* m_context;
};

} // namespace songsweep
