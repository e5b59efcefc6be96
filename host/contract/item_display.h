// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>

// How the host displays items of its catalogues. Interface thread only.
class WIREPANE_CONTRACT_EXPORT TRVItemDisplay {
public:
    TRVItemDisplay() = default;
    TRVItemDisplay(const TRVItemDisplay&) = delete;
    TRVItemDisplay& operator=(const TRVItemDisplay&) = delete;
    virtual ~TRVItemDisplay();  // uninstalls itself when it is the installed one

    // The installed display; one without colours before a host installs its own. Never null, not owned.
    static TRVItemDisplay* itemDisplay();
    static void setItemDisplay(TRVItemDisplay* display);

    // The colours of a news category; an invalid colour means the grid's own.
    virtual void GetNewsCatColor(int categoryId, QColor& text, QColor& background);
    // The same for warrants, whose categories have ids of their own. A host that does not override it leaves
    // them in the grid's colours.
    virtual void warrantCatColor(int categoryId, QColor& text, QColor& background);
};
