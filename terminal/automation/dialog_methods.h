// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/automation/method_table.h"

namespace wirepane {

// Working dialogs and message boxes: dialog.*. The dialog is the one in front of the user.
class DialogMethods {
public:
    static void addTo(MethodTable& table);
};

}  // namespace wirepane
