// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/reading_moment.h"

ReadingMoment::~ReadingMoment() = default;
