// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryDocument.h"

#include <memory>
#include <optional>
#include <string>

namespace songsweep {

/// The library that the embedded iTunes serves: opened when it is first needed, brought up to date once a
/// script, refused with a reason while its file is no good.
///
/// Within one script the library does not change but by the script's own deletions, so that positions stay
/// good. A file that was refused is read again only when it has changed. Guarded by the scripts' lock.
class EmbeddedLibrary {
  public:
    EmbeddedLibrary(std::string path, LibraryDocument::Options options)
        : m_path(std::move(path))
        , m_options(options) {}

    const std::string& path() const { return m_path; }

    /// The next `document` looks whether the file has changed.
    void beginScript() { m_checked = false; }

    /// The library, or why there is none.
    Result<LibraryDocument*> document();

    /// The library as it was last, with whatever it has yet to write; null before it was ever opened.
    LibraryDocument* opened() const { return m_document.get(); }

    /// Why the library cannot be read, "line N: …" where a line is to blame; nothing while it can.
    const std::optional<Error>& error() const { return m_error; }

  private:
    Result<void> openOrRefresh(const Result<FileStamp>& stamp);

    std::string m_path;
    LibraryDocument::Options m_options;
    std::unique_ptr<LibraryDocument> m_document;
    std::optional<Error> m_error;
    std::optional<FileStamp> m_refused; // the version of the file that the error is about
    bool m_checked = false;
};

} // namespace songsweep
