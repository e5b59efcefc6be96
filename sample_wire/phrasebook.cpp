// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "sample_wire/phrasebook.h"

#include "sample_wire/data_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane::sample {

namespace {

constexpr QStringView speaking[] = {u"\"", u"表示", u"指出", u"認為"};

bool isStatementText(QStringView text) {
    return std::any_of(std::begin(speaking), std::end(speaking),
                       [text](QStringView word) { return text.contains(word); });
}

}  // namespace

Template::Template(QStringView phrase, Mood mood) : requiredMood(mood), statement(isStatementText(phrase)) {
    QStringView rest = phrase;
    while (!rest.isEmpty()) {
        const qsizetype open = rest.indexOf(u'{');
        const qsizetype close = rest.indexOf(u'}', open);
        if (open < 0 || close < 0) {
            pieces.push_back({rest.toString(), nullptr});
            return;
        }
        const QStringView name = rest.mid(open + 1, close - open - 1);
        pieces.push_back({rest.left(open).toString(), findSlot(name)});
        if (!pieces.back().slot && unknown.isEmpty())
            unknown = name.toString();
        rest = rest.mid(close + 1);
    }
}

void Template::write(Writer& writer) const {
    for (const Piece& piece : pieces) {
        writer.text(piece.text);
        if (piece.slot)
            piece.slot(writer);
    }
}

Phrasebook Phrasebook::load(QStringList& faults) {
    Phrasebook book;
    for (const QString& file :
         {u"texts_en_company.tsv"_s, u"texts_en_market.tsv"_s, u"texts_en_economy.tsv"_s})
        read(book.english, file, faults);
    for (const QString& file :
         {u"texts_zh_company.tsv"_s, u"texts_zh_market.tsv"_s, u"texts_zh_economy.tsv"_s,
          u"texts_zh_notice.tsv"_s, u"texts_zh_warrant.tsv"_s})
        read(book.chinese, file, faults);
    read(book.chineseHongKong, u"texts_zh_hong_kong.tsv"_s, faults);
    return book;
}

void Phrasebook::read(Topics& topics, const QString& file, QStringList& faults) {
    for (const DataRow& row : carriedTable(file, faults))
        add(topics, row);
}

void Phrasebook::add(Topics& topics, const DataRow& row) {
    static const std::vector<QLatin1StringView> names = [] {
        std::vector<QLatin1StringView> all(topicNames().begin(), topicNames().end());
        all.push_back("background"_L1);
        return all;
    }();
    static constexpr QLatin1StringView moods[] = {"any"_L1, "good"_L1, "bad"_L1};
    static constexpr QLatin1StringView parts[] = {"headline"_L1, "lead"_L1, "paragraph"_L1};
    TopicTemplates& texts = topics[row.choice("topic"_L1, names)];
    std::vector<Template>* const lists[] = {&texts.headlines, &texts.leads, &texts.paragraphs};
    const Template entry(row.text("text"_L1), static_cast<Mood>(row.choice("mood"_L1, moods)));
    if (!entry.unknownSlot().isEmpty())
        row.fail(u"nothing can fill {%1}"_s.arg(entry.unknownSlot()));
    lists[row.choice("part"_L1, parts)]->push_back(entry);
}

const TopicTemplates& Phrasebook::topic(Topic topic, Language language, bool hongKong) const {
    const std::size_t index = static_cast<std::size_t>(topic);
    if (language == Language::English)
        return english[index];
    return hongKong && !chineseHongKong[index].headlines.empty() ? chineseHongKong[index] : chinese[index];
}

const std::vector<Template>& Phrasebook::background(Language language) const {
    return (language == Language::English ? english : chinese)[topicCount].paragraphs;
}

}  // namespace wirepane::sample
