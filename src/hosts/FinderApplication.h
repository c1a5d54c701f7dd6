// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/interpreter/HostObject.h"

#include <functional>
#include <string>

namespace songsweep {

class Desktop;
class Files;

/// The embedded Finder: moves files to the Trash and mutes the sound.
///
/// It takes files as aliases. Files have no lock here: `locked` is false, taking it away does nothing, and
/// setting it is refused. A file that is to be deleted is handed on by its local path, as when it goes
/// depends on the library; what that refuses fails the script with the reason.
class FinderApplication final : public interpreter::HostApplication {
  public:
    using DeleteFile = std::function<Result<void>(const std::string& localPath)>;

    FinderApplication(Files& files, Desktop& desktop, DeleteFile deleteFile);

    const interpreter::Terminology& terminology() const override { return m_words; }
    std::string specifier() const override { return "application \"Finder\""; }
    Result<interpreter::Value> property(interpreter::TermCode property) override;
    Result<std::optional<interpreter::Value>> perform(const interpreter::Command& command) override;
    /// A file that exists, for an alias.
    Result<interpreter::ObjectPointer> objectFor(const interpreter::Value& value) override;

  private:
    Result<void> deleteFiles(const interpreter::Value& value);
    Result<void> setVolume(const interpreter::Command& command);

    interpreter::Terminology m_words;
    Files& m_files;
    Desktop& m_desktop;
    DeleteFile m_deleteFile;
};

} // namespace songsweep
