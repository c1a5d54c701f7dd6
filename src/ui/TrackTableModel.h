// SPDX-License-Identifier: MIT
#pragma once

#include "library/DisplayedList.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <functional>
#include <vector>

namespace songsweep {

/// The rows of the results table as they were at the last reload.
///
/// A snapshot of pointers and not the controller's list itself: a worker may shorten that list while the
/// table repaints. The storage of the records is held as long as they are on display. Everything shown is
/// made from the record when the view asks, so a reload costs a copy of the pointers (8 MB for a million
/// rows) and no allocation for each row. Main thread.
class TrackTableModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Role {
        TintedRole = Qt::UserRole, ///< bool: the row lies on the tinted band
        MissingRole,               ///< bool: the file of the track is missing
        StarsRole,                 ///< int, 0 to 5
        DrawnRole,                 ///< QString: what is drawn of a text, the folder of a location
    };

    /// What a reload found to be different.
    enum class Change {
        values, ///< the same tracks in the same order; their values may differ
        order,  ///< as many rows as before, in another order
        rows,   ///< another number of rows
    };

    explicit TrackTableModel(QObject* parent = nullptr);

    /// Takes over the rows of the list. Other rows reset the model; another order moves the persistent
    /// indexes with their tracks; otherwise the values are announced as changed.
    Change reload(const DisplayedList& list);
    /// What a reload of the list would find.
    Change changeTo(const DisplayedList& list) const;

    const DisplayedList& list() const { return m_list; }
    const std::vector<TrackRecord*>& rows() const { return m_list.rows; }

    /// Shown in the rows of missing files; none leaves the column empty.
    void setDtrackImage(QIcon dtrackImage);
    /// Receives every edit of a cell: column, row and the value of the check box.
    void setObjectValueHandler(std::function<void(Column column, int row, bool value)> handler);
    /// Gives the reason for the mark of a row as the tool tip of its check box, or an empty text.
    void setMarkReason(std::function<QString(int row)> markReason);

    /// The value in a cell: a QIcon or nothing for the missing-file column, a bool for the check box, an int
    /// for the rating, texts for all others.
    QVariant objectValueForTableColumn(Column column, int row) const;

    // QAbstractTableModel
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    void takeOver(const DisplayedList& list);
    void announceValues();
    void reorder(const DisplayedList& list);
    QModelIndexList movedIndexes(const QModelIndexList& indexes,
                                 const std::vector<TrackRecord*>& newRows) const;
    QString toolTip(Column column, int row) const;
    QString spokenRow(int row) const;

    DisplayedList m_list;
    QIcon m_dtrackImage;
    std::function<void(Column, int, bool)> m_objectValueHandler;
    std::function<QString(int)> m_markReason;
    mutable std::vector<int> m_groupStarts; ///< first row of every group; made when somebody asks
};

} // namespace songsweep
