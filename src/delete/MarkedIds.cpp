// SPDX-License-Identifier: MIT
#include "delete/MarkedIds.h"

#include "delete/Obstacles.h"
#include "library/PersistentId.h"

namespace songsweep {

void MarkedIds::add(std::string_view pid) {
    if (!trackObstacle(pid)) m_values.insert(PersistentId::of(pid).value);
}

bool MarkedIds::contains(std::string_view pid) const {
    return !trackObstacle(pid) && m_values.contains(PersistentId::of(pid).value);
}

} // namespace songsweep
