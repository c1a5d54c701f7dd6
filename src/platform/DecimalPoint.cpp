// SPDX-License-Identifier: MIT
#include "platform/DecimalPoint.h"

#include <QLocale>

namespace songsweep {

std::string withDecimalPoint(std::string figure) {
    const std::size_t point = figure.find('.');
    if (point != std::string::npos) figure.replace(point, 1, QLocale().decimalPoint().toStdString());
    return figure;
}

} // namespace songsweep
