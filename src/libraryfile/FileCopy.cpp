// SPDX-License-Identifier: MIT
#include "libraryfile/FileCopy.h"

#include "libraryfile/FileWindow.h"
#include "platform/SystemError.h"

#include <fcntl.h>
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

    /// Appends a piece; those of the original come in order. False on an error, see `errorNumber`.
    bool append(const FilePiece& piece) {
        if (piece.file == &m_original && !appendRun(piece.range)) return false;
        if (piece.file != nullptr && piece.file != &m_original && !appendOther(*piece.file, piece.range))
            return false;
        return append(piece.text);
    }

    /// Writes what is left, and ends the file there.
    bool finish() {
        if (!flush()) return false;
        const off_t end = ::lseek(m_descriptor, 0, SEEK_CUR);
        return (end >= 0 && ::ftruncate(m_descriptor, end) == 0) || fail(errno);
    }

    int errorNumber() const { return m_errorNumber; }

  private:
    bool appendRun(ByteRange run) {
        if (run.length >= longRun) {
            if (!flush()) return false;
            if (copyBySystem(run)) return true;
        }
        while (run.length > 0) {
            const ByteRange piece{run.begin, std::min<std::uint64_t>(run.length, longRun)};
            const std::string_view bytes = m_window.view(piece);
            if (bytes.size() != piece.length) return fail(EIO);
            if (!append(bytes)) return false;
            run = {piece.end(), run.length - piece.length};
        }
        return true;
    }

    /// Pieces of another file come in any order, so no window slides over it.
    bool appendOther(const LibraryFile& file, ByteRange range) {
        const auto bytes = file.read(range);
        return bytes ? append(bytes.value()) : fail(EIO);
    }

    bool append(std::string_view bytes) {
        if (m_buffer.size() + bytes.size() > bufferSize && !flush()) return false;
        m_buffer.append(bytes);
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

/// An errno, 0 for success.
int writeAll(const LibraryFile& original, const std::vector<FilePiece>& pieces, int descriptor) {
    if (::lseek(descriptor, 0, SEEK_SET) != 0) return errno;
    FileWriter writer(original, descriptor);
    for (const FilePiece& piece : pieces)
        if (!writer.append(piece)) return writer.errorNumber();
    return writer.finish() ? 0 : writer.errorNumber();
}

} // namespace

std::vector<FilePiece> piecesWithout(const LibraryFile& file, const std::vector<ByteRange>& ranges) {
    std::vector<FilePiece> pieces;
    pieces.reserve(ranges.size() + 1);
    std::uint64_t at = 0;
    const auto keepUntil = [&](std::uint64_t end) {
        if (end > at) pieces.push_back({&file, {at, end - at}, {}});
    };
    for (const ByteRange& range : ranges) {
        keepUntil(range.begin);
        at = range.end();
    }
    keepUntil(file.stamp().size);
    return pieces;
}

Result<void> writePieces(const LibraryFile& original, const std::vector<FilePiece>& pieces, int descriptor,
                         const std::string& path) {
    const int errorNumber = writeAll(original, pieces, descriptor);
    if (errorNumber != 0) return systemError(errorNumber, "write", path);
    return {};
}

} // namespace songsweep
