// SPDX-License-Identifier: MIT
#include "operations/NotificationCenter.h"

#include "operations/HandOff.h"

#include <utility>

namespace songsweep {

NotificationCenter::NotificationCenter()
    : m_handOff(std::make_unique<HandOff>()) {}

NotificationCenter::~NotificationCenter() = default;

void NotificationCenter::setObserver(Observer observer) { m_handOff->setObserver(std::move(observer)); }

void NotificationCenter::post(const WorkerEvent& event) { m_handOff->post(event); }

bool NotificationCenter::flush() { return m_handOff->flush(); }

const Operation* NotificationCenter::handling() const { return m_handOff->handling(); }

void NotificationCenter::close() { m_handOff->close(); }

} // namespace songsweep
