// SPDX-License-Identifier: MIT
#include "library/ReaderFixture.h"

#include "support/TestData.h"

#include <fstream>
#include <sstream>

namespace songsweep::test {

namespace {

std::string contentsOf(const std::string& path) {
    std::ostringstream contents;
    contents << std::ifstream(path, std::ios::binary).rdbuf();
    return contents.str();
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
}

std::string shown(const WorkerEvent& event) {
    std::string line = "> " + std::string(text(event.name));
    if (const auto* units = std::get_if<ProgressUnits>(&event.payload))
        line += " " + std::to_string(units->prg);
    return line;
}

} // namespace

ReaderFixture::ReaderFixture() {
    m_preferences.domain = IAppsDomain{{"file://localhost" + path("library.xml"), "file:///no/second.xml"}};
}

std::string ReaderFixture::path(const std::string& name) const {
    return m_folder.path().toStdString() + "/" + name;
}

void ReaderFixture::write(const std::string& name, const std::string& contents) const {
    std::ofstream(path(name), std::ios::binary) << contents;
}

void ReaderFixture::useLibrary(const std::string& name) {
    std::string contents = contentsOf(testData("library/" + name));
    ASSERT_FALSE(contents.empty()) << name;
    replaceAll(contents, "@FOLDER@", m_folder.path().toStdString());
    useLibraryText(contents);
}

void ReaderFixture::useLibraryText(const std::string& contents) { write("library.xml", contents); }

void ReaderFixture::run(const SearchParameters& parameters, std::int32_t trackCount) {
    SWXMLParser parser(m_list, parameters, trackCount, 0, false, 5, 10, m_services);
    run(parser);
}

void ReaderFixture::run(SWXMLParser& parser) {
    m_center.setObserver([&](const WorkerEvent& event) {
        EXPECT_EQ(event.sender, &parser);
        if (const auto* error = std::get_if<std::shared_ptr<ReadError>>(&event.payload))
            m_readErrors.push_back(**error);
        else
            m_trace.push_back(shown(event));
        if (const auto* file = std::get_if<FileAttributes>(&event.payload)) m_modifiedDates.push_back(*file);
        if (m_onEvent) m_onEvent(event, parser);
    });
    parser.main();
}

std::vector<std::string> ReaderFixture::names() const {
    std::vector<std::string> found;
    for (const TrackRecord* record : m_list->records)
        found.push_back(record->name.string());
    return found;
}

std::vector<std::string> ReaderFixture::events() const {
    std::vector<std::string> found;
    for (const std::string& line : m_trace)
        if (line.starts_with("> ")) found.push_back(line.substr(2));
    return found;
}

Trace ReaderFixture::traceWithoutSeconds() const {
    Trace trace = m_trace;
    for (std::string& line : trace)
        if (const std::size_t at = line.find(", time consumed: "); at != std::string::npos) line.resize(at);
    return trace;
}

} // namespace songsweep::test
