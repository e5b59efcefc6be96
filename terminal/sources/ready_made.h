// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/network_source.h"

#include <QString>

#include <vector>

namespace wirepane {

// A source that the terminal knows of. It is asked for nothing until the user ticks it.
struct ReadyMadeSource {
    NetworkSource source;  // without a name
    QString publisher;
    QUrl terms;  // where the publisher's terms are, for the user to read
};

// With their titles in the language in force.
std::vector<ReadyMadeSource> readyMadeSources();

}  // namespace wirepane
