// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"

#include "sample-library/DesktopLibrary.h"
#include "support/EventLoop.h"
#include "ui/SWTableView.h"
#include "ui/TrackHeaderView.h"
#include "ui/TrackTableModel.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>
#include <stdexcept>

namespace songsweep::test {

namespace {

/// The text of the sample library; made once, since its music files take their time.
const std::string& sampleLibraryText() {
    static const TemporaryFolder made;
    static const std::string text = [] {
        if (!sample::makeDesktopLibrary(made.path())) throw std::runtime_error("no sample library");
        return made.read("library.xml");
    }();
    return text;
}

} // namespace

WindowsFixture::WindowsFixture()
    : WindowsFixture(sampleLibraryText()) {}

WindowsFixture::WindowsFixture(const std::string& libraryText)
    : library(folder.write("library.xml", libraryText))
    , program(std::make_unique<Program>(ProgramOptions{.library = library, .map = {}, .version = "1.0"}, log))
    , controller(std::make_unique<AppController>(program->controllerServices(), windows.views()))
    , actions(std::make_unique<WindowActions>(
          windows, *controller, [this](const std::string& path) { return program->openLibrary(path); }, log,
          SONGSWEEP_LISTEN)) {
    controller->awakeFromNib();
    windows.showMainWindow();
    QApplication::setActiveWindow(&window());
}

WindowsFixture::~WindowsFixture() {
    actions.reset();
    controller.reset();
}

template <typename Widget>
Widget* WindowsFixture::find(const char* name) {
    return window().findChild<Widget*>(QString::fromLatin1(name));
}

QAbstractButton& WindowsFixture::button(const char* name) {
    auto* found = find<QAbstractButton>(name);
    if (found == nullptr) throw std::runtime_error(name);
    return *found;
}

QString WindowsFixture::label(const char* name) {
    const auto* found = find<QLabel>(name);
    return found != nullptr && found->isVisible() ? found->text() : QString();
}

QString WindowsFixture::page() { return find<QStackedWidget>("contentStack")->currentWidget()->objectName(); }

void WindowsFixture::openLibrary(const std::string& path) {
    Q_EMIT window().openLibrary(path);
    ASSERT_TRUE(runEventLoopUntil([this] { return controller->mayOpenLibrary(); }));
}

QMessageBox* WindowsFixture::alert() {
    const auto boxes = window().findChildren<QMessageBox*>();
    const auto open =
        std::find_if(boxes.begin(), boxes.end(), [](const QMessageBox* each) { return each->isVisible(); });
    return open == boxes.end() ? nullptr : *open;
}

void WindowsFixture::startSearch() {
    press("searchButton");
    ASSERT_TRUE(runEventLoopUntil([this] { return button("paramSearchButton").isEnabled(); }));
    press("paramSearchButton");
}

void WindowsFixture::search() {
    startSearch();
    ASSERT_TRUE(runEventLoopUntil([this] {
        return page() == QStringLiteral("tableviewContainer") || page() == QStringLiteral("noticePage");
    }));
    ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isWorking(); }));
    QApplication::setActiveWindow(&window());
}

void WindowsFixture::select(int first, int last) {
    const QAbstractItemModel& model = window().tableModel();
    window().tableview().selectionModel()->select(QItemSelection(model.index(first, 0), model.index(last, 0)),
                                                  QItemSelectionModel::ClearAndSelect |
                                                      QItemSelectionModel::Rows);
}

int WindowsFixture::checkedRows() const { return checkedCount(rows()); }

void WindowsFixture::click(int row, Column column) {
    SWTableView& table = window().tableview();
    const QModelIndex cell = window().tableModel().index(row, static_cast<int>(column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, table.visualRect(cell).center());
}

void WindowsFixture::clickTitle(Column column) {
    TrackHeaderView& header = window().tableview().header();
    const QPoint place(header.sectionViewportPosition(static_cast<int>(column)) + 20, 10);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

} // namespace songsweep::test
