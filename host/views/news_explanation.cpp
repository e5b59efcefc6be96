// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_explanation.h"

HeadlineExplainer::~HeadlineExplainer() = default;
