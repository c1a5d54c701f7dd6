// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Log.h"

#include <exception>
#include <memory>
#include <utility>

namespace songsweep {

/// A new cell, or none where its making fails, which is logged once.
template <typename Cell, typename... Arguments>
std::unique_ptr<Cell> makeCell(Log& log, Arguments&&... arguments) {
    try {
        return std::make_unique<Cell>(std::forward<Arguments>(arguments)...);
    } catch (const std::exception&) {
        log.line("Could not initalize!");
        return nullptr;
    }
}

} // namespace songsweep
