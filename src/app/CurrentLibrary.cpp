// SPDX-License-Identifier: MIT
#include "app/CurrentLibrary.h"

#include "app/ControllerServices.h"
#include "app/LibraryReading.h"
#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"
#include "app/views/LibraryView.h"

#include <utility>

namespace songsweep {

CurrentLibrary::CurrentLibrary(const ControllerServices& services, const ControllerViews& views,
                               Workers workers)
    : m_services(services)
    , m_applicationView(views.application)
    , m_view(views.library)
    , m_center(workers.center)
    , m_queue(workers.center, services.log) {}

void CurrentLibrary::begin(Telling telling) {
    m_telling = telling;
    m_overview = {.path = m_services.libraryFile()};
    if (!m_overview.path.empty()) {
        m_overview.state = LibraryOverview::State::reading;
    } else if (m_services.embeddedLibrary()) {
        m_overview.state = LibraryOverview::State::none;
        m_overview.places = m_services.libraryPlaces();
    }
    read();
    m_view.showLibrary(m_overview);
}

void CurrentLibrary::refresh() {
    if (m_overview.state == LibraryOverview::State::read && !m_pending) read();
}

void CurrentLibrary::read() {
    LibraryReading::Sources sources = {.contents = {}, .others = m_services.otherLibraries};
    if (!m_overview.path.empty()) sources.contents = m_services.libraryContents;
    auto reading = std::make_unique<LibraryReading>(std::move(sources), m_center);
    m_pending = reading->serial();
    m_queue.add(std::move(reading));
}

void CurrentLibrary::choose() { m_view.chooseLibrary(); }

void CurrentLibrary::onLibraryRead(const WorkerEvent& event) {
    if (event.sender->serial() != m_pending) return; // another library was opened meanwhile
    m_pending.reset();
    LibraryAnswer& answer = *std::get<std::shared_ptr<LibraryAnswer>>(event.payload);
    const bool isNews = isReading();
    m_overview.others = std::move(answer.others);
    if (answer.contents) take(*answer.contents);
    m_view.showLibrary(m_overview);
    const bool isUnreadable = m_overview.state == LibraryOverview::State::unreadable;
    if (isNews && isUnreadable && m_telling == Telling::alert)
        m_applicationView.alertCantOpen(m_overview.problem);
}

void CurrentLibrary::take(const Result<LibraryContents>& contents) {
    m_overview.state = contents ? LibraryOverview::State::read : LibraryOverview::State::unreadable;
    if (contents) {
        m_overview.contents = contents.value();
    } else {
        m_overview.problem = contents.error().message;
    }
}

} // namespace songsweep
