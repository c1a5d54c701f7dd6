// SPDX-License-Identifier: MIT
#include "app/Program.h"
#include "cli/Commands.h"
#include "platform/Log.h"
#include "platform/LogFile.h"
#include "scripting/SourceNotation.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>

namespace songsweep::cli {

namespace {

Result<std::string> readText(const std::string& file) {
    if (file == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
    std::ifstream stream(file, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open() || stream.bad())
        return Error{Error::Code::inputOutput, "cannot read " + file + ": " + std::strerror(errno)};
    return text;
}

} // namespace

ExitCode runScript(const ScriptOptions& options, const std::string& version) {
    const Result<std::string> text = readText(options.file);
    if (!text) return fail(text.error().message);
    std::unique_ptr<Log> log = std::make_unique<SilentLog>();
    if (!options.log.empty()) {
        Result<std::unique_ptr<Log>> opened = openLogFile(options.log);
        if (!opened) return fail(opened.error().message);
        log = std::move(opened).value();
    }
    Program program({options.library, options.map, options.iTunesVersion, version}, *log);
    const Result<std::optional<Descriptor>> result = program.scripting().run(text.value());
    const Result<void> written = program.scripting().flush();
    if (!result) return fail(result.error().message);
    if (!written) return fail(written.error().message);
    if (result.value()) std::puts(sourceNotation(*result.value()).c_str());
    return ExitCode::done;
}

} // namespace songsweep::cli
