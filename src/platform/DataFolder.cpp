// SPDX-License-Identifier: MIT
#include "platform/DataFolder.h"

#include <QStandardPaths>

namespace songsweep {

std::string dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
}

} // namespace songsweep
