// SPDX-License-Identifier: MIT
// songsweep-texts: writes the texts of a package that are made of the program's own help and of the
// changelog.
#include "cli/CommandLine.h"
#include "package-texts/Changelog.h"
#include "package-texts/Completion.h"
#include "package-texts/ManPage.h"
#include "package-texts/Placeholder.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <iostream>
#include <iterator>

namespace {

using namespace songsweep;

struct Order {
    std::string text;
    std::string changelog;
    std::string pattern; ///< path of the file whose placeholders are replaced
    std::string output;
};

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string ordered(const Order& order) {
    const cli::CommandDescription program = cli::describeCommandLine();
    const std::vector<Release> releases = readChangelog(contents(order.changelog));
    if (order.text == "bash") return bashCompletion(program);
    if (order.text == "zsh") return zshCompletion(program);
    if (order.text == "fish") return fishCompletion(program);
    if (order.text == "changelog") return debianChangelog(releases);
    if (order.text == "man")
        return manPage(contents(order.pattern), program, {SONGSWEEP_VERSION, releases.at(0).date});
    std::string metadata = contents(order.pattern);
    replacePlaceholder(metadata, "@RELEASES@\n", appStreamReleases(releases));
    return metadata;
}

bool write(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    return static_cast<bool>(file.flush());
}

} // namespace

int main(int argumentCount, char** arguments) {
    Order order;
    CLI::App app("Writes a text of the package", "songsweep-texts");
    app.add_option("text", order.text)
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish", "man", "metainfo", "changelog"}));
    app.add_option("output", order.output)->required();
    app.add_option("--changelog", order.changelog)->check(CLI::ExistingFile);
    app.add_option("--pattern", order.pattern)->check(CLI::ExistingFile);
    CLI11_PARSE(app, argumentCount, arguments);
    if (write(order.output, ordered(order))) return 0;
    std::cerr << "songsweep-texts: " << order.output << " cannot be written\n";
    return 1;
}
