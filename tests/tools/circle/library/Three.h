// SPDX-License-Identifier: MIT
#include "library/One.h"
#include "platform/Log.h"
