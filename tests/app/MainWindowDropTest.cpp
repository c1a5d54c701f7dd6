// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QSignalSpy>

namespace songsweep::test {
namespace {

using MainWindowDropTest = MainWindowFixture;

TEST_F(MainWindowDropTest, ALibraryFileCanBeDropped) {
    QSignalSpy opened(&window, &MainWindow::openLibrary);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/iTunes Library.XML"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<std::string>(), "/music/iTunes Library.XML");
}

TEST_F(MainWindowDropTest, NoLibraryIsTakenOrChosenWhileTheGuardSaysNo) {
    bool mayOpen = false;
    window.setOpenLibraryGuard([&] { return mayOpen; });
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/Library.xml"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    EXPECT_FALSE(enter.isAccepted());
    item("openLibraryMenuitem").trigger();
    EXPECT_EQ(window.findChild<QFileDialog*>(), nullptr);
    EXPECT_TRUE(item("openLibraryMenuitem").isEnabled());
    mayOpen = true;
    item("openLibraryMenuitem").trigger();
    EXPECT_NE(window.findChild<QFileDialog*>(), nullptr);
}

TEST_F(MainWindowDropTest, OtherFilesAndSeveralAreNotTaken) {
    QMimeData song;
    song.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/a.mp3"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &song, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    EXPECT_FALSE(enter.isAccepted());
    QMimeData two;
    two.setUrls(
        {QUrl::fromLocalFile(QStringLiteral("/a.xml")), QUrl::fromLocalFile(QStringLiteral("/b.xml"))});
    QDragEnterEvent both(QPoint(10, 10), Qt::CopyAction, &two, Qt::LeftButton, Qt::NoModifier);
    both.ignore();
    QApplication::sendEvent(&window, &both);
    EXPECT_FALSE(both.isAccepted());
}

TEST_F(MainWindowDropTest, ADroppedNameNeedNotBeUtf8) {
    QSignalSpy opened(&window, &MainWindow::openLibrary);
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), "file:///music/caf%E9%20100%25.xml\r\n");
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<std::string>(), "/music/caf\xe9 100%.xml");
}

} // namespace
} // namespace songsweep::test
