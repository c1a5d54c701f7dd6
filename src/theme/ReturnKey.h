// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QApplication;

namespace songsweep {

/// Leaves Return to the default button of a dialog wherever the focus is.
///
/// Some desktops let Return press the check box or radio button that has the focus, as Space does. In these
/// dialogs it is what the filled button does, on every desktop. Main thread.
class ReturnKey : public QObject {
    Q_OBJECT

  public:
    void follow(QApplication* application);
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace songsweep
