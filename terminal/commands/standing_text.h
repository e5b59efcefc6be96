// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/views/news_explanation.h"

#include <functional>

namespace wirepane {

// The name of a category of the headline's service, by its id.
using TopicName = std::function<QString(const QString& id)>;

// In which list a headline stands or does not, where, and why, in plain English.
QString standingText(const HeadlineStanding& standing, const TopicName& topicName);

}  // namespace wirepane
