// SPDX-License-Identifier: MIT
#include "app/ControllerServices.h"

#include "platform/Desktop.h"

namespace songsweep {

SurveySources ControllerServices::surveySources() const {
    return {.files = files,
            .locations = libraryLocations,
            .trash = &desktop.trash(),
            .libraryForesight = libraryForesight,
            .tracksOfId = tracksOfId,
            .planMerge = planMerge};
}

} // namespace songsweep
