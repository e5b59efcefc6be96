// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QFont>
#include <QString>

// The host's global settings, as far as the module reads them. Interface thread only. Every operation has a
// default, so that a small host installs none or overrides what it knows.
class WIREPANE_CONTRACT_EXPORT CSyncInfo {
public:
    CSyncInfo() = default;
    CSyncInfo(const CSyncInfo&) = delete;
    CSyncInfo& operator=(const CSyncInfo&) = delete;
    virtual ~CSyncInfo();  // uninstalls itself when it is the installed one

    // The installed settings; one with all the defaults before a host installs its own. Never null, not
    // owned.
    static CSyncInfo* GetSettingCFG();
    // Installs the settings of this process; null goes back to the defaults. The host keeps ownership.
    static void setSettingCFG(CSyncInfo* settings);

    // A named colour, such as "COLOR_LISTCTL_NORMALTEXT"; an invalid colour for a name that the scheme lacks.
    virtual QColor SYS_crGetOtherColor(const QString& name);
    // The font of views.
    virtual QFont SYS_fntGetViewFont();
    // True: grids have thin scroll bars.
    virtual bool CApi_GetThinBarStatus();
    // 1: the pop-up story window is an ordinary window; anything else: it stays on top.
    virtual int SYS_eGetPopupWndPosition();
    // The current symbol of a link group (0: the host's own); empty when there is none.
    virtual QString SYS_cszGetCurrentSymbol(unsigned char linkGroup);
    // The request that the next view opens with the news of the linked symbol.
    virtual bool SYS_bGetIsLinkNews();
    virtual void SYS_vSetIsLinkNews(bool linked);
};
