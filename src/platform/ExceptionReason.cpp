// SPDX-License-Identifier: MIT
#include "platform/ExceptionReason.h"

#include <exception>
#include <new>

namespace songsweep {

std::string exceptionReason() {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return "out of memory"; // so short that a string holds it in itself
    } catch (const std::exception& exception) {
        return exception.what();
    } catch (...) {
        return "unknown";
    }
}

} // namespace songsweep
