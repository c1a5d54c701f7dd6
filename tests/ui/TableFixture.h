// SPDX-License-Identifier: MIT
#pragma once

#include "library/DisplayedList.h"
#include "support/RecordingLog.h"
#include "support/SampleRows.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QImage>

#include <gtest/gtest.h>

namespace songsweep::test {

/// A table in a window of its own, in front, showing the twelve sample rows.
class TableFixture : public ::testing::Test {
  protected:
    TableFixture();

    void reload() { view.reloadData(list); }
    void select(int first, int last);
    QModelIndex cell(int row, Column column) const;
    QPoint middleOf(int row, Column column) const;
    QImage picture();
    /// The background of a cell, next to its left edge.
    QColor background(int row, Column column);

    DisplayedList list = sampleRows();
    RecordingLog log;
    TrackTableModel model;
    SWTableView view;
};

} // namespace songsweep::test
