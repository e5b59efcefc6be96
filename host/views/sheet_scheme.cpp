// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/sheet_scheme.h"

#include "host/contract/colour_roles.h"
#include "host/contract/sync_info.h"
#include "host/controls/sheet_colours.h"
#include "host/controls/super_sheet_wnd.h"

#include <QApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace wirepane {

QColor hostColour(const QString& name, const QColor& fallback) {
    const QColor colour = CSyncInfo::GetSettingCFG()->SYS_crGetOtherColor(name);
    return colour.isValid() ? colour : fallback;
}

QColor movementColour(int direction, const QColor& ground) {
    const bool dark = ground.lightness() < 128;
    if (direction == 0)
        return {};
    return direction > 0
               ? hostColour(u"COLOR_QUOTE_RISE"_s, dark ? QColor(0xFF, 0x7B, 0x7B) : QColor(0xC0, 0x26, 0x26))
               : hostColour(u"COLOR_QUOTE_FALL"_s,
                            dark ? QColor(0x4C, 0xC3, 0x8A) : QColor(0x14, 0x74, 0x3A));
}

void applyHostScheme(CSuperSheetWnd& sheet, const QFont& font) {
    const QPalette palette = QApplication::palette();
    const QColor background = hostColour(u"COLOR_LISTCTL_BACKGROUND"_s, palette.color(QPalette::Base));
    const QColor header = hostColour(u"COLOR_LISTCTL_HDBkCOLOR1"_s, palette.color(QPalette::Button));
    sheet.vSetHeaderRowBkColor(header);
    sheet.vSetHeaderRowFgColor(
        hostColour(u"COLOR_LISTCTL_HDTEXTCOLOR1"_s, palette.color(QPalette::ButtonText)));
    sheet.vSetFrameColor(header);
    sheet.vSetBkColor(background, hostColour(u"COLOR_LISTCTL_BACKGROUNDSLASH"_s, background));
    sheet.vSetFocusColor(true, hostColour(u"COLOR_LISTCTL_CLICKLINE"_s, palette.color(QPalette::Highlight)),
                         hostColour(u"COLOR_LISTCTL_CLICKLINE_GRAY"_s, palette.color(QPalette::Midlight)));
    sheet.vSetFgColor(hostColour(u"COLOR_LISTCTL_NORMALTEXT"_s, palette.color(QPalette::Text)));
    SheetColours finish;
    finish.hover = roleColour(ColourRole::Hover);
    finish.arrived = roleColour(ColourRole::Arrived);
    finish.accent = roleColour(ColourRole::Accent);
    finish.weak = roleColour(ColourRole::Weak);
    finish.border = roleColour(ColourRole::Border);
    finish.line = roleColour(ColourRole::Line);
    finish.urgent = roleColour(ColourRole::Flash);
    finish.onUrgent = roleColour(ColourRole::OnFlash);
    finish.hits = hitGrounds();
    sheet.setFinishColours(finish);
    sheet.vSetFont(font);
}

}  // namespace wirepane
