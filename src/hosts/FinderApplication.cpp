// SPDX-License-Identifier: MIT
#include "hosts/FinderApplication.h"

#include "platform/Desktop.h"
#include "platform/Files.h"

#include <memory>

namespace songsweep {

namespace {

using interpreter::Alias;
using interpreter::Command;
using interpreter::ObjectPointer;
using interpreter::TermCode;
using interpreter::Value;

enum class Property : TermCode { name, locked };
enum class Verb : TermCode { activate, deleteFile, setVolume };
enum class Parameter : TermCode { outputMuted };

TermCode code(auto term) { return static_cast<TermCode>(term); }

interpreter::Terminology finderTerminology() {
    return {{{"name", code(Property::name)}, {"locked", code(Property::locked)}},
            {},
            {{"activate", code(Verb::activate), {}},
             {"delete", code(Verb::deleteFile), {}},
             {"set volume", code(Verb::setVolume), {{"output muted", code(Parameter::outputMuted)}}}}};
}

std::string nameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

/// A file by its path.
class FileObject final : public interpreter::HostObject {
  public:
    FileObject(const interpreter::Terminology& words, std::string path)
        : m_words(words)
        , m_path(std::move(path)) {}

    const interpreter::Terminology& terminology() const override { return m_words; }
    std::string specifier() const override { return "file \"" + m_path + "\""; }

    Result<Value> property(TermCode property) override {
        switch (static_cast<Property>(property)) {
        case Property::name:
            return Value(nameOf(m_path));
        case Property::locked:
            return Value(false);
        }
        return Error{Error::Code::notFound, "the file has no such property"};
    }

    Result<void> setProperty(TermCode property, const Value& value) override {
        if (property != code(Property::locked)) return HostObject::setProperty(property, value);
        const bool* locked = std::get_if<bool>(&value);
        if (locked == nullptr) return Error{Error::Code::invalid, "locked is true or false"};
        if (*locked) return Error{Error::Code::notSupported, "files cannot be locked here"};
        return {};
    }

    const std::string& path() const { return m_path; }

  private:
    const interpreter::Terminology& m_words;
    std::string m_path;
};

} // namespace

FinderApplication::FinderApplication(Files& files, Desktop& desktop, DeleteFile deleteFile)
    : m_words(finderTerminology())
    , m_files(files)
    , m_desktop(desktop)
    , m_deleteFile(std::move(deleteFile)) {}

Result<Value> FinderApplication::property(TermCode property) {
    if (property == code(Property::name)) return Value(std::string("Finder"));
    return Error{Error::Code::notFound, "the application has no such property"};
}

Result<ObjectPointer> FinderApplication::objectFor(const Value& value) {
    const auto* alias = std::get_if<Alias>(&value);
    if (alias == nullptr) return HostApplication::objectFor(value);
    if (!m_files.exists(alias->posixPath))
        return Error{Error::Code::notFound, "there is no file " + alias->posixPath};
    return ObjectPointer(std::make_shared<FileObject>(m_words, alias->posixPath));
}

Result<std::optional<Value>> FinderApplication::perform(const Command& command) {
    const auto done = [&]() -> Result<void> {
        switch (static_cast<Verb>(command.code)) {
        case Verb::activate:
            if (!command.direct) return {};
            return Error{Error::Code::notSupported, "only an application can be activated"};
        case Verb::deleteFile:
            if (!command.direct) return Error{Error::Code::invalid, "there is nothing to delete"};
            return deleteFiles(*command.direct);
        case Verb::setVolume:
            return setVolume(command);
        }
        return Error{Error::Code::notSupported, "the command is not known"};
    }();
    if (!done) return done.error();
    return std::optional<Value>();
}

Result<void> FinderApplication::deleteFiles(const Value& value) {
    if (const auto* items = interpreter::listItems(value)) {
        for (const Value& item : *items)
            if (auto deleted = deleteFiles(item); !deleted) return deleted;
        return {};
    }
    std::string path;
    if (const auto* alias = std::get_if<Alias>(&value)) path = alias->posixPath;
    if (const auto* object = std::get_if<ObjectPointer>(&value)) {
        if (const auto file = std::dynamic_pointer_cast<FileObject>(*object)) path = file->path();
    }
    if (path.empty()) return Error{Error::Code::notSupported, "only files can be deleted"};
    if (!m_files.exists(path)) return Error{Error::Code::notFound, "there is no file " + path};
    return m_deleteFile(m_files.localPath(path));
}

Result<void> FinderApplication::setVolume(const Command& command) {
    const Value* muted = command.argument(code(Parameter::outputMuted));
    const bool* value = muted ? std::get_if<bool>(muted) : nullptr;
    if (value == nullptr)
        return Error{Error::Code::notSupported, "set volume takes \"with\" or \"without output muted\""};
    return m_desktop.setOutputMuted(*value);
}

} // namespace songsweep
