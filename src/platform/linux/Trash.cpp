// SPDX-License-Identifier: MIT
#include "platform/linux/Trash.h"

#include "platform/linux/Gio.h"

namespace songsweep {

Result<void> moveToTrash(const std::string& path) {
    // GIO would take a relative path from the working folder, which nobody means.
    if (!path.starts_with('/')) return Error{Error::Code::invalid, "Not an absolute path"};
    const gio::Owned<GFile> file(g_file_new_for_path(path.c_str()));
    GError* error = nullptr;
    if (g_file_trash(file.get(), nullptr, &error) == 0) return gio::errorFrom(error);
    return {};
}

} // namespace songsweep
