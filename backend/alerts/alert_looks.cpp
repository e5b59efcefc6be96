// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/alerts/alert_looks.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

LookDesk::Judge looksBy(const std::vector<AlertRule>& rules, HeadlineQueries& queries) {
    std::vector<HeadlineLook> looks;
    std::vector<QString> wanted;
    for (const AlertRule& rule : rules) {
        if (!rule.isOn || (rule.tint == 0 && rule.tag.isEmpty()))
            continue;
        looks.push_back({rule.tint, rule.tag});
        wanted.push_back(rule.query);
    }
    if (wanted.empty())
        return {};
    const auto set = queries.prepareQueries(wanted);
    return [looks, set](const CHeadline& headline) {
        std::set<std::size_t> wanting;
        set->findWanting(headline, headline.categoryId, [&](std::size_t rule) {
            wanting.insert(rule);
            return false;
        });
        HeadlineLook look;
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
