// SPDX-License-Identifier: MIT
#include "library/Two.h"
