// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/records.h"

#include <QString>

// The texts of stories on paper and in files. Lines end with "\r\n". Pure.

// Brings a story that is at hand into lines: the text up to its first CR or LF, in which each "@@@@" is a
// line break. Hosts rely on the cut: wire form has neither CR nor LF.
void Linefeed(QString& story);

namespace wirepane {

// The story with its date line in front, "@@@@yyyy/mm/dd hh:mm:ss" in local time, not yet in lines; month and
// day as hosts know them ("%4d/%02d/%2d"). A time outside any calendar: "   0/00/ 0 -1:-1:-1".
QString datedStory(const CStory& story);

// As a story prints that was at hand, and one that came later: that one is not cut.
QString printedStory(const CStory& story);
QString lateStory(const CStory& story);
// As a file holds a story that was at hand: without the date line. One that came later is a LateStory there
// too.
QString savedStory(const CStory& story);

}  // namespace wirepane
