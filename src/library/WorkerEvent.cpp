// SPDX-License-Identifier: MIT
#include "library/WorkerEvent.h"

#include <array>

namespace songsweep {

std::string_view text(EventName name) {
    static constexpr std::array<std::string_view, eventCount> texts = {
        "addFinish",
        "xmlDoneParsing",
        "xmlErrorParsing",
        "xmlErrorProcessing",
        "xmlerrornotfound",
        "xmlModifiedDate",
        "buildFinish",
        "addCancel",
        "step1",
        "progressx",
        "step2",
        "progress",
        "deleteAddCount",
        "deleteValidity",
        "deleteFinish",
        "deleteCancel",
        "tableviewSpacebar",
        "readError",
        "surveyDone",
        "cleanupsListed",
        "restoreForeseen",
        "restoreProgress",
        "restoreFinish",
        "interruptionFound",
        "cleanupFinished",
        "libraryRead",
        "mergeAddCount",
        "mergeFinish",
        "mergeCancel",
    };
    return texts.at(static_cast<std::size_t>(name));
}

} // namespace songsweep
