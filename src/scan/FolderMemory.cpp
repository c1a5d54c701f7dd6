// SPDX-License-Identifier: MIT
#include "scan/FolderMemory.h"

#include "scan/Hash64.h"
#include "scan/NewFile.h"

#include <bit>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace songsweep {

namespace {

constexpr std::string_view magic = "songsweep folder memory 2\n";

/// Values one behind the other, numbers in the machine's own order: nobody carries a memory elsewhere, and a
/// machine of the other order finds it damaged.
class Packer {
  public:
    /// For about so many bytes.
    explicit Packer(std::size_t size) { m_bytes.reserve(size); }

    template <class Number>
    void number(Number value) {
        static_assert(std::is_integral_v<Number>);
        char bytes[sizeof(Number)];
        std::memcpy(bytes, &value, sizeof(Number));
        m_bytes.append(bytes, sizeof(Number));
    }
    void text(std::string_view value) {
        number(static_cast<std::uint32_t>(value.size()));
        m_bytes += value;
    }
    void truth(bool value) { number(static_cast<std::uint8_t>(value ? 1 : 0)); }
    std::string take() { return std::move(m_bytes); }

  private:
    std::string m_bytes;
};

/// Takes them apart again; where they end too early, all that comes is 0 or empty, and `isWhole` is false.
class Unpacker {
  public:
    explicit Unpacker(std::string_view bytes)
        : m_left(bytes) {}

    template <class Number>
    void number(Number& value) {
        const std::string_view bytes = take(sizeof(Number));
        if (!bytes.empty()) std::memcpy(&value, bytes.data(), sizeof(Number));
    }
    void text(std::string& value) {
        std::uint32_t size = 0;
        number(size);
        value = take(size);
    }
    void truth(bool& value) {
        std::uint8_t byte = 0;
        number(byte);
        value = byte != 0;
    }
    bool isWhole() const { return m_whole; }
    std::size_t left() const { return m_left.size(); }

  private:
    std::string_view take(std::size_t count) {
        m_whole &= count <= m_left.size();
        if (!m_whole) return {};
        const std::string_view bytes = m_left.substr(0, count);
        m_left.remove_prefix(count);
        return bytes;
    }

    std::string_view m_left;
    bool m_whole = true;
};

/// Both ways go through the fields in one order.
template <class Memory, class Visitor>
void visitStamp(Memory& stamp, Visitor& visitor) {
    visitor.number(stamp.device);
    visitor.number(stamp.inode);
    visitor.number(stamp.size);
    visitor.number(stamp.modificationNanoseconds);
}

template <class Known, class Visitor>
void visitTrack(Known& track, Visitor& visitor) {
    visitor.text(track.path);
    visitor.number(track.size);
    visitor.number(track.modificationNanoseconds);
    visitor.number(track.persistentId);
    visitor.number(track.trackId);
    visitor.number(track.dateAdded);
    visitor.number(track.duration);
    visitor.number(track.soundHash);
    visitor.number(track.entry.begin);
    visitor.number(track.entry.length);
}

template <class Found, class Visitor>
void visitPlaylist(Found& playlist, Visitor& visitor) {
    visitor.text(playlist.path);
    visitor.number(playlist.size);
    visitor.number(playlist.modificationNanoseconds);
}

template <class Mounted, class Visitor>
void visitMounted(Mounted& mounted, Visitor& visitor) {
    visitor.text(mounted.path);
    visitor.number(mounted.device);
    visitor.truth(mounted.isLink);
}

/// A count that the bytes left could hold at all.
std::size_t countOf(Unpacker& unpacker) {
    std::uint64_t count = 0;
    unpacker.number(count);
    return count <= unpacker.left() ? static_cast<std::size_t>(count) : 0;
}

} // namespace

std::optional<FolderMemory> FolderMemory::read(const std::string& path) {
    const Result<LibraryFile> file = LibraryFile::open(path);
    if (!file) return {};
    const Result<std::string> bytes = file.value().read({0, file.value().stamp().size});
    constexpr std::size_t frame = magic.size() + sizeof(std::uint64_t);
    if (!bytes || bytes.value().size() < frame || !bytes.value().starts_with(magic)) return {};
    const std::string_view contents = std::string_view(bytes.value()).substr(frame);
    std::uint64_t hash = 0;
    std::memcpy(&hash, bytes.value().data() + magic.size(), sizeof(hash));
    if (hash != hash64(contents)) return {};
    Unpacker unpacker(contents);
    FolderMemory memory;
    visitStamp(memory.library, unpacker);
    memory.tracks.resize(countOf(unpacker));
    for (KnownFile& track : memory.tracks)
        visitTrack(track, unpacker);
    memory.playlists.resize(countOf(unpacker));
    for (FoundFile& playlist : memory.playlists)
        visitPlaylist(playlist, unpacker);
    memory.mounted.resize(countOf(unpacker));
    for (MountedFolder& mounted : memory.mounted)
        visitMounted(mounted, unpacker);
    if (!unpacker.isWhole()) return {};
    return memory;
}

Result<void> FolderMemory::write(const std::string& path) const {
    constexpr std::size_t bytesOfTrack = 76; // and its path
    std::size_t size = 0;
    for (const KnownFile& track : tracks)
        size += bytesOfTrack + track.path.size();
    Packer packer(size);
    visitStamp(library, packer);
    packer.number(std::uint64_t{tracks.size()});
    for (const KnownFile& track : tracks)
        visitTrack(track, packer);
    packer.number(std::uint64_t{playlists.size()});
    for (const FoundFile& playlist : playlists)
        visitPlaylist(playlist, packer);
    packer.number(std::uint64_t{mounted.size()});
    for (const MountedFolder& each : mounted)
        visitMounted(each, packer);
    const std::string contents = packer.take();
    Packer hash(sizeof(std::uint64_t));
    hash.number(hash64(contents));
    Result<NewFile> file = NewFile::createFor(path);
    if (!file) return file.error();
    file.value().append(magic);
    file.value().append(hash.take());
    file.value().append(contents);
    return file.value().takePlace(NewFile::Safety::asItComes); // One that is lost or damaged is made again.
}

} // namespace songsweep
