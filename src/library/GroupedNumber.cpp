// SPDX-License-Identifier: MIT
#include "library/GroupedNumber.h"

#include <QLocale>

namespace songsweep {

std::string groupedNumber(std::size_t number) {
    return QLocale().toString(static_cast<qulonglong>(number)).toStdString();
}

std::string groupedCount(std::size_t count, std::string_view noun) {
    return groupedNumber(count) + ' ' + std::string(noun) + (count == 1 ? "" : "s");
}

} // namespace songsweep
