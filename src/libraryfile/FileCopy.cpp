// SPDX-License-Identifier: MIT
#include "libraryfile/FileCopy.h"

#include "libraryfile/FileWindow.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace songsweep {

namespace {

constexpr std::uint64_t longRun = 256 << 10;
constexpr std::size_t bufferSize = 1 << 20;

/// A file being written: short pieces gather in a buffer, long runs go by the system's own copying.
class FileWriter {
  public:
    FileWriter(const LibraryFile& original, int descriptor)
        : m_original(original)
        , m_window(original)
        , m_descriptor(descriptor) {
        m_buffer.reserve(bufferSize);
    }

    /// Appends a run of bytes of the original; runs come in order. False on an error, see `errorNumber`.
    bool append(ByteRange run) {
        if (run.length >= longRun) {
            if (!flush()) return false;
            if (copyBySystem(run)) return true;
        }
        while (run.length > 0) {
            const ByteRange piece{run.begin, std::min<std::uint64_t>(run.length, longRun)};
            const std::string_view bytes = m_window.view(piece);
            if (bytes.size() != piece.length) return fail(EIO);
            if (m_buffer.size() + bytes.size() > bufferSize && !flush()) return false;
            m_buffer.append(bytes);
            run = {piece.end(), run.length - piece.length};
        }
        return true;
    }

    bool flush() {
        std::string_view rest = m_buffer;
        while (!rest.empty()) {
            const ssize_t count = ::write(m_descriptor, rest.data(), rest.size());
            if (count < 0 && errno != EINTR) return fail(errno);
            if (count > 0) rest.remove_prefix(static_cast<std::size_t>(count));
        }
        m_buffer.clear();
        return true;
    }

    int errorNumber() const { return m_errorNumber; }

  private:
    /// Copies as much as the system does; what it leaves stays in `run`. True if nothing is left.
    bool copyBySystem(ByteRange& run) {
#ifdef __linux__
        while (run.length > 0) {
            auto offset = static_cast<off_t>(run.begin);
            const ssize_t count = ::copy_file_range(m_original.descriptor(), &offset, m_descriptor, nullptr,
                                                    static_cast<std::size_t>(run.length), 0);
            if (count <= 0) return false; // The plain way finds out why.
            run = {run.begin + static_cast<std::uint64_t>(count),
                   run.length - static_cast<std::uint64_t>(count)};
        }
#endif
        return run.length == 0;
    }

    bool fail(int errorNumber) {
        if (m_errorNumber == 0) m_errorNumber = errorNumber;
        return false;
    }

    const LibraryFile& m_original;
    FileWindow m_window;
    int m_descriptor;
    std::string m_buffer;
    int m_errorNumber = 0;
};

bool appendAllBut(FileWriter& writer, const std::vector<ByteRange>& ranges, std::uint64_t size) {
    std::uint64_t at = 0;
    for (const ByteRange& range : ranges) {
        if (range.begin > at && !writer.append({at, range.begin - at})) return false;
        at = range.end();
    }
    if (size > at && !writer.append({at, size - at})) return false;
    return writer.flush();
}

/// Gives the new file the owner, as far as this user may, and the permissions of the original.
bool takeOver(int from, int to) {
    struct stat status {};
    if (::fstat(from, &status) != 0) return false;
    if (::fchown(to, status.st_uid, status.st_gid) != 0) static_cast<void>(::fchown(to, -1, status.st_gid));
    return ::fchmod(to, status.st_mode & 07777) == 0;
}

/// An errno, 0 for success.
int writeFile(const LibraryFile& original, const std::vector<ByteRange>& ranges, int descriptor) {
    FileWriter writer(original, descriptor);
    if (!appendAllBut(writer, ranges, original.stamp().size)) return writer.errorNumber();
    if (!takeOver(original.descriptor(), descriptor) || ::fsync(descriptor) != 0) return errno;
    return 0;
}

} // namespace

Result<void> copyWithoutRanges(const LibraryFile& original, const std::vector<ByteRange>& ranges,
                               const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (descriptor < 0) return systemError(errno, "create", path);
    int errorNumber = writeFile(original, ranges, descriptor);
    if (::close(descriptor) != 0 && errorNumber == 0) errorNumber = errno;
    if (errorNumber == 0) return {};
    ::unlink(path.c_str());
    return systemError(errorNumber, "write", path);
}

} // namespace songsweep
