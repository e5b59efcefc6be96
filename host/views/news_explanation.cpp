// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_explanation.h"

namespace wirepane {

HeadlineExplainer::~HeadlineExplainer() = default;

}  // namespace wirepane
