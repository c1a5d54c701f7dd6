// SPDX-License-Identifier: MIT
#include "platform/ExceptionReason.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace songsweep {
namespace {

template <class Exception>
std::string reasonOf(const Exception& exception) {
    try {
        throw exception;
    } catch (...) {
        return exceptionReason();
    }
}

TEST(ExceptionReason, IsWhatTheExceptionSays) {
    EXPECT_EQ(reasonOf(std::runtime_error("the disk is gone")), "the disk is gone");
}

TEST(ExceptionReason, TellsInWordsThatMemoryRanOut) {
    EXPECT_EQ(reasonOf(std::bad_alloc()), "out of memory");
}

TEST(ExceptionReason, IsUnknownOfWhatIsNoException) { EXPECT_EQ(reasonOf(7), "unknown"); }

} // namespace
} // namespace songsweep
