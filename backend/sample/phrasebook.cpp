// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/sample/phrasebook.h"

#include <algorithm>

namespace wirepane::sample {

namespace {

constexpr QStringView speaking[] = {u"\"", u"表示", u"指出", u"認為"};

std::vector<Template> templatesOf(std::span<const Phrase> phrases) {
    return {phrases.begin(), phrases.end()};
}

bool isStatementText(QStringView text) {
    return std::any_of(std::begin(speaking), std::end(speaking),
                       [text](QStringView word) { return text.contains(word); });
}

}  // namespace

Template::Template(const Phrase& phrase)
    : requiredMood(phrase.mood), statement(isStatementText(phrase.text)) {
    QStringView rest = phrase.text;
    while (!rest.isEmpty()) {
        const qsizetype open = rest.indexOf(u'{');
        const qsizetype close = rest.indexOf(u'}', open);
        if (open < 0 || close < 0) {
            pieces.push_back({rest, nullptr});
            return;
        }
        const QStringView name = rest.mid(open + 1, close - open - 1);
        pieces.push_back({rest.left(open), findSlot(name)});
        if (!pieces.back().slot && unknown.isEmpty())
            unknown = name;
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

Phrasebook::Phrasebook()
    : englishBackground(templatesOf(englishBackgroundTexts())),
      chineseBackground(templatesOf(chineseBackgroundTexts())) {
    add(english, englishCompanyTexts());
    add(english, englishMarketTexts());
    add(english, englishEconomyTexts());
    add(chinese, chineseCompanyTexts());
    add(chinese, chineseMarketTexts());
    add(chinese, chineseEconomyTexts());
    add(chinese, chineseNoticeTexts());
    add(chinese, chineseWarrantTexts());
    add(chineseHongKong, chineseHongKongTexts());
}

void Phrasebook::add(Topics& topics, std::span<const TopicText> texts) {
    for (const TopicText& text : texts) {
        TopicTemplates& entry = topics[static_cast<std::size_t>(text.topic)];
        entry.headlines = templatesOf(text.headlines);
        entry.leads = templatesOf(text.leads);
        entry.paragraphs = templatesOf(text.paragraphs);
    }
}

const TopicTemplates& Phrasebook::topic(Topic topic, Language language, bool hongKong) const {
    const std::size_t index = static_cast<std::size_t>(topic);
    if (language == Language::English)
        return english[index];
    return hongKong && !chineseHongKong[index].headlines.empty() ? chineseHongKong[index] : chinese[index];
}

const std::vector<Template>& Phrasebook::background(Language language) const {
    return language == Language::English ? englishBackground : chineseBackground;
}

std::vector<QString> Phrasebook::faults() const {
    std::vector<QString> result;
    const auto check = [&result](const std::vector<Template>& templates) {
        for (const Template& entry : templates)
            if (!entry.unknownSlot().isEmpty())
                result.push_back(entry.unknownSlot().toString());
    };
    for (const Topics* topics : {&english, &chinese, &chineseHongKong}) {
        for (const TopicTemplates& entry : *topics) {
            check(entry.headlines);
            check(entry.leads);
            check(entry.paragraphs);
        }
    }
    check(englishBackground);
    check(chineseBackground);
    return result;
}

}  // namespace wirepane::sample
