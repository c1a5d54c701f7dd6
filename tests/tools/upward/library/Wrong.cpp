// SPDX-License-Identifier: MIT
#include "app/AppController.h"
#include "platform/Log.h"
