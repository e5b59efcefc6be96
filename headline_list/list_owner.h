// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/service_entry.h"

#include <QColor>
#include <QString>

#include <cstdint>
#include <vector>

// What the headline lists need from the view that owns them. Interface thread only.
class ListOwner {
public:
    virtual ~ListOwner() = default;

    // The services in their order, with the user's choice.
    virtual const std::vector<ServiceEntry>& vGetServices() const = 0;
    // 1: grids have two columns; anything else: three.
    virtual int GetNewsType() const = 0;

    // The short name of a category; for an unknown id a text that says so.
    virtual QString cszTransferCatIDToCatName(int id) const = 0;
    // The colours of a category by its name. 1 when it has an id; else 0 and both unchanged.
    virtual int GetCategoryColor(const QString& name, QColor& text, QColor& background) const = 0;
    // The text colour of the time of a row; invalid: the grid's own.
    virtual QColor TimeColour(std::int64_t time) const {
        Q_UNUSED(time);
        return {};
    }
    // A row has been written: the state of the category column applies to it too.
    virtual void vCategoryStateAfterWriting() = 0;
};
