// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace wirepane {
enum class ListIndex : int;
enum class NewsType : int;
struct ServiceEntry;

// What the headline lists need from the view that owns them. Interface thread only.
class ListOwner {
public:
    virtual ~ListOwner() = default;

    // The services in their order, with the user's choice.
    virtual const std::vector<ServiceEntry>& allServices() const = 0;
    // TwoColumns: grids have two columns; anything else: three.
    virtual NewsType GetNewsType() const = 0;

    // The short name of a category of a service; for an unknown id a text that says so. Warrants have
    // categories of their own, whose ids are those of other news, too: a row keeps its name whatever the view
    // shows at the time.
    virtual QString categoryNameOf(unsigned char service, int id) = 0;
    // The colours of a category of a service by its name. 1 when it has an id; else 0 and both unchanged.
    virtual int categoryColourOf(unsigned char service, const QString& name, QColor& text,
                                 QColor& background) = 0;
    // The names of the topics that may come, as far as they are known: columns are measured by them.
    virtual QStringList topicNames() const { return {}; }
    // The text colour of the time of a row; invalid: the grid's own.
    virtual QColor timeColour(std::int64_t time) const {
        Q_UNUSED(time);
        return {};
    }
    // A row has been written: the state of the category column applies to it too.
    virtual void categoryStateAfterWriting() = 0;
    // All rows of a list have been replaced: what is remembered of one by its number holds no more.
    virtual void rowsReplaced(ListIndex list) = 0;
};

}  // namespace wirepane
