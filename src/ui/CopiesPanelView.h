// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "ui/CopyFinding.h"

#include <QStringList>
#include <QTableWidget>

#include <vector>

namespace songsweep {

/// The copies of one song side by side, a column for each: its mark with the reason, then value for value.
/// What differs between them stands out, and what they have in common steps back.
///
/// Shows texts and small pictures and keeps no record; made again with every group, of which it shows the
/// first dozen copies. Main thread.
class CopiesPanelView : public QTableWidget {
    Q_OBJECT
  public:
    /// More copies than fit beside each other tell nobody more.
    static constexpr int mostCopies = 12;

    explicit CopiesPanelView(QWidget* parent = nullptr);

    /// `reasons` has one for each copy, "" for none, and so has `differences`, which say how a copy differs
    /// from the plainest one.
    void showCopies(const std::vector<const TrackRecord*>& copies, const QStringList& reasons,
                    const QStringList& differences = {});

    /// What a look at the copies told, one for each; none while that is not known.
    void setFindings(std::vector<CopyFinding> findings);

    QSize sizeHint() const override;

  Q_SIGNALS:
    /// The mark of the copy, counted from 0, was clicked.
    void markClicked(int copy, bool marked);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    struct Copy {
        bool marked;
        QString reason;
        QString difference;
        QString sound;
        QStringList values; ///< of the rows below the mark's
    };

    void setUpRows();
    void fill();
    void fillCopy(int column, const std::vector<bool>& differing);
    void fillFindings();
    QTableWidgetItem* makeValue(const QString& text, bool differs) const;
    void applyMetrics();

    std::vector<Copy> m_copies;
    std::vector<CopyFinding> m_findings;
    bool m_isFilling = false;
};

} // namespace songsweep
