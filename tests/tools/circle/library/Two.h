// SPDX-License-Identifier: MIT
#include "library/Three.h"
