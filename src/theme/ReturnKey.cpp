// SPDX-License-Identifier: MIT
#include "theme/ReturnKey.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QRadioButton>

namespace songsweep {

namespace {

bool isReturn(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool canBeTicked(const QObject* object) {
    return qobject_cast<const QCheckBox*>(object) != nullptr ||
           qobject_cast<const QRadioButton*>(object) != nullptr;
}

} // namespace

void ReturnKey::follow(QApplication* application) { application->installEventFilter(this); }

bool ReturnKey::eventFilter(QObject* object, QEvent* event) {
    if (!isReturn(*event) || !canBeTicked(object)) return QObject::eventFilter(object, event);
    event->ignore(); // so that it goes on to the dialog
    return true;
}

} // namespace songsweep
