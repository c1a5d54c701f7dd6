// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeleteConfirmation.h"
#include "support/ThemedTest.h"

namespace songsweep::test {

class DeleteConfirmationFixture : public ThemedTest {};

inline DeleteConfirmationFacts threeTracks() {
    DeleteConfirmationFacts facts;
    facts.tracks = 3;
    facts.filesToTrash = 2;
    facts.bytesToTrash = 9'000'000;
    facts.sharedFiles = 1;
    facts.sharedBytes = 1'000'000;
    facts.missingFiles = 1;
    return facts;
}

} // namespace songsweep::test
