// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "bench/backend/alert_rules.h"

#include <QStringList>

#include <random>

using namespace Qt::StringLiterals;

namespace wirepane::bench {

std::vector<AlertRule> rulesOf(std::int64_t count) {
    std::mt19937 random(3);
    const auto word = [&] {
        QString letters = u"zq"_s;
        for (auto number = random() % 20'000; number > 0; number /= 26)
            letters += QChar(u'a' + int(number % 26));
        return letters;
    };
    std::vector<AlertRule> rules;
    while (std::int64_t(rules.size()) < count) {
        QStringList words;
        while (words.size() < 8)
            words += word();
        AlertRule& rule = rules.emplace_back();
        rule.name = QString::number(rules.size());
        rule.query = u"(%1 | \"%2 %3\") -%4"_s.arg(words.join(u" | "_s), word(), word(), word());
    }
    return rules;
}

}  // namespace wirepane::bench
