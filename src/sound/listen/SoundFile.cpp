// SPDX-License-Identifier: MIT
#include "sound/listen/SoundFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

extern "C" {
#include <libavformat/avio.h>
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace songsweep {

namespace {

constexpr int bufferBytes = 32 * 1024;
/// Two minutes of the largest format, twice: a file that gives no sound for longer gives none.
constexpr std::int64_t mostBytes = std::int64_t{256} << 20;

} // namespace

Result<SoundFile> SoundFile::open(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) return Error{.message = std::strerror(errno)};
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return Error{.message = "not a file"};
    }
    return SoundFile(descriptor);
}

SoundFile::SoundFile(int descriptor)
    : m_source(new Source{descriptor, mostBytes})
    , m_context(avio_alloc_context(static_cast<unsigned char*>(av_malloc(bufferBytes)), bufferBytes, 0,
                                   m_source, read, nullptr, seek)) {}

SoundFile::SoundFile(SoundFile&& other) noexcept
    : m_source(std::exchange(other.m_source, nullptr))
    , m_context(std::exchange(other.m_context, nullptr)) {}

SoundFile::~SoundFile() {
    if (m_context) av_freep(&m_context->buffer);
    avio_context_free(&m_context);
    if (m_source) ::close(m_source->descriptor);
    delete m_source;
}

int SoundFile::read(void* source, std::uint8_t* bytes, int count) {
    auto& file = *static_cast<Source*>(source);
    const std::int64_t wanted = std::min<std::int64_t>(count, file.bytesLeft);
    if (wanted <= 0) return AVERROR_EOF;
    const ssize_t got = ::read(file.descriptor, bytes, static_cast<std::size_t>(wanted));
    if (got < 0) return AVERROR(errno);
    file.bytesLeft -= got;
    return got == 0 ? AVERROR_EOF : static_cast<int>(got);
}

std::int64_t SoundFile::seek(void* source, std::int64_t place, int whence) {
    const int descriptor = static_cast<const Source*>(source)->descriptor;
    if (whence == AVSEEK_SIZE) {
        struct stat status = {};
        return fstat(descriptor, &status) == 0 ? status.st_size : AVERROR(errno);
    }
    const off_t reached = lseek(descriptor, place, whence & ~AVSEEK_FORCE);
    return reached < 0 ? AVERROR(errno) : reached;
}

} // namespace songsweep
