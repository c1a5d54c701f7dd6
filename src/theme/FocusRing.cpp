// SPDX-License-Identifier: MIT
#include "theme/FocusRing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

namespace songsweep {

namespace {

bool takesRing(const QWidget* widget) {
    return qobject_cast<const QAbstractButton*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QLineEdit*>(widget) != nullptr;
}

} // namespace

void FocusRing::follow(QApplication* application) {
    connect(application, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { moveTo(now); });
}

void FocusRing::moveTo(QWidget* widget) {
    if (!takesRing(widget)) {
        if (m_frame) m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame) m_frame = new QFocusFrame(widget->window());
    m_frame->setWidget(widget);
}

} // namespace songsweep
