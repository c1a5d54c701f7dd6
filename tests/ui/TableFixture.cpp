// SPDX-License-Identifier: MIT
#include "ui/TableFixture.h"

#include <QApplication>
#include <QTest>

namespace songsweep::test {

TableFixture::TableFixture() {
    view.setUp(model, log);
    view.resize(1600, 500);
    view.show();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    reload();
}

void TableFixture::select(int first, int last) {
    view.selectionModel()->select(QItemSelection(model.index(first, 0), model.index(last, 0)),
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QModelIndex TableFixture::cell(int row, Column column) const {
    return model.index(row, static_cast<int>(column));
}

QPoint TableFixture::middleOf(int row, Column column) const {
    return view.visualRect(cell(row, column)).center();
}

QImage TableFixture::picture() { return view.viewport()->grab().toImage(); }

QColor TableFixture::background(int row, Column column) {
    const QRect frame = view.visualRect(cell(row, column));
    return picture().pixelColor(frame.left() + 2, frame.center().y());
}

} // namespace songsweep::test
