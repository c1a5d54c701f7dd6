// SPDX-License-Identifier: MIT
#include "FindMeasurement.h"

#include "dupes/BuildResultProc.h"
#include "library/DisplayedList.h"
#include "library/SWXMLParser.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"
#include "scripting/AppleScript.h"

#include <QEventLoop>

#include <libxml/xmlreader.h>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace songsweep::bench {
namespace {

double cpuSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// A line of /proc/self/status in bytes: "VmRSS:" now, "VmHWM:" at most.
double residentBytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.starts_with(name)) return std::stod(line.substr(name.size())) * 1024;
    return 0;
}

/// Measures from its making on.
class Meter {
  public:
    Measurement read(int rows) const {
        return {cpuSeconds() - m_cpuSeconds, residentBytes("VmHWM:") - m_residentBytes, 0, rows};
    }

    double leftBytes() const { return residentBytes("VmRSS:") - m_residentBytes; }

  private:
    double m_residentBytes = residentBytes("VmRSS:");
    double m_cpuSeconds = cpuSeconds();
};

/// The library file to be measured as the one that iTunes used last.
class OneLibrary final : public Preferences {
  public:
    explicit OneLibrary(const std::string& file)
        : m_url("file://localhost" + file) {}
    std::optional<IAppsDomain> iAppsDomain() const override { return IAppsDomain{{m_url}}; }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string&) const override { return {}; }
    std::string homeFolder() const override { return {}; }

  private:
    std::string m_url;
};

class NoITunes final : public AppleScript {
  public:
    Result<Descriptor> executeAndReturnError(std::string_view) override { return Error{}; }
};

/// One search as the application runs it: the reader's end starts the grouping, whose rows are kept.
class Search {
  public:
    Search(const std::string& file, int tracks)
        : m_preferences(file)
        , m_tracks(tracks) {
        m_center.setObserver([this](const WorkerEvent& event) { handle(event); });
    }

    std::size_t run() {
        m_rows.storage = m_list->storage;
        m_queue.add(std::make_unique<SWXMLParser>(
            m_list, m_parameters, m_tracks, 0, false, 5, 10,
            ReaderServices{m_center, m_scripts, m_files, m_preferences, m_sleeper, m_log}));
        m_loop.exec();
        if (m_failed) throw std::runtime_error("the library cannot be read");
        return m_rows.rows.size();
    }

  private:
    void handle(const WorkerEvent& event) {
        switch (event.name) {
        case EventName::addFinish:
            m_queue.add(std::make_unique<BuildResultProc>(m_list, m_parameters, m_center));
            return;
        case EventName::progress:
            m_done += 1;
            return;
        case EventName::progressx:
            m_done += std::get<ProgressUnits>(event.payload).prg;
            return;
        case EventName::step2:
            m_rows.rows.push_back(std::get<TrackRecord*>(event.payload));
            return;
        case EventName::buildFinish:
            m_loop.quit();
            return;
        case EventName::xmlErrorParsing:
        case EventName::xmlErrorProcessing:
            m_failed = true;
            m_loop.quit();
            return;
        default:
            return;
        }
    }

    SearchParameters m_parameters{.issamename = true, .issameartist = true, .playlist = "Library"};
    OneLibrary m_preferences;
    int m_tracks;
    double m_done = 0;
    bool m_failed = false;
    NoITunes m_scripts;
    Files m_files;
    Sleeper m_sleeper;
    SilentLog m_log;
    QEventLoop m_loop;
    std::shared_ptr<TrackList> m_list = std::make_shared<TrackList>();
    DisplayedList m_rows;
    NotificationCenter<WorkerEvent> m_center;
    OperationQueue m_queue{m_center, m_log};
};

} // namespace

Measurement measureBareLoop(const std::string& file) {
    const Meter meter;
    xmlTextReaderPtr reader = xmlReaderForFile(file.c_str(), nullptr, 0x4160);
    if (!reader) throw std::runtime_error("the library cannot be opened");
    std::size_t touched = 0;
    int texts = 0;
    while (xmlTextReaderRead(reader) == 1) {
        const int type = xmlTextReaderNodeType(reader);
        if (type == XML_READER_TYPE_ELEMENT || type == XML_READER_TYPE_END_ELEMENT) {
            touched += *xmlTextReaderConstName(reader);
        } else if (type == XML_READER_TYPE_TEXT) {
            touched += *xmlTextReaderConstValue(reader);
            ++texts;
        }
    }
    xmlFreeTextReader(reader);
    if (touched == 0) throw std::runtime_error("the library is empty");
    return meter.read(texts);
}

Measurement measureSearch(const std::string& file, int tracks) {
    const Meter meter;
    auto search = std::make_unique<Search>(file, tracks);
    const std::size_t rows = search->run();
    Measurement measurement = meter.read(static_cast<int>(rows));
    search.reset();
    measurement.leftBytes = meter.leftBytes();
    return measurement;
}

} // namespace songsweep::bench
