// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class CSuperSheetWnd;

// A colour of the host by its name, or `fallback` where its scheme lacks it.
QColor HostColour(const QString& name, const QColor& fallback);

// Gives a sheet the host's colours of this moment, where the host has none those of its palette, and the
// font.
void ApplyHostScheme(CSuperSheetWnd& sheet, const QFont& font);
