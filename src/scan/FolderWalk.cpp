// SPDX-License-Identifier: MIT
#include "scan/FolderWalk.h"

#include "libraryfile/LibraryFile.h"
#include "platform/Ascii.h"
#include "platform/SystemError.h"
#include "scan/SoundFormat.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

namespace songsweep {

namespace {

using FileId = std::pair<std::uint64_t, std::uint64_t>; // device and inode

/// In lower case: the same name is written in several ways.
constexpr std::array<std::string_view, 7> trashFolders = {
    "$recycle.bin", "recycler", "recycled", "#recycle", "@recycle", "lost+found", "network trash folder"};

bool isTrashFolder(std::string_view name) {
    const auto isSame = [&](std::string_view trash) {
        return std::equal(name.begin(), name.end(), trash.begin(), trash.end(),
                          [](char one, char other) { return asciiLower(one) == other; });
    };
    return std::any_of(trashFolders.begin(), trashFolders.end(), isSame);
}

bool isLeftOut(std::string_view name) { return name.starts_with('.') || isTrashFolder(name); }

FileId idOf(const struct stat& status) {
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

FoundFile foundFile(std::string path, const struct stat& status) {
#ifdef __APPLE__
    const struct timespec& changed = status.st_mtimespec;
#else
    const struct timespec& changed = status.st_mtim;
#endif
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    return {.path = std::move(path),
            .device = static_cast<std::uint64_t>(status.st_dev),
            .inode = static_cast<std::uint64_t>(status.st_ino),
            .size = static_cast<std::uint64_t>(status.st_size),
            .modificationNanoseconds = changed.tv_sec * nanoseconds + changed.tv_nsec};
}

bool isOfInterest(std::string_view name) { return soundFormatOf(name) || playlistFormatOf(name); }

/// One walk: folders first, then what links lead to.
class Walk {
  public:
    Walk(const std::string& folder, const std::function<bool()>& isCancelled)
        : m_folder(folder)
        , m_isCancelled(isCancelled) {}

    Result<FolderContents> run() {
        struct stat around {};
        if (::stat((m_folder + "/..").c_str(), &around) == 0) m_device = idOf(around).first;
        if (const int problem = enter({{}, m_device}); problem != 0)
            return systemError(problem, "open the folder", m_folder);
        while (!m_links.empty() && !m_cancelled)
            followLinks();
        followFileLinks();
        if (m_cancelled) return Error{Error::Code::cancelled, "the scan was cancelled"};
        return std::move(m_contents);
    }

  private:
    struct Name {
        std::string text;
        unsigned char type = DT_UNKNOWN;
    };
    struct CloseFolder {
        void operator()(DIR* folder) const { ::closedir(folder); }
    };
    using Folder = std::unique_ptr<DIR, CloseFolder>;

    /// A folder that is come to.
    struct Visit {
        std::string path;     ///< below the folder; "" for itself
        std::uint64_t device; ///< of the folder around it, and then its own
        bool isLink = false;
        std::vector<std::string> below = {}; ///< names of folders in it

        std::string prefix() const { return path.empty() ? path : path + "/"; }
    };

    /// The folder and all below it; 0 or the errno where it cannot be opened.
    int enter(Visit visit) {
        if (const int problem = lookThrough(visit); problem != 0) return problem;
        for (const std::string& name : visit.below) {
            if (m_cancelled || (m_cancelled = m_isCancelled())) break;
            enterBelow({visit.prefix() + name, visit.device});
        }
        return 0;
    }

    /// One folder alone, which is closed again before those below it are opened.
    int lookThrough(Visit& visit) {
        const Folder folder(::opendir((m_folder + "/" + visit.path).c_str()));
        if (!folder) return errno;
        struct stat status {};
        if (::fstat(::dirfd(folder.get()), &status) != 0) return errno;
        if (!m_folders.insert(idOf(status)).second) return 0;
        const std::uint64_t around = std::exchange(visit.device, idOf(status).first);
        if (visit.device != around) m_contents.mounted.push_back({visit.path, visit.device, visit.isLink});
        if (visit.path.empty()) m_device = visit.device;
        const std::string prefix = visit.prefix();
        for (const Name& name : namesIn(*folder, prefix))
            look(::dirfd(folder.get()), name, prefix, visit.below);
        return 0;
    }

    void enterBelow(const Visit& visit) {
        if (const int problem = enter(visit); problem != 0)
            m_contents.folders.push_back(
                {visit.path, systemError(problem, "open the folder", visit.path).message});
    }

    /// In a fixed order, so that the same folder is always the same library.
    std::vector<Name> namesIn(DIR& folder, const std::string& prefix) {
        std::vector<Name> names;
        errno = 0;
        while (const struct dirent* const entry = ::readdir(&folder)) {
            if (!isLeftOut(entry->d_name)) names.push_back({entry->d_name, entry->d_type});
            errno = 0;
        }
        if (errno != 0) {
            const std::string path = prefix.substr(0, prefix.rfind('/'));
            m_contents.folders.push_back({path, systemError(errno, "read the folder", path).message});
        }
        std::sort(names.begin(), names.end(),
                  [](const Name& one, const Name& other) { return one.text < other.text; });
        return names;
    }

    void look(int folder, const Name& name, const std::string& prefix, std::vector<std::string>& below) {
        if (name.type == DT_DIR) {
            below.push_back(name.text);
        } else if (name.type == DT_LNK) {
            m_links.push_back(prefix + name.text);
        } else if (name.type == DT_UNKNOWN || (name.type == DT_REG && isOfInterest(name.text))) {
            ask(folder, name, prefix, below);
        }
    }

    void ask(int folder, const Name& name, const std::string& prefix, std::vector<std::string>& below) {
        struct stat status {};
        if (::fstatat(folder, name.text.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            noteProblem(prefix + name.text, errno);
        } else if (S_ISDIR(status.st_mode)) {
            below.push_back(name.text);
        } else if (S_ISLNK(status.st_mode)) {
            m_links.push_back(prefix + name.text);
        } else if (S_ISREG(status.st_mode) && isOfInterest(name.text)) {
            keep(foundFile(prefix + name.text, status));
        }
    }

    /// A file that went away meanwhile is no problem.
    void noteProblem(const std::string& path, int errorNumber) {
        if (errorNumber == ENOENT || errorNumber == ENOTDIR) return;
        m_contents.files.push_back({path, systemError(errorNumber, "look at", path).message});
    }

    /// It may lead to a disk that is not there now.
    void noteDeadLink(const std::string& link, int errorNumber) {
        m_contents.deadLinks.push_back(link);
        if (isOfInterest(link)) noteProblem(link, errorNumber);
    }

    void keep(FoundFile file) {
        (soundFormatOf(file.path) ? m_contents.tracks : m_contents.playlists).push_back(std::move(file));
    }

    /// Folders first: a file that lies in one of them is nothing new when a link leads to it.
    void followLinks() {
        for (const std::string& link : std::exchange(m_links, {})) {
            struct stat status {};
            if (::stat((m_folder + "/" + link).c_str(), &status) != 0) {
                noteDeadLink(link, errno);
            } else if (S_ISDIR(status.st_mode)) {
                enterBelow({link, m_device, true});
            } else if (S_ISREG(status.st_mode) && isOfInterest(link)) {
                m_fileLinks.push_back(foundFile(link, status));
            }
        }
    }

    void followFileLinks() {
        if (m_fileLinks.empty()) return;
        std::set<FileId> known;
        for (const auto* const files : {&m_contents.tracks, &m_contents.playlists})
            for (const FoundFile& file : *files)
                known.insert({file.device, file.inode});
        for (FoundFile& file : m_fileLinks)
            if (known.insert({file.device, file.inode}).second) keep(std::move(file));
    }

    const std::string& m_folder;
    const std::function<bool()>& m_isCancelled;
    bool m_cancelled = false;
    std::uint64_t m_device = 0; ///< of the folder of music
    FolderContents m_contents;
    std::set<FileId> m_folders; ///< that were come to
    std::vector<std::string> m_links;
    std::vector<FoundFile> m_fileLinks;
};

} // namespace

Result<FolderContents> walkFolder(const std::string& folder, const std::function<bool()>& isCancelled) {
    return Walk(folder, isCancelled).run();
}

} // namespace songsweep
