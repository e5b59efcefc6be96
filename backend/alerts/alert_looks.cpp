// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_looks.h"

#include "backend/search/title_query_set.h"
#include "backend/store/embedded_back_end.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

LookDesk::Judge looksBy(const std::vector<AlertRule>& rules, EmbeddedBackEnd& backEnd) {
    std::vector<HeadlineLook> looks;
    std::vector<QString> wanted;
    for (const AlertRule& rule : rules) {
        if (!rule.isOn)
            continue;
        looks.push_back({rule.tint, rule.tag, true});
        wanted.push_back(rule.query);
    }
    if (wanted.empty())
        return {};
    const auto set = backEnd.prepareAlerts(wanted);
    return [looks, set, &backEnd](const CHeadline& headline) {
        std::set<std::size_t> wanting;
        const QString story = set->looksAtStories() ? backEnd.storyThere(keyOf(headline)) : QString();
        set->findWanting(headline, story, [&](std::size_t rule) {
            wanting.insert(rule);
            return false;
        });
        HeadlineLook look;
        look.isWanted = !wanting.empty();
        QStringList tags;
        for (const std::size_t rule : wanting) {
            if (look.tint == 0)
                look.tint = looks[rule].tint;
            tags << looks[rule].tag;
        }
        tags.removeAll(QString());
        tags.removeDuplicates();
        look.tag = tags.join(u' ');
        return look;
    };
}

}  // namespace wirepane
