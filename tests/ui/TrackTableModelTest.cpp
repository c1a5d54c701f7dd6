// SPDX-License-Identifier: MIT
#include "ui/TrackTableModel.h"

#include "support/SampleRows.h"
#include "ui/ColumnLook.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>

namespace songsweep::test {

namespace {

using Tester = QAbstractItemModelTester;

QString shown(const TrackTableModel& model, int row, Column column, int role = Qt::DisplayRole) {
    return model.index(row, sectionOf(column)).data(role).toString();
}

QString spoken(const TrackTableModel& model, int row, Column column) {
    return shown(model, row, column, Qt::AccessibleTextRole);
}

class TrackTableModelTest : public ::testing::Test {
  protected:
    TrackTableModelTest() { model.reload(list); }

    DisplayedList list = sampleRows();
    TrackTableModel model;
    Tester tester{&model, Tester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(TrackTableModelTest, AnEmptyListHasNoRows) {
    model.reload({});
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 15);
    EXPECT_FALSE(model.index(0, 0).isValid());
}

TEST_F(TrackTableModelTest, CellsShowTheValuesOfTheirKeys) {
    EXPECT_EQ(shown(model, 4, Column::name), QStringLiteral("Été à Solenne"));
    EXPECT_EQ(shown(model, 4, Column::artist), QStringLiteral("Délia Morand"));
    EXPECT_EQ(shown(model, 9, Column::time), QStringLiteral("1:02:03"));
    EXPECT_EQ(shown(model, 0, Column::bitrate), QStringLiteral("320"));
    EXPECT_EQ(shown(model, 0, Column::sizestring), QStringLiteral("8.6 MB"));
    EXPECT_EQ(shown(model, 0, Column::playcount), QStringLiteral("57"));
    EXPECT_FALSE(shown(model, 0, Column::dateadded).isEmpty());
    const QString location = QString::fromUtf8(list.rows[8]->location.c_str());
    EXPECT_EQ(shown(model, 8, Column::location), location);
    const QString folder =
        model.index(8, static_cast<int>(Column::location)).data(TrackTableModel::DrawnRole).toString();
    EXPECT_EQ(folder + QLatin1Char('/') + shown(model, 8, Column::file), location);
    EXPECT_FALSE(shown(model, 8, Column::file).contains(QLatin1Char('/')));
}

TEST_F(TrackTableModelTest, ArtworkIsYesOrNo) {
    EXPECT_EQ(model.objectValueForTableColumn(Column::hasartwork, 0), QStringLiteral("Yes"));
    EXPECT_EQ(model.objectValueForTableColumn(Column::hasartwork, 1), QStringLiteral("No"));
}

TEST_F(TrackTableModelTest, OnlyMissingFilesHaveAPicture) {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    model.setDtrackImage(QIcon(pixmap));
    EXPECT_FALSE(model.objectValueForTableColumn(Column::dtrack, 6).value<QIcon>().isNull());
    EXPECT_FALSE(model.objectValueForTableColumn(Column::dtrack, 5).isValid());
}

TEST_F(TrackTableModelTest, WithoutThePictureTheColumnStaysEmpty) {
    EXPECT_FALSE(model.objectValueForTableColumn(Column::dtrack, 6).isValid());
    EXPECT_FALSE(model.index(6, sectionOf(Column::dtrack)).data(Qt::DecorationRole).isValid());
}

TEST_F(TrackTableModelTest, TheCheckBoxAndTheRatingAreNoTexts) {
    EXPECT_EQ(model.objectValueForTableColumn(Column::checkbox, 1), true);
    EXPECT_EQ(model.objectValueForTableColumn(Column::rating, 2), 3);
    EXPECT_EQ(model.index(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_EQ(model.index(0, 0).data(Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_FALSE(model.index(2, sectionOf(Column::rating)).data(Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.index(1, 1).data(Qt::CheckStateRole).isValid());
}

TEST_F(TrackTableModelTest, ShowsTheRowsOfTheLastReloadAndNotTheLiveList) {
    list.rows.clear();
    EXPECT_EQ(model.rowCount(), 12);
    EXPECT_EQ(shown(model, 11, Column::name), QStringLiteral("Slow Train to Olda"));
}

TEST_F(TrackTableModelTest, KeepsTheRecordsOnDisplayAlive) {
    const std::weak_ptr<TrackStorage> storage = list.storage;
    list = {};
    EXPECT_FALSE(storage.expired());
    EXPECT_EQ(shown(model, 0, Column::name), QStringLiteral("Amber Letters"));
    model.reload(list);
    EXPECT_TRUE(storage.expired());
}

TEST_F(TrackTableModelTest, AReloadOfTheSameRowsOnlyAnnouncesValues) {
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy values(&model, &QAbstractItemModel::dataChanged);
    list.rows[0]->checkbox = true;
    EXPECT_EQ(model.reload(list), TrackTableModel::Change::values);
    EXPECT_EQ(values.size(), 1);
    EXPECT_EQ(resets.size() + layouts.size(), 0);
}

TEST_F(TrackTableModelTest, AnotherOrderMovesPersistentIndexesWithTheirTracks) {
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QPersistentModelIndex kept = model.index(4, 2);
    const TrackRecord* track = list.rows[4];
    std::swap(list.rows[4], list.rows[6]);
    EXPECT_EQ(model.reload(list), TrackTableModel::Change::order);
    EXPECT_EQ(kept.row(), 6);
    EXPECT_EQ(kept.column(), 2);
    EXPECT_EQ(model.rows()[6], track);
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(TrackTableModelTest, APersistentIndexOfATrackThatIsGoneBecomesInvalid) {
    const QPersistentModelIndex kept = model.index(4, 2);
    TrackRecord& other = list.storage->makeRecord();
    list.rows[4] = &other;
    model.reload(list);
    EXPECT_FALSE(kept.isValid());
}

TEST_F(TrackTableModelTest, AnotherNumberOfRowsResetsTheModel) {
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    list.rows.pop_back();
    EXPECT_EQ(model.reload(list), TrackTableModel::Change::rows);
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(model.rowCount(), 11);
}

TEST_F(TrackTableModelTest, AnEditOfTheCheckBoxGoesToTheHandler) {
    std::vector<std::tuple<Column, int, bool>> edits;
    model.setObjectValueHandler(
        [&](Column column, int row, bool value) { edits.emplace_back(column, row, value); });
    EXPECT_TRUE(model.setData(model.index(3, 0), Qt::Checked, Qt::CheckStateRole));
    ASSERT_EQ(edits.size(), 1u);
    EXPECT_EQ(edits[0], std::make_tuple(Column::checkbox, 3, true));
    EXPECT_FALSE(list.rows[3]->checkbox) << "the model itself changes no record";
}

TEST_F(TrackTableModelTest, AnEditOfAnotherColumnIsHandedOnButIsNone) {
    int edits = 0;
    model.setObjectValueHandler([&](Column column, int, bool) { edits += column == Column::name ? 1 : 0; });
    EXPECT_FALSE(model.setData(model.index(3, 2), QStringLiteral("Other"), Qt::EditRole));
    EXPECT_EQ(edits, 1);
    EXPECT_EQ(shown(model, 3, Column::name), QStringLiteral("Cold harbour lights"));
}

TEST_F(TrackTableModelTest, CellsAreSpokenWithTheirTitles) {
    EXPECT_EQ(spoken(model, 0, Column::bitrate), QStringLiteral("Bit rate: 320"));
    EXPECT_EQ(spoken(model, 2, Column::rating), QStringLiteral("Rating: 3 of 5 stars"));
    EXPECT_EQ(spoken(model, 1, Column::rating), QStringLiteral("Not rated"));
    EXPECT_EQ(spoken(model, 6, Column::dtrack), QStringLiteral("File missing"));
    EXPECT_EQ(spoken(model, 5, Column::dtrack), QStringLiteral("File present"));
    EXPECT_EQ(spoken(model, 1, Column::checkbox), QStringLiteral("Marked"));
    EXPECT_EQ(spoken(model, 0, Column::checkbox), QStringLiteral("Not marked"));
    EXPECT_EQ(spoken(model, 1, Column::hasartwork), QStringLiteral("Artwork: No"));
}

TEST_F(TrackTableModelTest, ATextWithPlaceholdersIsSpokenAsItIs) {
    list.rows[0]->name = "100 %2 sure";
    EXPECT_EQ(spoken(model, 0, Column::name), QStringLiteral("Name: 100 %2 sure"));
}

TEST_F(TrackTableModelTest, RowsAreDescribedByTheirPlace) {
    const int role = Qt::AccessibleDescriptionRole;
    EXPECT_EQ(shown(model, 0, Column::name, role), QStringLiteral("Group 1 of 5, copy 1 of 2"));
    EXPECT_EQ(shown(model, 5, Column::name, role), QStringLiteral("Group 3 of 5, copy 2 of 3"));
    EXPECT_EQ(shown(model, 11, Column::name, role), QStringLiteral("Group 5 of 5, copy 3 of 3"));
    list.rows.erase(list.rows.begin(), list.rows.begin() + 2);
    model.reload(list);
    EXPECT_EQ(shown(model, 0, Column::name, role), QStringLiteral("Group 1 of 4, copy 1 of 2"));
}

TEST_F(TrackTableModelTest, TheCheckBoxTellsWhyItIsSet) {
    EXPECT_TRUE(shown(model, 1, Column::checkbox, Qt::ToolTipRole).isEmpty());
    model.setMarkReason([](int row) { return QStringLiteral("row %1").arg(row); });
    EXPECT_EQ(shown(model, 1, Column::checkbox, Qt::ToolTipRole), QStringLiteral("row 1"));
    EXPECT_EQ(shown(model, 6, Column::dtrack, Qt::ToolTipRole), QStringLiteral("File missing"));
}

TEST_F(TrackTableModelTest, TitlesStandOverTheirValues) {
    for (const Column column : allColumns) {
        const int section = sectionOf(column);
        EXPECT_EQ(model.headerData(section, Qt::Horizontal, Qt::TextAlignmentRole),
                  model.index(0, section).data(Qt::TextAlignmentRole));
    }
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole), QStringLiteral("Marked for deletion"));
    EXPECT_EQ(model.headerData(6, Qt::Horizontal, Qt::ToolTipRole), QStringLiteral("kbit/s"));
    EXPECT_EQ(model.headerData(10, Qt::Horizontal), QStringLiteral("Date added"));
}

TEST_F(TrackTableModelTest, OnlyTheCheckBoxCanBeChecked) {
    EXPECT_TRUE(model.index(0, 0).flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_FALSE(model.index(0, 2).flags().testFlag(Qt::ItemIsUserCheckable));
    EXPECT_FALSE(model.index(0, 2).flags().testFlag(Qt::ItemIsEditable));
}

} // namespace songsweep::test
