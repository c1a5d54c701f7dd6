// SPDX-License-Identifier: MIT
#include "app/FileOpening.h"

#include <QCoreApplication>
#include <QFileOpenEvent>

#include <utility>

namespace songsweep {

FileOpening::FileOpening(std::function<void(const std::string& path)> handler)
    : m_handler(std::move(handler)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FileOpening::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::FileOpen) return QObject::eventFilter(object, event);
    m_handler(static_cast<QFileOpenEvent*>(event)->file().toStdString());
    return true;
}

} // namespace songsweep
