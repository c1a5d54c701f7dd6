// SPDX-License-Identifier: MIT
#include "dupes/MarkDialog.h"
#include "ui/Right.h"
