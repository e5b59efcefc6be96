// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "news_view/common_parts.h"
#include "news_view/news_categories.h"

#include <QString>

#include <functional>
#include <optional>
#include <set>
#include <vector>

class QColor;

namespace wirepane {
class RelationMatcher;
class ViewContext;

}  // namespace wirepane

struct CHeadline;

namespace wirepane {

// The categories of a view: what they are called and how they look, the combo that chooses the one whose news
// the category list holds, and the category column of the grids. Interface thread only.
class CategoryMode {
public:
    // `filter` is asked for what filters the category list while it is read; null: nothing does.
    CategoryMode(ViewContext& context, const CommonParts& parts,
                 std::function<const RelationMatcher*()> filter);

    // Reads the host's file of names; the list of warrant categories, for the services of the view.
    void bInitialTransferCatObject() { names.loadFile(); }
    void bInitialTransferWarrantCatObject();
    // The host's file has changed.
    void reloadNames();
    // Rows that were written before a name was known show it, and the combo offers it.
    void learn(bool hostSaysSo);
    // A headline was pushed: a category that the combo lacks is learned at the next refresh.
    void notePushed(const CHeadline& headline, const QString& categoryId);

    // A text that says so where nobody knows the id.
    QString nameOf(unsigned char service, int id);
    // Those that are known so far, of all but warrants.
    QStringList topicNames() const { return names.known(); }
    // -1 when there is none of exactly this name.
    int idOf(unsigned char service, const QString& name) { return names.idOf(service, name); }
    // False, and both colours unchanged, when there is none of this name.
    bool colourOf(unsigned char service, const QString& name, QColor& text, QColor& background);

    // The column of the shown grid; not in a view with two columns.
    void showColumn(bool show);
    void showColumn();
    void toggleColumn();

    // The user has opened, chosen from, closed the combo.
    void connectCombo();
    void chosen();
    // The id of the chosen category; none: nothing is chosen.
    std::optional<QString> chosenId() const;
    // Fills the combo once, with the stored category chosen; without a stored one the first is.
    void bInitialCategoryInfo();
    // Fills it for the ticked services anew; the choice stays, else the first is chosen.
    void vRefreshCategoryCombo();
    // New entries, and names in another language, leave the choice and its list alone. What the user is
    // choosing from does not change under his hand.
    void learnCombo();

private:
    std::vector<OfferedCategory> itemsOfServices() const;
    void fillCombo();
    int indexOf(const QString& id) const;

    ViewContext& context;
    const CommonParts parts;
    const std::function<const RelationMatcher*()> filter;
    NewsCategories names;
    std::vector<OfferedCategory> items;  // in the order of the combo
    std::set<QString> missed;            // by the combo since it was filled
    bool isOneMissed = false;            // since the last refresh
    bool comboIsBehind = false;          // it was open when there was something to learn
};

}  // namespace wirepane
