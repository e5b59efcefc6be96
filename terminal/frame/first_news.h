// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace wirepane {
class MainFrame;

// Gives a view what its empty list offers where there is no news yet: to import some, to add a source.
void offerFirstNews(QWidget& view, MainFrame& frame);

}  // namespace wirepane
